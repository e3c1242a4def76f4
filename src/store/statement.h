#pragma once

#include <sqlite3.h>

#include <QByteArray>
#include <QString>
#include <variant>
#include <vector>

namespace store {

/// A value as it is bound to a statement: null, a whole number, a decimal one, a text in UTF-8.
using Bound = std::variant<std::monostate, qint64, double, QByteArray>;
using Bounds = std::vector<Bound>;

/// Ends with the error that SQLite just reported on this connection, under the number that says what happened.
[[noreturn]] void fail(sqlite3* database);

/// Runs a text of SQL whose rows don't matter.
void run(sqlite3* database, const char* sql);

/// A prepared statement, finalised with its owner.
class Statement {
public:
    Statement() = default;
    Statement(sqlite3* database, const QByteArray& sql);
    ~Statement();
    Statement(Statement&& other) noexcept;
    Statement& operator=(Statement&& other) noexcept;

    bool isPrepared() const { return handle_ != nullptr; }

    /// Binds the parameter of this number, from 1.
    void bind(int parameter, const Bound& value);
    /// Binds the parameters from this number on.
    void bindAll(int parameter, const Bounds& values);

    /// Goes to the next row; false at the end. The statement must be inside a `Run`.
    bool step();
    void reset();

    sqlite3_stmt* handle() const { return handle_; }
    qint64 number(int column) const { return sqlite3_column_int64(handle_, column); }
    QString text(int column) const;

private:
    sqlite3_stmt* handle_ = nullptr;
};

/// One run of a statement: it is reset at the end, whatever happens, so that it holds no lock.
class Run {
public:
    explicit Run(Statement& statement) : statement_(statement) {}
    ~Run() { statement_.reset(); }
    Run(const Run&) = delete;
    Run& operator=(const Run&) = delete;

private:
    Statement& statement_;
};

}  // namespace store
