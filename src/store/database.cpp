#include "store/database.h"

#include "base/errors.h"
#include "store/connection.h"
#include "store/cursor.h"
#include "store/recordset.h"

namespace store {
namespace {

Connection& require(const std::shared_ptr<Connection>& connection) {
    if (!connection) {
        throw base::RuntimeError(base::ErrorNumber::ObjectNotSet);
    }
    connection->database();
    return *connection;
}

}  // namespace

Database Database::open(const QString& path) {
    return Database(Connection::open(path));
}

void Database::close() {
    require(connection_).close();
}

bool Database::isOpen() const {
    return connection_ && connection_->isOpen();
}

FileKind Database::kind() const {
    return require(connection_).kind();
}

Recordset Database::openRecordset(const QString& query) const {
    require(connection_);
    return Recordset(std::make_shared<Cursor>(connection_, readQuery(query)));
}

}  // namespace store
