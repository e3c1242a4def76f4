#pragma once

#include <QImage>
#include <QString>

namespace pictures {

/// Saves a picture as a bitmap of 24 bits a pixel; what shows through it is white. On any failure a file of this name
/// stays as it was. Throws InvalidPicture for the empty picture, DeviceError if the file can't be written.
void savePicture(const QImage& picture, const QString& file);

/// The same for a temporary file, without care for what was there.
void saveSlot(const QImage& picture, const QString& file);

}  // namespace pictures
