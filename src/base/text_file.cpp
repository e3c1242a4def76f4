#include "base/text_file.h"

#include <QFile>
#include <QSaveFile>
#include <QStringDecoder>

#include "base/errors.h"

namespace base {
namespace {

// What Windows-1252 has from 0x80 to 0x9F; the five places without a letter keep their number.
constexpr char16_t kWindowsLetters[32] = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178,
};

QString fromWindows(const QByteArray& bytes) {
    QString text = QString::fromLatin1(bytes);
    for (QChar& c : text) {
        if (c >= QChar(0x80) && c < QChar(0xA0)) {
            c = QChar(kWindowsLetters[c.unicode() - 0x80]);
        }
    }
    return text;
}

[[noreturn]] void failAt(ErrorNumber number, const QString& path) {
    throw RuntimeError(number, errorText(number, path));
}

ErrorNumber writeFailure(QFileDevice::FileError error) {
    switch (error) {
        case QFileDevice::ResourceError:
            return ErrorNumber::DiskFull;
        case QFileDevice::OpenError:
        case QFileDevice::PermissionsError:
            return ErrorNumber::PermissionDenied;
        default:
            return ErrorNumber::DeviceError;
    }
}

}  // namespace

QString decodeText(const QByteArray& bytes) {
    QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    const QString text = decoder.decode(bytes);
    return decoder.hasError() ? fromWindows(bytes) : text;
}

QString readTextFile(const QString& path) {
    QFile file(path);
    if (!file.exists()) {
        failAt(ErrorNumber::FileNotFound, path);
    }
    if (!file.open(QIODevice::ReadOnly)) {
        failAt(ErrorNumber::PermissionDenied, path);
    }
    const QByteArray bytes = file.readAll();
    if (file.error() != QFileDevice::NoError) {
        failAt(ErrorNumber::DeviceError, path);
    }
    return decodeText(bytes);
}

void replaceFile(const QString& path, const QByteArray& bytes) {
    QSaveFile file(path);
    // Unbuffered: a write that fails while a buffer is flushed would go unseen.
    const bool written = file.open(QIODevice::WriteOnly | QIODevice::Unbuffered) && file.write(bytes) == bytes.size();
    const ErrorNumber failure = writeFailure(file.error());
    if (!written) {
        file.cancelWriting();
        failAt(failure, path);
    }
    if (!file.commit()) {
        failAt(writeFailure(file.error()), path);
    }
}

void replaceTextFile(const QString& path, const QString& text) {
    replaceFile(path, text.toUtf8());
}

}  // namespace base
