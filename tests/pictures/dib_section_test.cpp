#include "pictures/dib_section.h"

#include <gtest/gtest.h>

#include "pictures/samples.h"

namespace pictures {
namespace {

TEST(DibSection, ARowIsThreeBytesAPixelRoundedUpToFour) {
    cDIBSection bitmap;
    ASSERT_TRUE(bitmap.Create(719, 2));
    EXPECT_EQ(bitmap.Width(), 719);
    EXPECT_EQ(bitmap.Height(), 2);
    EXPECT_EQ(bitmap.BytesPerScanLine(), 2160);
    const QList<std::pair<int, int>> rows{{1, 4}, {2, 8}, {3, 12}, {4, 12}, {720, 2160}};
    for (const auto& [width, bytes] : rows) {
        ASSERT_TRUE(bitmap.Create(width, 1));
        EXPECT_EQ(bitmap.BytesPerScanLine(), bytes) << width;
    }
}

TEST(DibSection, IsEmptyAtFirstAndAfterClearUp) {
    cDIBSection bitmap;
    EXPECT_EQ(bitmap.DIBSectionBitsPtr(), nullptr);
    EXPECT_EQ(bitmap.Width(), 0);
    ASSERT_TRUE(bitmap.Create(8, 8));
    bitmap.ClearUp();
    EXPECT_TRUE(bitmap.empty());
    EXPECT_EQ(bitmap.DIBSectionBitsPtr(), nullptr);
}

TEST(DibSection, ASizeThatIsNoneLeavesItEmpty) {
    cDIBSection bitmap;
    const QList<QSize> refused{{0, 5}, {5, -1}, {65501, 1}, {70000, 70000}, {8001, 8000}};
    for (const QSize& size : refused) {
        ASSERT_TRUE(bitmap.Create(4, 4));
        EXPECT_FALSE(bitmap.Create(size.width(), size.height())) << size.width();
        EXPECT_TRUE(bitmap.empty());
    }
    EXPECT_FALSE(bitmap.CreateFromPicture({}));
    EXPECT_TRUE(bitmap.empty());
}

TEST(DibSection, APictureLiesInItsRowsAsBlueGreenRed) {
    QImage picture(2, 2, QImage::Format_RGB32);
    picture.fill(qRgb(1, 2, 3));
    picture.setPixel(1, 1, qRgb(10, 20, 30));
    cDIBSection bitmap;
    ASSERT_TRUE(bitmap.CreateFromPicture(picture));
    const uchar* rows = bitmap.DIBSectionBitsPtr();
    EXPECT_EQ(QByteArray(reinterpret_cast<const char*>(rows), 6), QByteArray("\x03\x02\x01\x03\x02\x01", 6));
    const uchar* last = rows + bitmap.BytesPerScanLine() + 3;
    EXPECT_EQ(QByteArray(reinterpret_cast<const char*>(last), 3), QByteArray("\x1e\x14\x0a", 3));
}

TEST(DibSection, EachPixelOfARowKeepsItsColourWhateverTheWidth) {
    for (int width = 1; width <= 13; ++width) {
        QImage picture(width, 3, QImage::Format_RGB32);
        for (int y = 0; y < 3; ++y) {
            for (int x = 0; x < width; ++x) {
                picture.setPixel(x, y, qRgb(x * 7 + y, 255 - x, x * 19 % 256));
            }
        }
        cDIBSection bitmap;
        ASSERT_TRUE(bitmap.CreateFromPicture(picture));
        for (int y = 0; y < 3; ++y) {
            for (int x = 0; x < width; ++x) {
                const uchar* at = bitmap.DIBSectionBitsPtr() + y * bitmap.BytesPerScanLine() + 3 * x;
                EXPECT_EQ(qRgb(at[2], at[1], at[0]), picture.pixel(x, y)) << width << ": " << x << ", " << y;
            }
        }
    }
}

TEST(DibSection, WhatShowsThroughAPictureIsWhite) {
    QImage icon(1, 1, QImage::Format_ARGB32);
    icon.fill(Qt::transparent);
    cDIBSection bitmap;
    ASSERT_TRUE(bitmap.CreateFromPicture(icon));
    EXPECT_EQ(bitmap.DIBSectionBitsPtr()[0], 255);
    EXPECT_EQ(bitmap.DIBSectionBitsPtr()[2], 255);
}

TEST(DibSection, ACopyReplacesWhatWasThereEvenWhereTheSourceShowsThrough) {
    QImage clear(1, 1, QImage::Format_ARGB32);
    clear.fill(Qt::transparent);
    cDIBSection bitmap;
    ASSERT_TRUE(bitmap.Create(2, 1));
    bitmap.LoadPictureBlt(clear, {}, QSize(1, 1));
    const uchar* row = bitmap.DIBSectionBitsPtr();
    EXPECT_EQ(QByteArray(reinterpret_cast<const char*>(row), 6), QByteArray("\x00\x00\x00\xff\xff\xff", 6));
}

TEST(DibSection, CopiesAPartInAndOut) {
    cDIBSection bitmap;
    ASSERT_TRUE(bitmap.Create(40, 40));
    // Four pixels of the red corner's lower right end, the rest of the bitmap stays white.
    bitmap.LoadPictureBlt(sample(64, 64), QPoint(30, 30), QSize(4, 4));
    QImage surface = plain(Qt::green, 50, 50);
    QPainter painter(&surface);
    bitmap.PaintPicture(painter, QPoint(5, 5));
    painter.end();
    EXPECT_EQ(surface.pixel(5, 5), qRgb(220, 30, 30));
    EXPECT_EQ(surface.pixel(7, 7), qRgb(200, 200, 200));
    EXPECT_EQ(surface.pixel(9, 9), qRgb(255, 255, 255));
    EXPECT_EQ(surface.pixel(44, 44), qRgb(255, 255, 255));
    EXPECT_EQ(surface.pixel(45, 45), qRgb(0, 255, 0));
    EXPECT_EQ(surface.pixel(4, 4), qRgb(0, 255, 0));
}

}  // namespace
}  // namespace pictures
