#pragma once

#include <QByteArray>
#include <QString>
#include <functional>

#include "store/schema.h"

namespace store {

/// What a snapshot is busy with.
enum class SnapshotStep { Copying, Checking };

/// Told again and again while a snapshot is made: what it is busy with, and how far that is, from 0 to 100.
using SnapshotProgress = std::function<void(SnapshotStep, int percent)>;

/// A copy of a database file as it was at one moment, whatever other stations write meanwhile. It stands beside its
/// target under a name of its own, readable by its owner only, flushed to the disk and checked; its target is not
/// touched before `publish`.
class Snapshot {
public:
    /// Copies the file at `source`, of this kind. While it copies, other stations read the file, and their saves wait.
    /// Throws as `Database::open` does; UnknownFormat if the file is of another kind, or if it is damaged;
    /// PermissionDenied if `target` is `source` itself; PathNotFound, PermissionDenied or DiskFull if the copy can't be
    /// written.
    Snapshot(const QString& source, FileKind kind, const QString& target, const SnapshotProgress& progress = {});
    /// Removes a copy that was not published.
    ~Snapshot();
    Snapshot(Snapshot&& other) noexcept;
    Snapshot& operator=(Snapshot&&) = delete;

    /// Gives the copy its target's name; a file of that name is replaced. No other station may have that file open.
    /// Throws PermissionDenied, DeviceError.
    void publish();

private:
    void copy(const QString& source, FileKind kind, const SnapshotProgress& progress) const;
    void check() const;

    QByteArray target_;
    QByteArray temporary_;
};

/// Whether two paths lead to one file. False if one of them leads to none.
bool isSameFile(const QString& one, const QString& other);

}  // namespace store
