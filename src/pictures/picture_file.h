#pragma once

#include <QImage>
#include <QSize>
#include <QString>

namespace pictures {

/// The largest picture that is read, in pixels. A larger one is refused before any of it is decoded.
inline constexpr qint64 kMostPixels = 64'000'000;
/// The largest file that is read, in bytes.
inline constexpr qint64 kMostBytes = 512LL * 1024 * 1024;

/// Reads a picture file: BMP, JPEG or ICO, whichever its content is, whatever its name says. An empty path is the empty
/// picture.
///
/// Throws FileNotFound (53) if there is no such file, PathNotFound (76) if there is no such folder, PermissionDenied
/// (70) if it can't be opened, InvalidPicture (481) for anything that is no sound picture: another format, a folder or
/// a pipe, a file cut short, more than kMostPixels.
QImage loadPicture(const QString& path);

/// The same at the largest size that fits into `box` (pixels) in its own shape; a smaller picture stays as it is.
QImage loadThumbnail(const QString& path, QSize box);

}  // namespace pictures
