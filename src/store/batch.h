#pragma once

#include <QString>
#include <memory>

namespace store {

class Connection;

/// Writes many records of one file as one: all of them are on the disk when `commit` has returned, and none stays if
/// the batch ends before. Meanwhile other stations read the file but can't write it.
class Batch {
public:
    /// Begins on the file at this path. Throws as `Database::open` does, and RecordLocked or ReadOnly.
    explicit Batch(const QString& path);
    ~Batch();
    Batch(const Batch&) = delete;
    Batch& operator=(const Batch&) = delete;

    /// Throws DiskFull, RecordLocked, DeviceError.
    void commit();

private:
    std::shared_ptr<Connection> connection_;
    bool pending_ = false;
};

}  // namespace store
