#include "pictures/jpeg_library.h"

#include <dlfcn.h>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QDir>
#include <QTemporaryDir>
#include <csignal>

#include "base/errors.h"
#include "pictures/file_writing.h"
#include "pictures/picture_file.h"
#include "pictures/samples.h"

namespace {

bool encoderStarts = true;

}  // namespace

// Stands in front of the library's own function, to refuse what it refuses only on a machine without memory.
extern "C" void* tjInitCompress();
extern "C" void* tjInitCompress() {
    static const auto real = reinterpret_cast<void* (*)()>(::dlsym(RTLD_NEXT, "tjInitCompress"));
    return encoderStarts ? real() : nullptr;
}

namespace pictures {
namespace {

/// While it lives, no file of this process may grow beyond a size: a disk that is full.
class FullDisk {
public:
    explicit FullDisk(rlim_t bytes) {
        ::getrlimit(RLIMIT_FSIZE, &before_);
        rlimit now = before_;
        now.rlim_cur = bytes;
        ::setrlimit(RLIMIT_FSIZE, &now);
        std::signal(SIGXFSZ, SIG_IGN);
    }
    ~FullDisk() {
        ::setrlimit(RLIMIT_FSIZE, &before_);
        std::signal(SIGXFSZ, SIG_DFL);
    }
    FullDisk(const FullDisk&) = delete;
    FullDisk& operator=(const FullDisk&) = delete;

private:
    rlimit before_{};
};

class JpegLibrary : public ::testing::Test {
protected:
    JpegLibrary() { bitmap_.CreateFromPicture(sample(160, 120)); }

    QString path(const QString& name) const { return folder_.filePath(name); }
    bool save(const QString& file, int quality = 90) const {
        return mIntelJPEGLibrary::SaveJPG(bitmap_, file, quality);
    }
    // What the error that saving ends with says; empty if it ends well.
    QString failure(const QString& file, int quality = 90) const {
        try {
            save(file, quality);
            return {};
        } catch (const base::RuntimeError& error) {
            EXPECT_EQ(error.number(), base::ErrorNumber::JpegSave);
            return error.text();
        }
    }
    static struct statx factsOf(const QString& file) {
        struct statx facts {};
        EXPECT_EQ(::statx(AT_FDCWD, QFile::encodeName(file).constData(), 0, STATX_ALL, &facts), 0);
        return facts;
    }
    QStringList files() const { return QDir(folder_.path()).entryList(QDir::Files | QDir::Hidden); }

