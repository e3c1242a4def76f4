#include "store/batch.h"

#include "store/connection.h"
#include "store/statement.h"

namespace store {

Batch::Batch(const QString& path) : connection_(Connection::open(path)) {
    run(connection_->database(), "BEGIN IMMEDIATE");
    pending_ = true;
}

Batch::~Batch() {
    if (pending_ && connection_->isOpen()) {
        sqlite3_exec(connection_->database(), "ROLLBACK", nullptr, nullptr, nullptr);
    }
}

void Batch::commit() {
    run(connection_->database(), "COMMIT");
    pending_ = false;
}

}  // namespace store
