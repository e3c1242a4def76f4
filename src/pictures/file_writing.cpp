#include "pictures/file_writing.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QFile>
#include <QFileInfo>
#include <array>
#include <cerrno>
#include <cstdio>
#include <utility>

namespace pictures {
namespace {

constexpr mode_t kNewFile = 0666;
constexpr mode_t kPermissions = 07777;

/// An open file of the system's own.
class OpenFile {
public:
    OpenFile(const QByteArray& path, int flags) : number_(::open(path.constData(), flags | O_CLOEXEC, kNewFile)) {}
    ~OpenFile() { close(); }
    OpenFile(const OpenFile&) = delete;
    OpenFile& operator=(const OpenFile&) = delete;

    bool open() const { return number_ >= 0; }
    int number() const { return number_; }
    bool close() { return number_ < 0 || ::close(std::exchange(number_, -1)) == 0; }

private:
    int number_;
};

bool writeAll(int file, QByteArrayView bytes) {
    while (!bytes.isEmpty()) {
        const ssize_t written = ::write(file, bytes.data(), static_cast<std::size_t>(bytes.size()));
        if (written < 0 && errno == EINTR) {
            continue;
        }
        if (written <= 0) {
            return false;
        }
        bytes = bytes.sliced(written);
    }
    return true;
}

/// A copy of the new content beside the file, removed in the end unless it has taken the file's place.
class Copy {
public:
    explicit Copy(const QString& path) : target_(QFile::encodeName(path)), path_(QFile::encodeName(besides(path))) {}
    ~Copy() {
        if (there_) {
            ::unlink(path_.constData());
        }
    }
    Copy(const Copy&) = delete;
    Copy& operator=(const Copy&) = delete;

    // What a killed program left under this name goes; whatever another one puts there meanwhile is not written into.
    bool write(QByteArrayView bytes) {
        ::unlink(path_.constData());
        OpenFile file(path_, O_WRONLY | O_CREAT | O_EXCL);
        there_ = file.open();
        return there_ && writeAll(file.number(), bytes) && ::fsync(file.number()) == 0 && file.close();
    }
    bool takePlace() {
        there_ = ::rename(path_.constData(), target_.constData()) != 0;
        return !there_;
    }

private:
    static QString besides(const QString& path) {
        const QFileInfo file(path);
        return file.path() + QStringLiteral("/.") + file.fileName() + QStringLiteral(".%1.nouveau").arg(::getpid());
    }

    QByteArray target_;
    QByteArray path_;
    bool there_ = false;
};

/// What a file keeps while its content changes.
struct Kept {
    explicit Kept(const struct stat& before)
        : mode(before.st_mode & kPermissions), times{before.st_atim, before.st_mtim}, size(before.st_size) {}
    mode_t mode;
    std::array<timespec, 2> times;
    off_t size;
};

/// A file that may not be written can be while this lives; in the end it is as it was.
class Unlocked {
public:
    Unlocked(QByteArray path, mode_t mode) : path_(std::move(path)), mode_(mode) {
        ::chmod(path_.constData(), mode_ | S_IWUSR);
    }
    ~Unlocked() { ::chmod(path_.constData(), mode_); }
    Unlocked(const Unlocked&) = delete;
    Unlocked& operator=(const Unlocked&) = delete;

private:
    QByteArray path_;
    mode_t mode_;
};

// Room for all of it is taken before the first byte is written: a full disk changes nothing.
bool takeRoom(int file, qsizetype length, off_t before) {
    const int error = ::posix_fallocate(file, 0, length);
    if (error == 0 || error == EOPNOTSUPP || error == EINVAL) {
        return true;
    }
    (void)!::ftruncate(file, before);
    return false;
}

bool fill(int file, QByteArrayView bytes) {
    return writeAll(file, bytes) && ::ftruncate(file, bytes.size()) == 0 && ::fsync(file) == 0;
}

bool replaceContent(const QByteArray& path, const struct stat& before, QByteArrayView bytes, Copy& copy) {
    const Kept kept(before);
    const Unlocked unlocked(path, kept.mode);
    OpenFile file(path, O_WRONLY);
    if (!file.open() || !takeRoom(file.number(), bytes.size(), kept.size)) {
        return false;
    }
    if (!fill(file.number(), bytes)) {
        return copy.takePlace() && ::utimensat(AT_FDCWD, path.constData(), kept.times.data(), 0) == 0;
    }
    // The times of another person's file can't be set; its content is right all the same.
    (void)::futimens(file.number(), kept.times.data());
    return file.close();
}

}  // namespace

bool writeInto(const QString& path, QByteArrayView bytes) {
    const QByteArray name = QFile::encodeName(path);
    struct stat before {};
    const bool exists = ::stat(name.constData(), &before) == 0;
    // Past a null character the system would read no further, and take another file for this one.
    if (path.isEmpty() || path.contains(QChar(0)) || (exists && !S_ISREG(before.st_mode))) {
        return false;
    }
    Copy copy(path);
    if (!copy.write(bytes)) {
        return false;
    }
    return exists ? replaceContent(name, before, bytes, copy) : copy.takePlace();
}

bool writePlainly(const QString& path, QByteArrayView bytes) {
    OpenFile file(QFile::encodeName(path), O_WRONLY | O_CREAT | O_TRUNC);
    return file.open() && writeAll(file.number(), bytes) && file.close();
}

}  // namespace pictures
