#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QImage>
#include <QSize>
#include <memory>

namespace pictures {

/// What became of a JPEG text.
struct DecodedJpeg {
    enum class Outcome {
        Whole,
        /// Cut short or damaged: part of the picture is missing.
        Damaged,
        /// Sound as far as one can tell, in colours that only a full reader knows (four inks).
        Unsupported
    };
    Outcome outcome = Outcome::Damaged;
    QImage picture;
};

/// Reads a JPEG at the smallest of its own scales (eighths) that is not smaller than `wanted` on either side; an empty
/// `wanted` is full size. The picture is in Format_RGB32.
DecodedJpeg decodeJpeg(const QByteArray& bytes, QSize wanted = {});

/// Pixels of 24 bits, blue first, row under row.
struct PixelRows {
    const uchar* first = nullptr;
    int width = 0;
    int height = 0;
    int bytesPerLine = 0;
};

/// The bytes of a JPEG file.
class JpegBytes {
public:
    JpegBytes() = default;
    JpegBytes(uchar* data, qsizetype size, void (*release)(uchar*)) : data_(data, release), size_(size) {}

    bool empty() const { return size_ == 0; }
    QByteArrayView bytes() const { return {data_.get(), size_}; }

private:
    std::unique_ptr<uchar, void (*)(uchar*)> data_{nullptr, [](uchar*) {}};
    qsizetype size_ = 0;
};

/// Makes JPEG files of pixels.
class JpegEncoder {
public:
    JpegEncoder();

    /// Whether the library could be started.
    bool ready() const { return handle_ != nullptr; }
    /// Encodes pixels where they lie, nothing of them is copied. `quality` goes from 1 to 100, 0 counts for 1. Nothing
    /// if it isn't ready, there are no pixels, a side is longer than 65500, or the quality is another.
    JpegBytes encode(const PixelRows& rows, int quality) const;

private:
    std::unique_ptr<void, void (*)(void*)> handle_;
};

}  // namespace pictures
