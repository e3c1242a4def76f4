#include "ports/settings_file.h"

#include <gtest/gtest.h>
#include <sys/resource.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <csignal>

#include "base/errors.h"

namespace ports {
namespace {

class SettingsFileTest : public ::testing::Test {
protected:
    void put(const QString& key, const QString& value) { settings_.save("Marelles", "ECHO", key, value); }
    QString get(const QString& key, const QString& fallback = "absent") const {
        return settings_.read("MARELLES", "ECHO", key, fallback);
    }
    QByteArray content() const {
        QFile file(path_);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    void write(const QByteArray& text) const {
        QFile file(path_);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        ASSERT_EQ(file.write(text), text.size());
    }
    base::RuntimeError errorOf(const std::function<void()>& action) const {
        try {
            action();
        } catch (const base::RuntimeError& error) {
            return error;
        }
        ADD_FAILURE() << "no error";
        return base::RuntimeError(base::ErrorNumber::InvalidCall);
    }

    QTemporaryDir folder_;
    QString path_ = folder_.filePath("un dossier/réglages.ini");
    SettingsFile settings_{path_};
};

TEST_F(SettingsFileTest, GivesTheFallbackForWhatWasNeverSaved) {
    EXPECT_EQ(get("CHEMIN", "/programme"), "/programme");
    EXPECT_FALSE(settings_.has("MARELLES", "ECHO", "CHEMIN"));
    EXPECT_FALSE(QFile::exists(path_));
}

TEST_F(SettingsFileTest, FoldsTheCaseOfApplicationSectionAndKey) {
    settings_.save("Marelles", "Echo", "Chemciv", "/r/NOM.MDB");
    EXPECT_EQ(settings_.read("MARELLES", "ECHO", "CHEMCIV", "absent"), "/r/NOM.MDB");
    EXPECT_EQ(settings_.read("marelles", "echo", "chemciv", "absent"), "/r/NOM.MDB");
    settings_.save("MARELLES", "ECHO", "CHEMCIV", "/s/NOM.MDB");
    EXPECT_EQ(settings_.read("Marelles", "Echo", "Chemciv", "absent"), "/s/NOM.MDB");
    EXPECT_EQ(content().count("CHEMCIV"), 1);
}

TEST_F(SettingsFileTest, KeepsKeysOfOneBeginningApart) {
    put("Chemin", "un");
    put("Chemins", "deux");
    EXPECT_EQ(get("CHEMIN"), "un");
    EXPECT_EQ(get("CHEMINS"), "deux");
}

TEST_F(SettingsFileTest, KeepsApplicationsAndSectionsApart) {
    settings_.save("A", "S", "K", "1");
    settings_.save("A", "T", "K", "2");
    settings_.save("B", "S", "K", "3");
    EXPECT_EQ(settings_.read("A", "S", "K", {}), "1");
    EXPECT_EQ(settings_.read("A", "T", "K", {}), "2");
    EXPECT_EQ(settings_.read("B", "S", "K", {}), "3");
}

TEST_F(SettingsFileTest, ReadsAValueSavedEmptyAsEmpty) {
    put("CHEMINS", "");
    EXPECT_EQ(get("CHEMINS", "/programme"), "");
    EXPECT_TRUE(settings_.has("MARELLES", "ECHO", "CHEMINS"));
}

TEST_F(SettingsFileTest, BringsEveryTextBackUnchanged) {
    const QStringList values{"/a,b/ECHO.MDB",
                             R"(\\serveur\partage\NOM.MDB)",
                             R"(C:\nouveau\reçus\)",
                             "/mnt/Échographie/œuvre/100%25/%n.MDB",
                             "\"entre guillemets\"",
                             "  bords blancs\t",
                             ";point-virgule=égal#dièse",
                             "[crochets]",
                             "@ByteArray(x)",
                             "ligne 1\r\nligne 2\nligne 3",
                             "漢字 😀",
                             QString(5000, u'é')};
    for (qsizetype i = 0; i < values.size(); ++i) {
        put(QString("K%1").arg(i), values[i]);
    }
    const SettingsFile another(path_);
    for (qsizetype i = 0; i < values.size(); ++i) {
        EXPECT_EQ(another.read("MARELLES", "ECHO", QString("K%1").arg(i), "absent"), values[i]);
    }
}

TEST_F(SettingsFileTest, ReadsAFileTypedByHand) {
    QDir().mkpath(folder_.filePath("un dossier"));
    write(
        "\xEF\xBB\xBF; chemins du cabinet\r\n\r\n[marelles]\r\n# la base\r\necho\\chemin = /r/a,b/ECHO.MDB \r\n"
        "Echo\\Sauve=\r\n");
    EXPECT_EQ(get("CHEMIN"), "/r/a,b/ECHO.MDB");
    EXPECT_EQ(get("SAUVE"), "");
    put("CHEMINS", "/r/ECHOTEK.MDB");
    EXPECT_EQ(get("CHEMIN"), "/r/a,b/ECHO.MDB");
}

TEST_F(SettingsFileTest, IsReadableByItsOwnerOnly) {
    put("CHEMIN", "x");
    const auto others = QFile::ReadGroup | QFile::WriteGroup | QFile::ReadOther | QFile::WriteOther;
    EXPECT_FALSE(QFile::permissions(path_) & others);
    QFile::setPermissions(path_, QFile::permissions(path_) | QFile::ReadOther);
    put("CHEMIN", "y");
    EXPECT_FALSE(QFile::permissions(path_) & others);
}

TEST_F(SettingsFileTest, LeavesNothingBesideItself) {
    put("CHEMIN", "x");
    put("CHEMIN", "y");
    EXPECT_EQ(QDir(folder_.filePath("un dossier")).entryList(QDir::Files | QDir::Hidden),
              QStringList({"réglages.ini"}));
}

TEST_F(SettingsFileTest, TellsInFrenchThatItCannotBeWritten) {
    SettingsFile nowhere("/dev/null/veranox/reglages.ini");
    const base::RuntimeError error = errorOf([&] { nowhere.save("MARELLES", "ECHO", "CHEMIN", "x"); });
    EXPECT_EQ(error.number(), base::ErrorNumber::PermissionDenied);
    EXPECT_EQ(error.text(), "Les réglages ne peuvent pas être enregistrés dans /dev/null/veranox/reglages.ini.");
}

TEST_F(SettingsFileTest, TellsThatItCannotBeRead) {
    QDir().mkpath(path_);
    const base::RuntimeError error = errorOf([&] { get("CHEMIN"); });
    EXPECT_EQ(error.number(), base::ErrorNumber::PermissionDenied);
    EXPECT_TRUE(error.text().contains(path_));
}

TEST_F(SettingsFileTest, KeepsTheOldValuesWhenTheDiskIsFull) {
    put("CHEMIN", "/r/ECHO.MDB");
    const QByteArray before = content();
    std::signal(SIGXFSZ, SIG_IGN);
    rlimit old{};
    getrlimit(RLIMIT_FSIZE, &old);
    rlimit small = old;
    small.rlim_cur = 4096;
    setrlimit(RLIMIT_FSIZE, &small);
    const base::RuntimeError error = errorOf([&] { put("CHEMINS", QString(5000, u'x')); });
    setrlimit(RLIMIT_FSIZE, &old);
    EXPECT_EQ(error.number(), base::ErrorNumber::PermissionDenied);
    EXPECT_EQ(content(), before);
    EXPECT_EQ(get("CHEMIN"), "/r/ECHO.MDB");
}

class DamagedSettings : public SettingsFileTest, public ::testing::WithParamInterface<const char*> {
protected:
    void SetUp() override {
        QDir().mkpath(folder_.filePath("un dossier"));
        write(GetParam());
    }
};

TEST_P(DamagedSettings, AreToldAndNeverOverwritten) {
    for (const std::function<void()>& action :
         {std::function<void()>([&] { get("CHEMIN"); }), std::function<void()>([&] { put("CHEMIN", "x"); }),
          std::function<void()>([&] { settings_.has("MARELLES", "ECHO", "CHEMIN"); })}) {
        const base::RuntimeError error = errorOf(action);
        EXPECT_EQ(error.number(), base::ErrorNumber::UnknownFormat);
        EXPECT_TRUE(error.text().contains(path_));
    }
    EXPECT_EQ(content(), QByteArray(GetParam()));
}

TEST_P(DamagedSettings, AreSetAsideOnceAndKept) {
    const QString aside = settings_.setDamagedAside();
    EXPECT_EQ(aside, path_ + ".endommage");
    EXPECT_FALSE(QFile::exists(path_));
    QFile kept(aside);
    ASSERT_TRUE(kept.open(QIODevice::ReadOnly));
    EXPECT_EQ(kept.readAll(), QByteArray(GetParam()));
    EXPECT_EQ(get("CHEMIN", "/programme"), "/programme");
    put("CHEMIN", "/r/ECHO.MDB");
    EXPECT_EQ(settings_.setDamagedAside(), "");
    EXPECT_EQ(get("CHEMIN"), "/r/ECHO.MDB");
    write(GetParam());
    EXPECT_EQ(settings_.setDamagedAside(), path_ + ".endommage-2");
    EXPECT_TRUE(QFile::exists(path_ + ".endommage"));
}

INSTANTIATE_TEST_SUITE_P(Texts, DamagedSettings,
                         ::testing::Values("[MARELLES]\nECHO\\CHEMIN=\"/r/ECHO",
                                           "[MARELLES]\nECHO\\CHEMIN=\"/r/ECHO.MDB\"queue\n",
                                           "[MARELLES]\nECHO\\CHEMIN /r/ECHO.MDB\n", "[MARELLES]\n=x\n",
                                           "CHEMIN=\"sans section\"\n", "[MARELLES]\nECHO\\CHEMIN=\"\xE9\"\n",
                                           "\x01\x02\x7F"));

TEST_F(SettingsFileTest, TakesBlankedBytesForDamageAndAnEmptyFileForNone) {
    QDir().mkpath(folder_.filePath("un dossier"));
    write(QByteArray(64, '\0'));
    EXPECT_EQ(errorOf([&] { get("CHEMIN"); }).number(), base::ErrorNumber::UnknownFormat);
    write("");
    EXPECT_EQ(get("CHEMIN"), "absent");
}

class NotingBoxes final : public Boxes {
public:
    void message(const QString& text, Icon icon) override {
        said << text;
        EXPECT_EQ(icon, Icon::Exclamation);
    }
    bool ask(const QString&, Icon, const Asking&) override { return false; }
    void report(const base::RuntimeError&) override {}
    QStringList said;
};

TEST_F(SettingsFileTest, SaysAtTheStartWhereADamagedFileWent) {
    NotingBoxes boxes;
    renewDamaged(settings_, boxes);
    put("CHEMIN", "x");
    renewDamaged(settings_, boxes);
    EXPECT_TRUE(boxes.said.isEmpty());
    write("?");
    renewDamaged(settings_, boxes);
    ASSERT_EQ(boxes.said.size(), 1);
    EXPECT_TRUE(boxes.said.first().contains(path_ + ".endommage"));
    EXPECT_TRUE(boxes.said.first().contains("SUPERVISEUR"));
}

}  // namespace
}  // namespace ports
