#include "pictures/bitmap_file.h"

#include <QBuffer>
#include <QPainter>

#include "base/errors.h"
#include "base/text_file.h"
#include "pictures/file_writing.h"

namespace pictures {
namespace {

// What shows through a picture is white, as on paper.
QImage opaque(const QImage& picture) {
    if (!picture.hasAlphaChannel()) {
        return picture.convertToFormat(QImage::Format_RGB32);
    }
    QImage paper(picture.size(), QImage::Format_RGB32);
    paper.fill(Qt::white);
    QPainter(&paper).drawImage(QPoint(), picture);
    return paper;
}

// In memory first: a writer of picture files doesn't tell of a full disk.
QByteArray bitmapOf(const QImage& picture) {
    if (picture.isNull()) {
        throw base::RuntimeError(base::ErrorNumber::InvalidPicture);
    }
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    opaque(picture).save(&buffer, "BMP");
    return bytes;
}

}  // namespace

void savePicture(const QImage& picture, const QString& file) {
    base::replaceFile(file, bitmapOf(picture));
}

void saveSlot(const QImage& picture, const QString& file) {
    if (!writePlainly(file, bitmapOf(picture))) {
        throw base::RuntimeError(base::ErrorNumber::DeviceError, base::errorText(base::ErrorNumber::DeviceError, file));
    }
}

}  // namespace pictures
