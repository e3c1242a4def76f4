#include "store/statement.h"

#include <cerrno>
#include <new>
#include <utility>

#include "base/errors.h"

namespace store {
namespace {

using base::ErrorNumber;
using base::RuntimeError;

// The table and field, or the name of the check, that stand at the end of a refusal.
QString refusedField(sqlite3* database) {
    const QString message = QString::fromUtf8(sqlite3_errmsg(database));
    const qsizetype mark = qMax(message.lastIndexOf(u' '), message.lastIndexOf(u'.'));
    return message.sliced(mark + 1);
}

[[noreturn]] void failOn(ErrorNumber number, const QString& field) {
    throw RuntimeError(number, base::errorText(number, field));
}

[[noreturn]] void failConstraint(sqlite3* database, int code) {
    switch (code) {
        case SQLITE_CONSTRAINT_NOTNULL:
            failOn(ErrorNumber::RequiredValue, refusedField(database));
        case SQLITE_CONSTRAINT_CHECK:
            failOn(ErrorNumber::EmptyText, refusedField(database));
        case SQLITE_CONSTRAINT_DATATYPE:
            throw RuntimeError(ErrorNumber::TypeMismatch);
        default:
            failOn(ErrorNumber::DuplicateKey, refusedField(database));
    }
}

bool isFull(int systemError) {
    return systemError == ENOSPC || systemError == EDQUOT || systemError == EFBIG;
}

bool isRefused(int systemError) {
    return systemError == EACCES || systemError == EPERM || systemError == EROFS;
}

int lastError(sqlite3_file* file) {
    int systemError = 0;
    if (file != nullptr && file->pMethods != nullptr) {
        file->pMethods->xFileControl(file, SQLITE_FCNTL_LAST_ERRNO, &systemError);
    }
    return systemError;
}

sqlite3_file* fileOf(sqlite3* database, int which) {
    sqlite3_file* file = nullptr;
    sqlite3_file_control(database, "main", which, &file);
    return file;
}

// SQLite knows a full disk, but takes a used up quota for a fault of the disk. By now its own note of the reason is
// lost, if it had to undo a transaction; those of the two files are not.
bool metAFullDisk(sqlite3* database) {
    return isFull(sqlite3_system_errno(database)) || isFull(lastError(fileOf(database, SQLITE_FCNTL_FILE_POINTER))) ||
           isFull(lastError(fileOf(database, SQLITE_FCNTL_JOURNAL_POINTER)));
}

ErrorNumber diskError(sqlite3* database) {
    return metAFullDisk(database) ? ErrorNumber::DiskFull : ErrorNumber::DeviceError;
}

// A file or journal that could not be opened.
ErrorNumber openError(sqlite3* database) {
    const int systemError = sqlite3_system_errno(database);
    return isFull(systemError)      ? ErrorNumber::DiskFull
           : isRefused(systemError) ? ErrorNumber::ReadOnly
                                    : ErrorNumber::DatabaseNotOpenable;
}

ErrorNumber numberOf(sqlite3* database, int code) {
    if (code == SQLITE_READONLY_DBMOVED) {
        return ErrorNumber::DatabaseNotFound;
    }
    switch (code & 0xFF) {
        case SQLITE_BUSY:
        case SQLITE_LOCKED:
            return ErrorNumber::RecordLocked;
        case SQLITE_FULL:
            return ErrorNumber::DiskFull;
        case SQLITE_READONLY:
            return ErrorNumber::ReadOnly;
        case SQLITE_CANTOPEN:
            return openError(database);
        case SQLITE_IOERR:
            return diskError(database);
        case SQLITE_PERM:
        case SQLITE_AUTH:
            return ErrorNumber::PermissionDenied;
        case SQLITE_TOOBIG:
            return ErrorNumber::Overflow;
        case SQLITE_MISMATCH:
            return ErrorNumber::TypeMismatch;
        default:
            // CORRUPT, NOTADB, and an SQL error: a table or field that a sound file would hold is missing.
            return ErrorNumber::UnknownFormat;
    }
}

struct Binder {
    sqlite3_stmt* statement;
    int parameter;

    int operator()(std::monostate) const { return sqlite3_bind_null(statement, parameter); }
    int operator()(qint64 number) const { return sqlite3_bind_int64(statement, parameter, number); }
    int operator()(double number) const { return sqlite3_bind_double(statement, parameter, number); }
    int operator()(const QByteArray& text) const {
        return sqlite3_bind_text64(statement, parameter, text.constData(), static_cast<sqlite3_uint64>(text.size()),
                                   SQLITE_TRANSIENT, SQLITE_UTF8);
    }
};

}  // namespace

void fail(sqlite3* database) {
    const int code = sqlite3_extended_errcode(database);
    if ((code & 0xFF) == SQLITE_NOMEM) {
        throw std::bad_alloc();
    }
    if ((code & 0xFF) == SQLITE_CONSTRAINT) {
        failConstraint(database, code);
    }
    throw RuntimeError(numberOf(database, code));
}

void run(sqlite3* database, const char* sql) {
    if (sqlite3_exec(database, sql, nullptr, nullptr, nullptr) != SQLITE_OK) {
        fail(database);
    }
}

Statement::Statement(sqlite3* database, const QByteArray& sql) {
    const int size = static_cast<int>(sql.size()) + 1;
    if (sqlite3_prepare_v3(database, sql.constData(), size, SQLITE_PREPARE_PERSISTENT, &handle_, nullptr) !=
        SQLITE_OK) {
        fail(database);
    }
}

Statement::~Statement() {
    sqlite3_finalize(handle_);
}

Statement::Statement(Statement&& other) noexcept : handle_(std::exchange(other.handle_, nullptr)) {}

Statement& Statement::operator=(Statement&& other) noexcept {
    std::swap(handle_, other.handle_);
    return *this;
}

void Statement::bind(int parameter, const Bound& value) {
    if (std::visit(Binder{handle_, parameter}, value) != SQLITE_OK) {
        fail(sqlite3_db_handle(handle_));
    }
}

void Statement::bindAll(int parameter, const Bounds& values) {
    for (const Bound& value : values) {
        bind(parameter++, value);
    }
}

bool Statement::step() {
    switch (sqlite3_step(handle_)) {
        case SQLITE_ROW:
            return true;
        case SQLITE_DONE:
            return false;
        default:
            fail(sqlite3_db_handle(handle_));
    }
}

void Statement::reset() {
    sqlite3_reset(handle_);
}

QString Statement::text(int column) const {
    const auto* bytes = reinterpret_cast<const char*>(sqlite3_column_text(handle_, column));
    return QString::fromUtf8(bytes, sqlite3_column_bytes(handle_, column));
}

}  // namespace store
