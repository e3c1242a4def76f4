#include "yardstick.h"

#include <QFile>
#include <cstdlib>

#include "store/collation.h"

namespace yardstick {
namespace {

void require(int code, sqlite3* database) {
    if (code != SQLITE_OK) {
        std::fprintf(stderr, "%s\n", sqlite3_errmsg(database));
        std::exit(1);
    }
}

}  // namespace

Connection::Connection(const QString& path) {
    sqlite3_open_v2(QFile::encodeName(path).constData(), &database_, SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX,
                    nullptr);
    store::addCollation(database_);
    run("PRAGMA journal_mode=TRUNCATE; PRAGMA cache_size=-32000; PRAGMA mmap_size=0");
}

void Connection::run(const QByteArray& sql) {
    require(sqlite3_exec(database_, sql.constData(), nullptr, nullptr, nullptr), database_);
}

Statement::Statement(const Connection& connection, const char* sql) {
    require(sqlite3_prepare_v3(connection.database(), sql, -1, SQLITE_PREPARE_PERSISTENT, &handle_, nullptr),
            connection.database());
}

bool Statement::fetch() {
    if (sqlite3_step(handle_) != SQLITE_ROW) {
        return false;
    }
    for (int column = sqlite3_column_count(handle_); column-- > 0;) {
        benchmark::DoNotOptimize(sqlite3_column_text(handle_, column));
        benchmark::DoNotOptimize(sqlite3_column_bytes(handle_, column));
    }
    return true;
}

}  // namespace yardstick
