#include "pictures/picture_file.h"

#include <QBuffer>
#include <QFile>
#include <QFileInfo>
#include <QImageReader>
#include <QtEndian>
#include <array>

#include "base/errors.h"
#include "pictures/jpeg.h"

namespace pictures {
namespace {

using base::ErrorNumber;

constexpr int kMostMegabytes = 256;

[[noreturn]] void fail(ErrorNumber number, const QString& path) {
    throw base::RuntimeError(number, base::errorText(number, path));
}

// A pipe would keep its reader waiting for ever: only a plain file is opened.
QByteArray readPlainFile(const QString& path) {
    const QFileInfo info(path);
    if (!info.exists()) {
        fail(QFileInfo(info.path()).isDir() ? ErrorNumber::FileNotFound : ErrorNumber::PathNotFound, path);
    }
    if (!info.isFile() || info.size() > kMostBytes) {
        fail(ErrorNumber::InvalidPicture, path);
    }
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        fail(ErrorNumber::PermissionDenied, path);
    }
    QByteArray bytes = file.readAll();
    if (file.error() != QFileDevice::NoError) {
        fail(ErrorNumber::DeviceError, path);
    }
    return bytes;
}

bool readable(const QByteArray& format) {
    constexpr std::array kFormats{"bmp", "jpeg", "ico"};
    return std::find(kFormats.begin(), kFormats.end(), format) != kFormats.end();
}

bool sane(QSize size) {
    return size.width() > 0 && size.height() > 0 && qint64(size.width()) * size.height() <= kMostPixels;
}

template <class T>
T littleEndian(const QByteArray& bytes, int at) {
    return qFromLittleEndian<T>(bytes.constData() + at);
}

// Whether a bitmap of this size holds all its rows. The rows of a compressed one can't be counted.
bool holdsAllRows(const QByteArray& bytes, QSize size) {
    constexpr int kRowsAt = 10, kHeaderAt = 14, kHeaders = 54, kDepthAt = 28, kCompressionAt = 30;
    // The oldest kind of header is shorter, and knows no compression.
    constexpr quint32 kHeader = 40;
    constexpr int kOldHeaders = 26, kOldDepthAt = 24;
    const bool old = bytes.size() >= kOldHeaders && littleEndian<quint32>(bytes, kHeaderAt) < kHeader;
    if (bytes.size() < (old ? kOldHeaders : kHeaders)) {
        return false;
    }
    constexpr quint32 kRle8 = 1, kRle4 = 2;
    const quint32 compression = old ? 0 : littleEndian<quint32>(bytes, kCompressionAt);
    if (compression == kRle8 || compression == kRle4) {
        return true;
    }
    const qint64 bits = qint64(size.width()) * littleEndian<quint16>(bytes, old ? kOldDepthAt : kDepthAt);
    const qint64 row = (bits + 31) / 32 * 4;
    return littleEndian<quint32>(bytes, kRowsAt) + row * size.height() <= bytes.size();
}

QSize fitting(QSize size, QSize box) {
    const bool fits = box.isEmpty() || (size.width() <= box.width() && size.height() <= box.height());
    return fits ? size : size.scaled(box, Qt::KeepAspectRatio).expandedTo({1, 1});
}

QImage decode(QImageReader& reader, const QByteArray& bytes, QSize wanted) {
    if (reader.format() == "jpeg") {
        const DecodedJpeg jpeg = decodeJpeg(bytes, wanted);
        if (jpeg.outcome != DecodedJpeg::Outcome::Unsupported) {
            return jpeg.picture;
        }
    }
    if (reader.format() == "bmp" && !holdsAllRows(bytes, reader.size())) {
        return {};
    }
    QImage picture;
    return reader.read(&picture) ? picture : QImage();
}

QImage load(const QString& path, QSize box) {
    if (path.isEmpty()) {
        return {};
    }
    QByteArray bytes = readPlainFile(path);
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::ReadOnly);
    QImageReader::setAllocationLimit(kMostMegabytes);
    QImageReader reader(&buffer);
    reader.setDecideFormatFromContent(true);
    const QSize size = readable(reader.format()) ? reader.size() : QSize();
    const QSize wanted = fitting(size, box);
    const QImage picture = sane(size) ? decode(reader, bytes, wanted) : QImage();
    if (picture.isNull()) {
        fail(ErrorNumber::InvalidPicture, path);
    }
    return picture.size() == wanted ? picture : picture.scaled(wanted, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

}  // namespace

QImage loadPicture(const QString& path) {
    return load(path, {});
}

QImage loadThumbnail(const QString& path, QSize box) {
    return load(path, box);
}

}  // namespace pictures
