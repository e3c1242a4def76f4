#pragma once

#include <QString>

namespace responses {

/// The standard opening sentence of a report, kept in the text file `intro` of the program's own folder as one quoted
/// item.
class Introduction {
public:
    explicit Introduction(const QString& programFolder) : path_(programFolder + QStringLiteral("/intro")) {}

    /// The last item of the file; nothing if there is no file. Throws PermissionDenied or DeviceError if the file is
    /// there and can't be read.
    QString read() const;
    /// Replaces the file. Throws DiskFull, PermissionDenied or DeviceError; the old file is then whole.
    void write(const QString& text) const;

private:
    QString path_;
};

}  // namespace responses
