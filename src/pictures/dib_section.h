#pragma once

#include <QImage>
#include <QPainter>

namespace pictures {

/// A bitmap of 24 bits a pixel that is held in memory, with direct access to its rows: 3 bytes a pixel in the order
/// blue, green, red, each row padded to a multiple of 4 bytes, the top row first. Empty at first.
class cDIBSection {
public:
    /// The longest side that a bitmap may have, in pixels.
    static constexpr int kLongestSide = 65500;

    /// Lets go of what it holds and makes a bitmap of this size, white. False, and nothing held, for a size that is no
    /// size or too large.
    bool Create(int width, int height);
    /// The bitmap of a picture; what shows through the picture is white. False, and nothing held, for an empty picture.
    bool CreateFromPicture(const QImage& picture);
    /// Copies a part of a picture to the top left corner. A negative width or height means that of the whole bitmap.
    void LoadPictureBlt(const QImage& source, QPoint from = {}, QSize size = kWhole,
                        QPainter::CompositionMode operation = QPainter::CompositionMode_Source);
    /// Copies a part of the bitmap onto a surface, with the same convention.
    void PaintPicture(QPainter& surface, QPoint to = {}, QSize size = kWhole, QPoint from = {},
                      QPainter::CompositionMode operation = QPainter::CompositionMode_Source) const;
    /// Lets go of the bitmap.
    void ClearUp() { bitmap_ = {}; }

    bool empty() const { return bitmap_.isNull(); }
    int Width() const { return bitmap_.width(); }
    int Height() const { return bitmap_.height(); }
    int BytesPerScanLine() const { return static_cast<int>(bitmap_.bytesPerLine()); }
    /// The first byte of the rows; null if it is empty. Reading through it copies nothing.
    const uchar* DIBSectionBitsPtr() const { return bitmap_.constBits(); }

private:
    static constexpr QSize kWhole{-1, -1};
    QSize sizeOf(QSize wanted) const;
    /// Holds a bitmap of this size with whatever its memory holds.
    bool hold(QSize size);

    QImage bitmap_;
};

}  // namespace pictures
