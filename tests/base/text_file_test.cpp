#include "base/text_file.h"

#include <gtest/gtest.h>
#include <sys/resource.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <csignal>
#include <functional>

#include "base/errors.h"

namespace base {
namespace {

QByteArray bytesOf(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("unreadable");
}

ErrorNumber failureOf(const std::function<void()>& step) {
    try {
        step();
    } catch (const RuntimeError& error) {
        return error.number();
    }
    return ErrorNumber{};
}

/// No file may grow while this lives: what a full disk comes to.
class NoRoom {
public:
    NoRoom() {
        getrlimit(RLIMIT_FSIZE, &before_);
        handler_ = std::signal(SIGXFSZ, SIG_IGN);
        rlimit none = before_;
        none.rlim_cur = 4;
        setrlimit(RLIMIT_FSIZE, &none);
    }
    ~NoRoom() {
        setrlimit(RLIMIT_FSIZE, &before_);
        std::signal(SIGXFSZ, handler_);
    }

private:
    rlimit before_{};
    void (*handler_)(int);
};

TEST(DecodeText, ReadsUtf8WithOrWithoutItsMark) {
    EXPECT_EQ(decodeText("\xC3\xA9t\xC3\xA9 \xC5\x93"), u"été œ");
    EXPECT_EQ(decodeText("\xEF\xBB\xBF\xC3\xA9"), u"é");
    EXPECT_EQ(decodeText(""), u"");
}

TEST(DecodeText, ReadsWindows1252) {
    EXPECT_EQ(decodeText("\xE9t\xE9"), u"été");
    EXPECT_EQ(decodeText("Echographie pass\xE9"), u"Echographie passé");
    EXPECT_EQ(decodeText("\x80 \x85 l\x92\x9Cuf \x8C \x9F\xFF"), u"€ … l’œuf Œ Ÿÿ");
}

TEST(ReplaceTextFile, WritesUtf8InPlaceOfTheOldFile) {
    const QTemporaryDir folder;
    const QString path = folder.filePath("intro");
    replaceTextFile(path, "un long premier texte");
    replaceTextFile(path, "été");
    EXPECT_EQ(bytesOf(path), "\xC3\xA9t\xC3\xA9");
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files | QDir::Hidden), QStringList("intro"));
}

TEST(ReplaceTextFile, LeavesTheOldFileWholeWhenThereIsNoRoom) {
    const QTemporaryDir folder;
    const QString path = folder.filePath("intro");
    replaceTextFile(path, "avant");
    ErrorNumber failure{};
    {
        const NoRoom full;
        failure = failureOf([&] { replaceTextFile(path, "un texte trop long"); });
    }
    EXPECT_NE(failure, ErrorNumber{});
    EXPECT_EQ(bytesOf(path), "avant");
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files | QDir::Hidden), QStringList("intro"));
}

TEST(ReplaceTextFile, TellsAFolderThatIsNotThere) {
    const QTemporaryDir folder;
    EXPECT_NE(failureOf([&] { replaceTextFile(folder.filePath("nulle/part"), "a"); }), ErrorNumber{});
}

TEST(ReadTextFile, TellsAFileThatIsNotThere) {
    const QTemporaryDir folder;
    EXPECT_EQ(failureOf([&] { readTextFile(folder.filePath("intro")); }), ErrorNumber::FileNotFound);
}

TEST(ReadTextFile, TellsWhatIsThereAndCannotBeRead) {
    const QTemporaryDir folder;
    QDir(folder.path()).mkdir("intro");
    EXPECT_EQ(failureOf([&] { readTextFile(folder.filePath("intro")); }), ErrorNumber::PermissionDenied);
}

}  // namespace
}  // namespace base
