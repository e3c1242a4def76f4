#include "store/snapshot.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QFile>
#include <QFileInfo>
#include <cerrno>
#include <memory>
#include <utility>

#include "base/errors.h"
#include "store/check.h"
#include "store/connection.h"
#include "store/statement.h"

namespace store {
namespace {

using base::ErrorNumber;
using base::RuntimeError;

// Between two runs of so many pages the progress is told: 4 MB.
constexpr int kPagesAtATime = 1024;

[[noreturn]] void failAt(int systemError, const QByteArray& path) {
    const ErrorNumber number = systemError == ENOSPC || systemError == EDQUOT    ? ErrorNumber::DiskFull
                               : systemError == ENOENT || systemError == ENOTDIR ? ErrorNumber::PathNotFound
                               : systemError == EIO                              ? ErrorNumber::DeviceError
                                                                                 : ErrorNumber::PermissionDenied;
    throw RuntimeError(number, base::errorText(number, QFile::decodeName(path)));
}

/// A file whose name was just taken beside its target's.
QByteArray takenBeside(const QByteArray& target) {
    QByteArray name = target + ".XXXXXX";
    const int file = ::mkostemp(name.data(), O_CLOEXEC);
    if (file < 0) {
        failAt(errno, target);
    }
    ::close(file);
    return name;
}

void flush(int file, const QByteArray& path) {
    const int systemError = ::fsync(file) == 0 ? 0 : errno;
    ::close(file);
    // Some network folders can't be flushed by themselves.
    if (systemError != 0 && systemError != EINVAL) {
        failAt(systemError, path);
    }
}

void flushFile(const QByteArray& path) {
    const int file = ::open(path.constData(), O_RDONLY | O_CLOEXEC);
    if (file < 0) {
        failAt(errno, path);
    }
    flush(file, path);
}

/// Makes the names in a folder last, where one may ask for it.
void flushFolderOf(const QByteArray& path) {
    const QByteArray folder = QFile::encodeName(QFileInfo(QFile::decodeName(path)).absolutePath());
    if (const int file = ::open(folder.constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC); file >= 0) {
        flush(file, folder);
    }
}

using Closer = decltype([](sqlite3* database) { sqlite3_close(database); });

/// The database that is written anew. It needs no journal: nobody knows its name yet.
std::unique_ptr<sqlite3, Closer> openCopy(const QByteArray& path) {
    sqlite3* opened = nullptr;
    const int code = sqlite3_open_v2(path.constData(), &opened, SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX, nullptr);
    std::unique_ptr<sqlite3, Closer> database(opened);
    if (code != SQLITE_OK) {
        failAt(EACCES, path);
    }
    sqlite3_extended_result_codes(opened, 1);
    run(opened, "PRAGMA journal_mode=OFF; PRAGMA synchronous=OFF");
    return database;
}

/// Holds a file as it is: until this goes, other stations can read it, but none can change it.
class Still {
public:
    explicit Still(sqlite3* database) : database_(database) { run(database, "BEGIN; SELECT 1 FROM sqlite_schema"); }
    ~Still() { sqlite3_exec(database_, "ROLLBACK", nullptr, nullptr, nullptr); }
    Still(const Still&) = delete;
    Still& operator=(const Still&) = delete;

private:
    sqlite3* database_;
};

int percentDone(sqlite3_backup* backup) {
    const int all = sqlite3_backup_pagecount(backup);
    return all == 0 ? 0 : static_cast<int>(100.0 * (all - sqlite3_backup_remaining(backup)) / all);
}

// A save by another station would start the copy anew; the source must be held still meanwhile.
void copyPages(sqlite3* from, sqlite3* to, const std::function<void(int)>& progress) {
    sqlite3_backup* backup = sqlite3_backup_init(to, "main", from, "main");
    if (backup == nullptr) {
        fail(to);
    }
    int code = SQLITE_OK;
    while (code == SQLITE_OK) {
        code = sqlite3_backup_step(backup, kPagesAtATime);
        progress(percentDone(backup));
    }
    if (sqlite3_backup_finish(backup) != SQLITE_OK) {
        fail(to);
    }
    if (code != SQLITE_DONE) {
        throw RuntimeError(ErrorNumber::DeviceError);
    }
}

bool statusOf(const QString& path, struct stat& status) {
    return ::stat(QFile::encodeName(path).constData(), &status) == 0;
}

}  // namespace

bool isSameFile(const QString& one, const QString& other) {
    struct stat first {
    }, second{};
    return statusOf(one, first) && statusOf(other, second) && first.st_dev == second.st_dev &&
           first.st_ino == second.st_ino;
}

Snapshot::Snapshot(const QString& source, FileKind kind, const QString& target, const SnapshotProgress& progress)
    : target_(QFile::encodeName(target)) {
    if (isSameFile(source, target)) {
        throw RuntimeError(ErrorNumber::PermissionDenied,
                           QStringLiteral("Une base ne peut pas être copiée sur elle-même (%1).").arg(target));
    }
    if (QFileInfo(target).isDir()) {
        failAt(EISDIR, target_);
    }
    const SnapshotProgress told = progress ? progress : [](SnapshotStep, int) {};
    temporary_ = takenBeside(target_);
    try {
        copy(source, kind, told);
        flushFile(temporary_);
        told(SnapshotStep::Checking, 0);
        check();
        told(SnapshotStep::Checking, 100);
    } catch (...) {
        ::unlink(temporary_.constData());
        throw;
    }
}

Snapshot::~Snapshot() {
    if (!temporary_.isEmpty()) {
        ::unlink(temporary_.constData());
    }
}

Snapshot::Snapshot(Snapshot&& other) noexcept
    : target_(std::move(other.target_)), temporary_(std::exchange(other.temporary_, {})) {}

void Snapshot::copy(const QString& source, FileKind kind, const SnapshotProgress& progress) const {
    const std::shared_ptr<Connection> connection = Connection::open(source);
    if (connection->kind() != kind) {
        throw RuntimeError(ErrorNumber::UnknownFormat,
                           QStringLiteral("Ce fichier n'est pas une base %1 (%2).").arg(usualName(kind), source));
    }
    const auto copied = openCopy(temporary_);
    const Still still(connection->database());
    copyPages(connection->database(), copied.get(),
              [&progress](int percent) { progress(SnapshotStep::Copying, percent); });
}

void Snapshot::check() const {
    const QString path = QFile::decodeName(temporary_);
    if (damagedPlaces(path) > 0) {
        throw RuntimeError(ErrorNumber::UnknownFormat, base::errorText(ErrorNumber::UnknownFormat, path));
    }
}

void Snapshot::publish() {
    // A journal that an earlier file of this name left behind must not be taken for this one's.
    for (const char* trace : {"-journal", "-wal", "-shm"}) {
        ::unlink((target_ + trace).constData());
    }
    if (::rename(temporary_.constData(), target_.constData()) != 0) {
        failAt(errno, target_);
    }
    temporary_.clear();
    flushFolderOf(target_);
}

}  // namespace store
