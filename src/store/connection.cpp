#include "store/connection.h"

#include <sys/stat.h>

#include <QFile>
#include <QFileInfo>
#include <thread>

#include "base/errors.h"
#include "store/collation.h"
#include "store/like.h"

namespace store {
namespace {

using base::ErrorNumber;
using base::RuntimeError;

// How long a station waits for another one that writes, and how often it looks meanwhile. Long pauses would make it
// miss its turn: stations that write one record after the other leave the file free for moments only.
constexpr std::chrono::seconds kPatience{5};
constexpr std::chrono::milliseconds kPause{1};

// Shapes and writing statements kept; the program uses some forty, and more come from generated texts alone.
constexpr qsizetype kMostShapes = 256;
constexpr qsizetype kMostWriters = 64;

[[noreturn]] void failAt(ErrorNumber number, const QString& path) {
    throw RuntimeError(number, base::errorText(number, path));
}

int pragma(sqlite3* database, const char* name) {
    Statement statement(database, QByteArray("PRAGMA ") + name);
    return statement.step() ? static_cast<int>(statement.number(0)) : 0;
}

QHash<QString, std::weak_ptr<Connection>>& openConnections() {
    static QHash<QString, std::weak_ptr<Connection>> all;
    return all;
}

FileKind kindNamed(const QString& name) {
    for (const FileKind kind : kAllFiles) {
        if (usualName(kind) == name) {
            return kind;
        }
    }
    throw RuntimeError(ErrorNumber::UnknownFormat);
}

}  // namespace

std::shared_ptr<Connection> Connection::open(const QString& path) {
    const QFileInfo file(path);
    const QString canonical = file.canonicalFilePath();
    if (canonical.isEmpty() || !file.isFile()) {
        failAt(ErrorNumber::DatabaseNotFound, path);
    }
    std::weak_ptr<Connection>& known = openConnections()[canonical];
    std::shared_ptr<Connection> connection = known.lock();
    if (!connection || !connection->isOpen() || !connection->isStillAt(canonical)) {
        connection.reset(new Connection(canonical));
        known = connection;
    }
    return connection;
}

Connection::Connection(const QString& path) {
    try {
        openFile(path);
        configure();
        checkMark();
        setJournal();
        checkSize(path);
        readMeta();
    } catch (const RuntimeError& error) {
        close();
        throw RuntimeError(error.number(), QStringLiteral("%1 (%2).").arg(error.text().chopped(1), path));
    }
}

Connection::~Connection() {
    close();
}

void Connection::openFile(const QString& path) {
    struct stat status {};
    const QByteArray name = QFile::encodeName(path);
    // A file without a byte would pass for an empty database.
    if (::stat(name.constData(), &status) == 0 && status.st_size == 0) {
        throw RuntimeError(ErrorNumber::UnknownFormat);
    }
    device_ = status.st_dev;
    inode_ = status.st_ino;
    if (sqlite3_open_v2(name.constData(), &database_, SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX, nullptr) !=
        SQLITE_OK) {
        const bool readable = QFileInfo(path).isReadable();
        throw RuntimeError(readable ? ErrorNumber::DatabaseNotOpenable : ErrorNumber::PermissionDenied);
    }
}

void Connection::configure() {
    sqlite3_extended_result_codes(database_, 1);
    sqlite3_busy_handler(database_, waitForOthers, this);
    for (const int option : {SQLITE_DBCONFIG_DQS_DML, SQLITE_DBCONFIG_DQS_DDL, SQLITE_DBCONFIG_TRUSTED_SCHEMA}) {
        sqlite3_db_config(database_, option, 0, nullptr);
    }
    sqlite3_db_config(database_, SQLITE_DBCONFIG_DEFENSIVE, 1, nullptr);
    addCollation(database_);
    addLike(database_);
}

// Whether the file is to be tried once more.
int Connection::waitForOthers(void* self, int tries) {
    auto& connection = *static_cast<Connection*>(self);
    const auto now = std::chrono::steady_clock::now();
    if (tries == 0) {
        connection.waitingSince_ = now;
    }
    if (now - connection.waitingSince_ >= kPatience) {
        return 0;
    }
    std::this_thread::sleep_for(kPause);
    return 1;
}

void Connection::checkMark() const {
    if (pragma(database_, "application_id") != kApplicationId) {
        throw RuntimeError(ErrorNumber::UnknownFormat);
    }
    const int version = pragma(database_, "user_version");
    if (version > kSchemaVersion) {
        throw RuntimeError(ErrorNumber::UnknownFormat,
                           QStringLiteral("Ce fichier vient d'une version plus récente du programme."));
    }
    if (version != kSchemaVersion) {
        throw RuntimeError(ErrorNumber::UnknownFormat);
    }
}

// SQLite takes a last page that lacks some bytes for whole. It is looked at once a journal that was left is undone.
void Connection::checkSize(const QString& path) const {
    const qint64 size = qint64{pragma(database_, "page_count")} * pragma(database_, "page_size");
    if (QFileInfo(path).size() < size) {
        throw RuntimeError(ErrorNumber::UnknownFormat);
    }
}

void Connection::setJournal() const {
    Statement statement(database_, QByteArrayLiteral("PRAGMA journal_mode=TRUNCATE"));
    const bool set = statement.step() && statement.text(0) == QStringLiteral("truncate");
    statement.reset();
    if (!set) {
        throw RuntimeError(ErrorNumber::RecordLocked);
    }
    run(database_, "PRAGMA synchronous=EXTRA; PRAGMA cache_size=-32000; PRAGMA mmap_size=0; PRAGMA cell_size_check=ON");
}

void Connection::readMeta() {
    Statement statement(database_, QByteArray("SELECT KIND,COLLATION FROM ") + kMetaTable);
    if (!statement.step()) {
        throw RuntimeError(ErrorNumber::UnknownFormat);
    }
    kind_ = kindNamed(statement.text(0));
    const bool sorted = statement.number(1) == kCollationVersion;
    statement.reset();
    if (!sorted) {
        sortAnew();
    }
}

void Connection::sortAnew() const {
    const QByteArray version = QByteArray::number(kCollationVersion);
    const QByteArray sql =
        "BEGIN IMMEDIATE; REINDEX FR; UPDATE " + QByteArray(kMetaTable) + " SET COLLATION=" + version + "; COMMIT";
    run(database_, sql.constData());
}

bool Connection::isStillAt(const QString& path) const {
    struct stat status {};
    return ::stat(QFile::encodeName(path).constData(), &status) == 0 && status.st_dev == device_ &&
           status.st_ino == inode_;
}

sqlite3* Connection::database() const {
    if (!isOpen()) {
        throw RuntimeError(ErrorNumber::ObjectClosed);
    }
    return database_;
}

void Connection::close() {
    for (const std::shared_ptr<Shape>& shape : std::as_const(shapes_)) {
        shape->finalise();
    }
    shapes_.clear();
    writers_.clear();
    sqlite3_close(database_);
    database_ = nullptr;
}

std::shared_ptr<Shape> Connection::shape(const Query& query) {
    if (query.table->file != kind_) {
        throw RuntimeError(ErrorNumber::UnknownTable, base::errorText(ErrorNumber::UnknownTable, query.table->name));
    }
    const QByteArray key = shapeKey(query);
    if (const auto found = shapes_.constFind(key); found != shapes_.cend()) {
        return *found;
    }
    if (shapes_.size() >= kMostShapes) {
        shapes_.removeIf([](const auto& entry) { return entry.value().use_count() == 1; });
    }
    return *shapes_.insert(key, std::make_shared<Shape>(database(), query));
}

Statement& Connection::writer(const QByteArray& sql) {
    if (const auto found = writers_.constFind(sql); found != writers_.cend()) {
        return **found;
    }
    if (writers_.size() >= kMostWriters) {
        writers_.clear();
    }
    return **writers_.insert(sql, std::make_shared<Statement>(database(), sql));
}

}  // namespace store
