#pragma once

#include <benchmark/benchmark.h>
#include <sqlite3.h>

#include <QByteArray>
#include <QString>

/// What the store is compared with: its engine without it. A fault ends the benchmark.
namespace yardstick {

/// A connection with the settings of the store's.
class Connection {
public:
    explicit Connection(const QString& path);
    ~Connection() { sqlite3_close(database_); }
    Connection(const Connection&) = delete;
    Connection& operator=(const Connection&) = delete;

    void run(const QByteArray& sql);
    sqlite3* database() const { return database_; }

private:
    sqlite3* database_ = nullptr;
};

class Statement {
public:
    Statement(const Connection& connection, const char* sql);
    ~Statement() { sqlite3_finalize(handle_); }
    Statement(const Statement&) = delete;
    Statement& operator=(const Statement&) = delete;

    void bind(int at, const QByteArray& text) {
        sqlite3_bind_text(handle_, at, text.constData(), static_cast<int>(text.size()), SQLITE_STATIC);
    }
    void bind(int at, qint64 number) { sqlite3_bind_int64(handle_, at, number); }

    /// Goes to the next row and touches all its columns.
    bool fetch();
    QByteArray text(int column) const {
        return {reinterpret_cast<const char*>(sqlite3_column_text(handle_, column)),
                sqlite3_column_bytes(handle_, column)};
    }
    qint64 number(int column) const { return sqlite3_column_int64(handle_, column); }
    void reset() { sqlite3_reset(handle_); }

private:
    sqlite3_stmt* handle_ = nullptr;
};

}  // namespace yardstick
