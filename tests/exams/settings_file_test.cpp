#include "exams/settings_file.h"

#include <gtest/gtest.h>
#include <sys/resource.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <csignal>

namespace exams {
namespace {

const QByteArray kPublished = "\"Faux\",\"Vrai\",\"Faux\",\"Vrai\",\"Faux\",\"Vrai\",\"Faux\"\r\n";
const MenuMarks kPublishedMarks{false, true, false, true, false, true, false};

class SettingsFile : public ::testing::Test {
protected:
    QByteArray content() const {
        QFile file(folder_.filePath("Settings"));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("absent");
    }
    void put(const QByteArray& text) const {
        QFile file(folder_.filePath("Settings"));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        ASSERT_EQ(file.write(text), text.size());
    }
    std::optional<MenuMarks> readOf(const QByteArray& text) const {
        put(text);
        return readSettings(folder_.path());
    }

    QTemporaryDir folder_;
};

TEST_F(SettingsFile, SetsNothingWhenItIsMissing) {
    EXPECT_EQ(readSettings(folder_.path()), std::nullopt);
    EXPECT_EQ(readSettings("/nulle/part"), std::nullopt);
}

TEST_F(SettingsFile, BeginsWithTheOwnListTheDetailedReportsAndTheIntroduction) {
    EXPECT_EQ(MenuMarks(), (MenuMarks{true, false, true, false, true, false, true}));
    writeSettings(folder_.path(), {});
    EXPECT_EQ(content(), "\"Vrai\",\"Faux\",\"Vrai\",\"Faux\",\"Vrai\",\"Faux\",\"Vrai\"\r\n");
}

TEST_F(SettingsFile, ReadsEachItemIntoItsEntry) {
    for (int set = 0; set < 7; ++set) {
        QByteArrayList items(7, "\"Faux\"");
        items[set] = "\"Vrai\"";
        const auto marks = readOf(items.join(','));
        ASSERT_TRUE(marks);
        const bool entries[] = {marks->ownMorphology, marks->publishedMorphology, marks->laterDetailed,
                                marks->laterOther,    marks->firstDetailed,       marks->firstOther,
                                marks->introduction};
        for (int i = 0; i < 7; ++i) {
            EXPECT_EQ(entries[i], i == set) << i << ' ' << set;
        }
    }
}

TEST_F(SettingsFile, ReadsFrenchAndEnglishInAnyCaseWithOrWithoutQuotes) {
    EXPECT_EQ(readOf("\"FAUX\",\"vrai\",\"False\",\"TRUE\",\"faux\",\"True\",\"fAuX\"\n"), kPublishedMarks);
    EXPECT_EQ(readOf("Faux, Vrai, Faux, Vrai, Faux, Vrai, Faux"), kPublishedMarks);
}

TEST_F(SettingsFile, HoldsTheLastOfSeveralLines) {
    EXPECT_EQ(readOf("\"Vrai\",\"Faux\",\"Vrai\",\"Faux\",\"Vrai\",\"Faux\",\"Vrai\"\r\n" + kPublished + "\r\n"),
              kPublishedMarks);
}

TEST_F(SettingsFile, SetsNothingWhenItIsBroken) {
    for (const QByteArray text : {"", "\r\n", "\"Vrai\",\"Faux\",\"Vrai\",\"Faux\",\"Vrai\",\"Faux\"",
                                  "\"Vrai\",\"Faux\",\"Vrai\",\"peut-être\",\"Vrai\",\"Faux\",\"Vrai\"",
                                  "\"Vrai\",\"Faux\",\"Vrai\",\"\",\"Vrai\",\"Faux\",\"Vrai\"", "1,0,1,0,1,0,1",
                                  "\"Vrai;Faux;Vrai;Faux;Vrai;Faux;Vrai\"", "\xFF\xFE\x00\x01"}) {
        EXPECT_EQ(readOf(text), std::nullopt) << text.constData();
    }
    EXPECT_EQ(readOf(kPublished + "\"Vrai\"\r\n"), std::nullopt);
}

TEST_F(SettingsFile, IsWrittenFromOneEntryOfEachPair) {
    put(kPublished);
    writeSettings(folder_.path(), {.bourgeois = false,
                                   .laterDetailed = true,
                                   .firstDetailed = true,
                                   .laterIntroduction = true,
                                   .firstIntroduction = true});
    EXPECT_EQ(content(), "\"Vrai\",\"Faux\",\"Vrai\",\"Faux\",\"Vrai\",\"Faux\",\"Vrai\"\r\n");
    writeSettings(folder_.path(), {.bourgeois = true,
                                   .laterDetailed = false,
                                   .firstDetailed = false,
                                   .laterIntroduction = false,
                                   .firstIntroduction = false});
    EXPECT_EQ(content(), kPublished);
}

TEST_F(SettingsFile, StoresTheIntroductionOfTheFirstTrimester) {
    writeSettings(folder_.path(), {.laterIntroduction = true, .firstIntroduction = false});
    EXPECT_FALSE(readSettings(folder_.path())->introduction);
    writeSettings(folder_.path(), {.laterIntroduction = false, .firstIntroduction = true});
    EXPECT_TRUE(readSettings(folder_.path())->introduction);
    writeSettings(folder_.path(), {.laterIntroduction = false});
    EXPECT_FALSE(readSettings(folder_.path())->introduction);
}

TEST_F(SettingsFile, KeepsTheItemsOfWindowsThatAreNotLoaded) {
    put(kPublished);
    writeSettings(folder_.path(), {.firstDetailed = true});
    EXPECT_EQ(content(), "\"Faux\",\"Vrai\",\"Faux\",\"Vrai\",\"Vrai\",\"Faux\",\"Faux\"\r\n");
    writeSettings(folder_.path(), {.bourgeois = false, .laterDetailed = true});
    EXPECT_EQ(content(), "\"Vrai\",\"Faux\",\"Vrai\",\"Faux\",\"Vrai\",\"Faux\",\"Faux\"\r\n");
}

TEST_F(SettingsFile, IsWrittenWholeOverABrokenOne) {
    put("\"Vrai\",\"Faux\"");
    writeSettings(folder_.path(), {.bourgeois = true});
    EXPECT_EQ(content(), "\"Faux\",\"Vrai\",\"Vrai\",\"Faux\",\"Vrai\",\"Faux\",\"Vrai\"\r\n");
}

TEST_F(SettingsFile, SaysNothingWhenItCannotBeWritten) {
    writeSettings("/dev/null", {.bourgeois = true});
    QDir(folder_.path()).mkdir("Settings");
    writeSettings(folder_.path(), {.bourgeois = true});
    EXPECT_TRUE(QFileInfo(folder_.filePath("Settings")).isDir());
    EXPECT_EQ(readSettings(folder_.path()), std::nullopt);
}

TEST_F(SettingsFile, StaysAsItWasWhenTheDiskIsFull) {
    put(kPublished);
    std::signal(SIGXFSZ, SIG_IGN);
    rlimit old{};
    getrlimit(RLIMIT_FSIZE, &old);
    for (const rlim_t room : {rlim_t{0}, rlim_t{20}}) {
        rlimit small = old;
        small.rlim_cur = room;
        setrlimit(RLIMIT_FSIZE, &small);
        writeSettings(folder_.path(), {.bourgeois = false});
        setrlimit(RLIMIT_FSIZE, &old);
        EXPECT_EQ(content(), kPublished);
    }
    EXPECT_EQ(QDir(folder_.path()).entryList(QDir::Files | QDir::Hidden), QStringList({"Settings"}));
}

}  // namespace
}  // namespace exams
