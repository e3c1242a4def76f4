#pragma once

#include <QString>
#include <memory>

#include "store/schema.h"

namespace store {

class Connection;
class Recordset;

/// A handle on one database file. Handles on one file share a connection; the last one that goes releases it. A handle
/// may stand on nothing, and one that was closed stays so.
class Database {
public:
    Database() = default;

    /// Opens the file at `path`, a full path of the machine. Never makes a file. Throws DatabaseNotFound,
    /// UnknownFormat (foreign, empty, truncated or newer file), PermissionDenied or RecordLocked.
    static Database open(const QString& path);

    /// Closes the file for every handle and cursor on it: from then on each use of them throws ObjectClosed. Throws
    /// ObjectNotSet for a handle on nothing and ObjectClosed for one that is closed already.
    void close();

    /// Whether the handle stands on an open file.
    bool isOpen() const;

    /// Which of the four files it is. Throws ObjectNotSet, ObjectClosed.
    FileKind kind() const;

    /// An updatable cursor over the rows of one of the SELECT forms, standing on its first row (at the end if there is
    /// none). Throws ObjectNotSet, ObjectClosed, QuerySyntax, UnknownTable, UnknownParameter.
    Recordset openRecordset(const QString& query) const;

private:
    friend QString explain(const Database&, const QString&, const QString&);
    explicit Database(std::shared_ptr<Connection> connection) : connection_(std::move(connection)) {}

    std::shared_ptr<Connection> connection_;
};

}  // namespace store