    QTemporaryDir folder_;
    cDIBSection bitmap_;
};

TEST_F(JpegLibrary, SavesThePictureTheRightWayUp) {
    EXPECT_TRUE(save(path("a.jpg")));
    const QImage back = loadPicture(path("a.jpg"));
    ASSERT_EQ(back.size(), QSize(160, 120));
    EXPECT_TRUE(alike(back.pixel(20, 20), qRgb(220, 30, 30)));
    EXPECT_TRUE(alike(back.pixel(88, 72), qRgb(40, 40, 40)));
    EXPECT_TRUE(bytesOf(path("a.jpg")).startsWith("\xFF\xD8\xFF"));
    EXPECT_EQ(files(), QStringList({"a.jpg"}));
}

TEST_F(JpegLibrary, PaddedRowsAreNotPartOfThePicture) {
    bitmap_.CreateFromPicture(sample(161, 50));
    save(path("a.jpg"));
    const QImage back = loadPicture(path("a.jpg"));
    ASSERT_EQ(back.size(), QSize(161, 50));
    EXPECT_TRUE(alike(back.pixel(20, 20), qRgb(220, 30, 30)));
}

TEST_F(JpegLibrary, ALowerQualityMakesASmallerFile) {
    save(path("high.jpg"), 90);
    save(path("low.jpg"), 20);
    EXPECT_LT(bytesOf(path("low.jpg")).size(), bytesOf(path("high.jpg")).size());
}

TEST_F(JpegLibrary, AQualityOfNoughtIsTheLowestOne) {
    save(path("one.jpg"), 1);
    save(path("nought.jpg"), 0);
    EXPECT_EQ(bytesOf(path("nought.jpg")), bytesOf(path("one.jpg")));
}

TEST_F(JpegLibrary, AQualityThatIsNoneIsRefusedAndNothingIsWritten) {
    for (const int quality : {101, 500, -1, -50}) {
        EXPECT_EQ(failure(path("a.jpg"), quality), "Failed to save to JPG -1") << quality;
    }
    EXPECT_EQ(files(), QStringList());
}

TEST_F(JpegLibrary, AnEncoderThatCantBeStartedIsToldAndLeavesTheOldFile) {
    put(path("old.jpg"), "old");
    encoderStarts = false;
    const QString told = failure(path("old.jpg"));
    encoderStarts = true;
    EXPECT_EQ(told, "Failed to initialise the IJL library: -1");
    EXPECT_EQ(bytesOf(path("old.jpg")), "old");
    EXPECT_EQ(failure(path("old.jpg")), "");
}

TEST_F(JpegLibrary, ANameThatGoesOnBehindANullCharacterIsRefused) {
    put(path("old.jpg"), "old");
    EXPECT_EQ(failure(path("old.jpg") + QChar(0) + ".jpg"), "Failed to save to JPG -2");
    EXPECT_EQ(bytesOf(path("old.jpg")), "old");
    EXPECT_EQ(files(), QStringList({"old.jpg"}));
}

TEST_F(JpegLibrary, WhatLiesUnderThePassingNameIsNotWrittenInto) {
    put(path("other.txt"), "other");
    const QString passing = path(QStringLiteral(".a.jpg.%1.nouveau").arg(::getpid()));
    ASSERT_TRUE(QFile::link(path("other.txt"), passing));
    EXPECT_TRUE(save(path("a.jpg")));
    EXPECT_EQ(bytesOf(path("other.txt")), "other");
    EXPECT_EQ(files(), QStringList({"a.jpg", "other.txt"}));
}

TEST_F(JpegLibrary, WithoutAPictureNothingIsSaved) {
    bitmap_.ClearUp();
    EXPECT_EQ(failure(path("a.jpg")), "Failed to save to JPG -1");
    EXPECT_EQ(files(), QStringList());
}

TEST_F(JpegLibrary, AReplacedFileKeepsItsTimesAndAttributesAndHasTheNewContent) {
    const QString file = path("old.jpg");
    put(file, "the old content, which is no picture");
    const QByteArray name = QFile::encodeName(file);
    ASSERT_EQ(::chmod(name.constData(), 0640), 0);
    const timespec times[2] = {{1016200000, 111}, {1016203600, 222}};
    ASSERT_EQ(::utimensat(AT_FDCWD, name.constData(), times, 0), 0);
    const struct statx before = factsOf(file);
    EXPECT_TRUE(save(file));
    const struct statx after = factsOf(file);
    EXPECT_EQ(after.stx_atime.tv_sec, 1016200000);
    EXPECT_EQ(after.stx_atime.tv_nsec, 111U);
    EXPECT_EQ(after.stx_mtime.tv_sec, 1016203600);
    EXPECT_EQ(after.stx_mtime.tv_nsec, 222U);
    EXPECT_EQ(after.stx_btime.tv_sec, before.stx_btime.tv_sec);
    EXPECT_EQ(after.stx_btime.tv_nsec, before.stx_btime.tv_nsec);
    EXPECT_EQ(after.stx_ino, before.stx_ino);
    EXPECT_EQ(after.stx_mode & 07777, 0640);
    EXPECT_EQ(loadPicture(file).size(), QSize(160, 120));
    EXPECT_EQ(files(), QStringList({"old.jpg"}));
}

TEST_F(JpegLibrary, AReadOnlyFileIsReplacedAndStaysReadOnly) {
    const QString file = path("locked.jpg");
    put(file, "old");
    ASSERT_EQ(::chmod(QFile::encodeName(file).constData(), 0444), 0);
    EXPECT_TRUE(save(file));
    EXPECT_EQ(factsOf(file).stx_mode & 07777, 0444);
    EXPECT_EQ(loadPicture(file).size(), QSize(160, 120));
}

TEST_F(JpegLibrary, AnotherNameOfTheFileSeesTheNewPicture) {
    put(path("old.jpg"), "old");
    ASSERT_TRUE(QFile::link(path("old.jpg"), path("link.jpg")));
    ASSERT_EQ(::link(QFile::encodeName(path("old.jpg")).constData(), QFile::encodeName(path("hard.jpg")).constData()),
              0);
    EXPECT_TRUE(save(path("link.jpg")));
    EXPECT_EQ(loadPicture(path("old.jpg")).size(), QSize(160, 120));
    EXPECT_EQ(loadPicture(path("hard.jpg")).size(), QSize(160, 120));
    EXPECT_TRUE(QFileInfo(path("link.jpg")).isSymLink());
}

TEST_F(JpegLibrary, ALongerOldFileLeavesNoRest) {
    put(path("long.jpg"), QByteArray(500000, 'x'));
    save(path("long.jpg"));
    save(path("new.jpg"));
    EXPECT_EQ(bytesOf(path("long.jpg")), bytesOf(path("new.jpg")));
}

TEST_F(JpegLibrary, ARefusedQualityLeavesTheOldFile) {
    put(path("old.jpg"), "old");
    EXPECT_EQ(failure(path("old.jpg"), 101), "Failed to save to JPG -1");
    EXPECT_EQ(bytesOf(path("old.jpg")), "old");
}

TEST_F(JpegLibrary, AFullDiskLeavesTheOldFileAndNoTrace) {
    const QByteArray old(300, 'o');
    put(path("old.jpg"), old);
    const struct statx before = factsOf(path("old.jpg"));
    {
        const FullDisk full(400);
        EXPECT_EQ(failure(path("old.jpg")), "Failed to save to JPG -2");
        EXPECT_EQ(failure(path("new.jpg")), "Failed to save to JPG -2");
    }
    EXPECT_EQ(bytesOf(path("old.jpg")), old);
    EXPECT_EQ(factsOf(path("old.jpg")).stx_mtime.tv_nsec, before.stx_mtime.tv_nsec);
    EXPECT_EQ(files(), QStringList({"old.jpg"}));
}

TEST_F(JpegLibrary, AFolderThatIsMissingAFolderOfThatNameAndAPipeAreErrors) {
    QDir(folder_.path()).mkdir("folder.jpg");
    ASSERT_EQ(::mkfifo(QFile::encodeName(path("pipe.jpg")).constData(), 0600), 0);
    EXPECT_EQ(failure(path("nowhere/a.jpg")), "Failed to save to JPG -2");
    EXPECT_EQ(failure(path("folder.jpg")), "Failed to save to JPG -2");
    EXPECT_EQ(failure(path("pipe.jpg")), "Failed to save to JPG -2");
    EXPECT_EQ(failure({}), "Failed to save to JPG -2");
}

TEST_F(JpegLibrary, ANewFileGetsTheUsualAttributes) {
    put(path("usual"), "x");
    save(path("a.jpg"));
    EXPECT_EQ(factsOf(path("a.jpg")).stx_mode, factsOf(path("usual")).stx_mode);
}

TEST_F(JpegLibrary, AccentsAndBlanksMayStandInTheName) {
    EXPECT_TRUE(save(path("Échographie du 5 avril.jpg")));
    EXPECT_EQ(files(), QStringList({"Échographie du 5 avril.jpg"}));
}

TEST_F(JpegLibrary, APlainWriteSaysWhenTheDiskIsFull) {
    EXPECT_TRUE(writePlainly(path("slot.bmp"), QByteArray(1000, 'x')));
    const FullDisk full(400);
    EXPECT_FALSE(writePlainly(path("slot.bmp"), QByteArray(1000, 'y')));
    EXPECT_FALSE(writePlainly(path("nowhere/slot.bmp"), "x"));
}

}  // namespace
}  // namespace pictures
