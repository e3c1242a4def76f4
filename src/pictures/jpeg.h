#pragma once

#include <QByteArray>
#include <QImage>
#include <QSize>

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

}  // namespace pictures
