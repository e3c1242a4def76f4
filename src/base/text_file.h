#pragma once

#include <QString>

namespace base {

/// Bytes as text: UTF-8, with or without its mark; what is no UTF-8 is read as Windows-1252.
QString decodeText(const QByteArray& bytes);

/// The text of a file. Throws FileNotFound if there is none at this path, PermissionDenied or DeviceError if it can't
/// be read.
QString readTextFile(const QString& path);

/// Makes bytes the whole content of a file, which is written beside it and then takes its place: on any failure the old
/// file is whole. Throws DiskFull, PermissionDenied or DeviceError.
void replaceFile(const QString& path, const QByteArray& bytes);

/// The same with a text, in UTF-8.
void replaceTextFile(const QString& path, const QString& text);

}  // namespace base
