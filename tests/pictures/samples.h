#pragma once

#include <QFile>
#include <QImage>
#include <QString>

namespace pictures {

/// Grey fields and one red corner: enough to know it again after JPEG.
inline QImage sample(int width, int height) {
    QImage image(width, height, QImage::Format_RGB32);
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            const int grey = (x / 16 + y / 16) % 2 ? 40 : 200;
            image.setPixel(x, y, x < width / 2 && y < height / 2 ? qRgb(220, 30, 30) : qRgb(grey, grey, grey));
        }
    }
    return image;
}

inline bool alike(QRgb a, QRgb b, int tolerance = 12) {
    return qAbs(qRed(a) - qRed(b)) <= tolerance && qAbs(qGreen(a) - qGreen(b)) <= tolerance &&
           qAbs(qBlue(a) - qBlue(b)) <= tolerance;
}

inline QImage plain(QColor color, int width = 72, int height = 58) {
    QImage image(width, height, QImage::Format_RGB32);
    image.fill(color);
    return image;
}

inline QByteArray bytesOf(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

inline void put(const QString& path, const QByteArray& bytes) {
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size()) {
        qFatal("a sample file can't be written");
    }
}

}  // namespace pictures
