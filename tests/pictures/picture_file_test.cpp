#include "pictures/picture_file.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <QDir>
#include <QFile>
#include <QImageWriter>
#include <QTemporaryDir>
#include <QtEndian>

#include "base/errors.h"
#include "pictures/samples.h"

namespace pictures {
namespace {

class PictureFile : public ::testing::Test {
protected:
    QString path(const QString& name) const { return folder_.filePath(name); }

    QString put(const QString& name, const QByteArray& bytes) const {
        pictures::put(path(name), bytes);
        return path(name);
    }
    QByteArray bytesOf(const QString& name) const { return pictures::bytesOf(path(name)); }
    QString write(const QString& name, const char* format, const QImage& image = sample(160, 120)) const {
        QImageWriter writer(path(name), format);
        writer.setQuality(95);
        EXPECT_TRUE(writer.write(image));
        return path(name);
    }
    // The number of the error that loading ends with, 0 if it ends well.
    static int failure(const QString& path) {
        try {
            (void)loadPicture(path);
            return 0;
        } catch (const base::RuntimeError& error) {
            return static_cast<int>(error.number());
        }
    }

    QTemporaryDir folder_;
};

TEST_F(PictureFile, ABitmapComesBackPixelForPixel) {
    EXPECT_EQ(loadPicture(write("a.bmp", "bmp")).convertToFormat(QImage::Format_RGB32), sample(160, 120));
}

TEST_F(PictureFile, AJpegComesBackInItsSizeAndColours) {
    const QImage back = loadPicture(write("a.jpg", "jpg"));
    EXPECT_EQ(back.size(), QSize(160, 120));
    EXPECT_EQ(back.format(), QImage::Format_RGB32);
    EXPECT_TRUE(alike(back.pixel(20, 20), qRgb(220, 30, 30)));
    EXPECT_TRUE(alike(back.pixel(88, 72), qRgb(40, 40, 40)));
    EXPECT_TRUE(alike(back.pixel(104, 72), qRgb(200, 200, 200)));
}

TEST_F(PictureFile, AnIconOpens) {
    EXPECT_EQ(loadPicture(write("a.ico", "ico", sample(32, 32))).size(), QSize(32, 32));
}

TEST_F(PictureFile, GreyAndPalettedPicturesOpen) {
    write("grey.jpg", "jpg", sample(64, 48).convertToFormat(QImage::Format_Grayscale8));
    write("indexed.bmp", "bmp", sample(64, 48).convertToFormat(QImage::Format_Indexed8));
    write("mono.bmp", "bmp", sample(64, 48).convertToFormat(QImage::Format_Mono));
    for (const char* name : {"grey.jpg", "indexed.bmp", "mono.bmp"}) {
        EXPECT_EQ(loadPicture(path(name)).size(), QSize(64, 48)) << name;
    }
}

// The oldest kind of bitmap, with sizes of 16 bits: 3 x 2 pixels of 24 bits, in rows of 12 bytes from the bottom up.
QByteArray oldBitmap() {
    return QByteArray::fromHex(
        "424D32000000000000001A000000"
        "0C00000003000200010018"
        "00"
        "FF0000FF0000FF0000"
        "000000"
        "0000FF00FF00FFFFFF"
        "000000");
}

TEST_F(PictureFile, ABitmapOfTheOldestKindOpensWhenAllItsRowsAreThere) {
    const QImage picture = loadPicture(put("old.bmp", oldBitmap()));
    ASSERT_EQ(picture.size(), QSize(3, 2));
    EXPECT_EQ(picture.pixel(0, 0), qRgb(255, 0, 0));
    EXPECT_EQ(picture.pixel(1, 0), qRgb(0, 255, 0));
    EXPECT_EQ(picture.pixel(2, 1), qRgb(0, 0, 255));
    EXPECT_EQ(failure(put("cut.bmp", oldBitmap().chopped(1))), 481);
}

TEST_F(PictureFile, TheContentTellsTheFormatNotTheName) {
    EXPECT_EQ(loadPicture(write("bitmap.JPG", "bmp")).size(), QSize(160, 120));
    EXPECT_EQ(loadPicture(write("jpeg.BMP", "jpg")).size(), QSize(160, 120));
    EXPECT_EQ(failure(write("png.jpg", "png")), 481);
    EXPECT_EQ(failure(put("svg.bmp", "<svg xmlns='http://www.w3.org/2000/svg' width='4' height='4'/>")), 481);
}

TEST_F(PictureFile, NoPathIsTheEmptyPicture) {
    EXPECT_TRUE(loadPicture({}).isNull());
    EXPECT_TRUE(loadThumbnail({}, {20, 20}).isNull());
}

TEST_F(PictureFile, AMissingFileAndAMissingFolderAreToldApart) {
    EXPECT_EQ(failure(path("none.jpg")), 53);
    EXPECT_EQ(failure(path("nowhere/none.jpg")), 76);
}

TEST_F(PictureFile, AFolderAPipeAnEmptyFileAndATextAreNoPictures) {
    QDir(folder_.path()).mkdir("folder.jpg");
    ASSERT_EQ(mkfifo(QFile::encodeName(path("pipe.jpg")).constData(), 0600), 0);
    EXPECT_EQ(failure(path("folder.jpg")), 481);
    EXPECT_EQ(failure(path("pipe.jpg")), 481);
    EXPECT_EQ(failure(put("empty.jpg", {})), 481);
    EXPECT_EQ(failure(put("text.bmp", "BM is how a bitmap begins, but this is a text and goes on as one.......")), 481);
}

TEST_F(PictureFile, AFileCutShortIsRefusedWhereverItIsCut) {
    for (const char* format : {"jpg", "bmp"}) {
        const QString whole = QStringLiteral("whole.") + format;
        write(whole, format);
        const QByteArray bytes = bytesOf(whole);
        ASSERT_EQ(failure(path(whole)), 0);
        for (const int percent : {1, 10, 50, 90, 99}) {
            const QString cut = put("cut", bytes.left(bytes.size() * percent / 100));
            EXPECT_EQ(failure(cut), 481) << format << " " << percent << " %";
        }
    }
}

TEST_F(PictureFile, BytesAfterThePictureDoNoHarm) {
    write("a.jpg", "jpg");
    EXPECT_EQ(failure(put("more.jpg", bytesOf("a.jpg") + "and some more")), 0);
}

TEST_F(PictureFile, AHugePictureIsRefusedByItsHeaderAlone) {
    // 54 bytes that announce 60000 x 60000 pixels of 24 bits.
    write("small.bmp", "bmp");
    QByteArray bomb = bytesOf("small.bmp");
    qToLittleEndian<qint32>(60000, bomb.data() + 18);
    qToLittleEndian<qint32>(60000, bomb.data() + 22);
    EXPECT_EQ(failure(put("bomb.bmp", bomb)), 481);
    // The same of a JPEG: the sizes stand after the marker of the first frame.
    write("small.jpg", "jpg");
    QByteArray jpeg = bytesOf("small.jpg");
    const qsizetype frame = jpeg.indexOf("\xFF\xC0");
    ASSERT_GT(frame, 0);
    qToBigEndian<quint16>(60000, jpeg.data() + frame + 5);
    qToBigEndian<quint16>(60000, jpeg.data() + frame + 7);
    EXPECT_EQ(failure(put("bomb.jpg", jpeg)), 481);
}

TEST_F(PictureFile, AThumbnailFitsItsBoxInThePicturesOwnShape) {
    write("wide.jpg", "jpg", sample(1600, 400));
    write("wide.bmp", "bmp", sample(1600, 400));
    for (const char* name : {"wide.jpg", "wide.bmp"}) {
        const QImage small = loadThumbnail(path(name), {200, 150});
        EXPECT_EQ(small.size(), QSize(200, 50)) << name;
        EXPECT_TRUE(alike(small.pixel(20, 10), qRgb(220, 30, 30))) << name;
    }
}

TEST_F(PictureFile, AThumbnailIsNeverLargerThanThePicture) {
    EXPECT_EQ(loadThumbnail(write("a.jpg", "jpg"), {2000, 2000}).size(), QSize(160, 120));
}

TEST_F(PictureFile, AThumbnailShowsThePictureAsAFullReadScaledDownWould) {
    write("a.jpg", "jpg", sample(800, 600));
    const QImage direct = loadThumbnail(path("a.jpg"), {200, 150});
    const QImage full = loadPicture(path("a.jpg")).scaled(200, 150, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    ASSERT_EQ(direct.size(), full.size());
    for (int y = 2; y < 150; y += 4) {
        for (int x = 2; x < 200; x += 4) {
            ASSERT_TRUE(alike(direct.pixel(x, y), full.pixel(x, y), 16)) << x << ", " << y;
        }
    }
}

}  // namespace
}  // namespace pictures
