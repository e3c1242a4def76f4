#include "store/schema.h"

#include <fcntl.h>
#include <unistd.h>

#include <QFile>
#include <algorithm>
#include <cerrno>
#include <memory>

#include "base/errors.h"
#include "store/collation.h"
#include "store/statement.h"
#include "store/tables.h"

namespace store {
namespace {

using base::ErrorNumber;
using base::RuntimeError;

struct Names {
    FileKind kind;
    QStringView file;
    QStringView setting;
};

constexpr Names kNames[] = {
    {FileKind::Nom, u"NOM.MDB", u"CHEMCIV"},
    {FileKind::Echo, u"ECHO.MDB", u"CHEMIN"},
    {FileKind::Atcd, u"ATCD.MDB", u"CHEMATCD"},
    {FileKind::Echotek, u"ECHOTEK.MDB", u"CHEMINS"},
};

const Names& namesOf(FileKind kind) {
    return *std::ranges::find(kNames, kind, &Names::kind);
}

ErrorNumber numberOf(int systemError) {
    switch (systemError) {
        case ENOENT:
        case ENOTDIR:
            return ErrorNumber::PathNotFound;
        case ENOSPC:
        case EDQUOT:
            return ErrorNumber::DiskFull;
        case EEXIST:
        case EACCES:
        case EPERM:
        case EROFS:
            return ErrorNumber::PermissionDenied;
        default:
            return ErrorNumber::DeviceError;
    }
}

// Takes the name, unless something stands there already.
void reserve(const QByteArray& name, const QString& path) {
    const int file = ::open(name.constData(), O_CREAT | O_EXCL | O_WRONLY | O_CLOEXEC, S_IRUSR | S_IWUSR);
    if (file < 0) {
        const int systemError = errno;
        const QString text = systemError == EEXIST ? QStringLiteral("Un fichier porte déjà ce nom (%1).").arg(path)
                                                   : base::errorText(numberOf(systemError), path);
        throw RuntimeError(numberOf(systemError), text);
    }
    ::close(file);
}

using Closer = decltype([](sqlite3* database) { sqlite3_close(database); });

void writeTables(sqlite3* database, FileKind kind) {
    run(database, "PRAGMA journal_mode=TRUNCATE; PRAGMA synchronous=EXTRA; BEGIN IMMEDIATE");
    for (const QByteArray& statement : creationOf(kind)) {
        run(database, statement.constData());
    }
    const QByteArray insertion = QByteArray("INSERT INTO ") + kMetaTable + " VALUES(?,?)";
    Statement meta(database, insertion);
    meta.bindAll(1, {usualName(kind).toUtf8(), qint64{kCollationVersion}});
    meta.step();
    meta.reset();
    const QByteArray mark = "PRAGMA application_id=" + QByteArray::number(kApplicationId) +
                            ";PRAGMA user_version=" + QByteArray::number(kSchemaVersion) + ";COMMIT";
    run(database, mark.constData());
}

void fill(FileKind kind, const QByteArray& name) {
    sqlite3* opened = nullptr;
    const int code = sqlite3_open_v2(name.constData(), &opened, SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX, nullptr);
    const std::unique_ptr<sqlite3, Closer> database(opened);
    if (code != SQLITE_OK) {
        throw RuntimeError(ErrorNumber::DatabaseNotOpenable);
    }
    sqlite3_extended_result_codes(opened, 1);
    addCollation(opened);
    writeTables(opened, kind);
}

const Table& require(const QString& name) {
    const Table* table = findTable(name);
    if (table == nullptr) {
        throw RuntimeError(ErrorNumber::UnknownTable, base::errorText(ErrorNumber::UnknownTable, name));
    }
    return *table;
}

}  // namespace

QString usualName(FileKind kind) {
    return namesOf(kind).file.toString();
}

QString settingName(FileKind kind) {
    return namesOf(kind).setting.toString();
}

void createFile(FileKind kind, const QString& path) {
    const QByteArray name = QFile::encodeName(path);
    reserve(name, path);
    try {
        fill(kind, name);
    } catch (...) {
        ::unlink(name.constData());
        ::unlink((name + "-journal").constData());
        throw;
    }
}

QStringList tableNames(FileKind kind) {
    QStringList names;
    for (const Table& table : allTables()) {
        if (table.file == kind) {
            names << table.name;
        }
    }
    return names;
}

const std::vector<Field>& fieldsOf(const QString& table) {
    return require(table).fields;
}

FileKind fileOf(const QString& table) {
    return require(table).file;
}

}  // namespace store
