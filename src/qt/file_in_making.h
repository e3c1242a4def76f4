#pragma once

#include <QString>
#include <QTemporaryFile>

namespace qt {

/// A file under a name of its own beside the wanted one until it is whole: what stands in its place stays till then.
class FileInMaking {
public:
    /// Throws DeviceError if no file can be made there.
    explicit FileInMaking(const QString& wanted);

    QTemporaryFile& file() { return making_; }
    QString wanted() const { return wanted_; }
    /// Puts it in its place, with the permissions of what stood there. Throws DeviceError.
    void publish();

private:
    QString wanted_;
    QTemporaryFile making_;
};

}  // namespace qt
