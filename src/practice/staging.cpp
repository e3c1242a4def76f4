#include "practice/staging.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include "base/errors.h"
#include "store/schema.h"

namespace practice {
namespace {

using base::ErrorNumber;
using base::RuntimeError;

QString placeOf(const QString& folder, store::FileKind kind) {
    return QDir(folder).filePath(store::usualName(kind));
}

bool isTaken(const QString& path) {
    const QFileInfo info(path);
    return info.exists() || info.isSymLink();
}

[[noreturn]] void failAt(ErrorNumber number, const QString& path) {
    throw RuntimeError(number, base::errorText(number, path));
}

[[noreturn]] void refuseTaken(const QString& path) {
    throw RuntimeError(ErrorNumber::PermissionDenied, u"Un fichier porte déjà ce nom (%1)."_qs.arg(path));
}

void checkNoneIsTaken(const QString& folder) {
    for (const store::FileKind kind : store::kAllFiles) {
        if (const QString path = placeOf(folder, kind); isTaken(path)) {
            refuseTaken(path);
        }
    }
}

/// Whether the folder had to be made.
bool makeFolder(const QString& folder) {
    const QFileInfo info(folder);
    if (info.isDir()) {
        return false;
    }
    if (info.exists() || !QFileInfo(info.absolutePath()).isDir()) {
        failAt(ErrorNumber::PathNotFound, folder);
    }
    if (!QDir().mkdir(folder)) {
        failAt(ErrorNumber::PermissionDenied, folder);
    }
    return true;
}

void takeBack(const QStringList& places) {
    for (const QString& place : places) {
        QFile::remove(place);
    }
}

}  // namespace

Staging::Staging(const QString& folder) : folder_(QDir::cleanPath(QDir(folder).absolutePath())) {
    checkNoneIsTaken(folder_);
    madeFolder_ = makeFolder(folder_);
    hidden_ = std::make_unique<QTemporaryDir>(folder_ + u"/.veranox-XXXXXX"_qs);
    if (!hidden_->isValid()) {
        if (madeFolder_) {
            QDir().rmdir(folder_);
        }
        failAt(ErrorNumber::PermissionDenied, folder_);
    }
}

Staging::~Staging() {
    hidden_.reset();
    if (madeFolder_ && !published_) {
        QDir().rmdir(folder_);
    }
}

Paths Staging::paths() const {
    return pathsIn(hidden_->path());
}

void Staging::publish() {
    QStringList placed;
    for (const store::FileKind kind : store::kAllFiles) {
        const QString place = placeOf(folder_, kind);
        const bool taken = isTaken(place);
        if (!taken && QFile::rename(placeOf(hidden_->path(), kind), place)) {
            placed << place;
            continue;
        }
        takeBack(placed);
        if (taken) {
            refuseTaken(place);
        }
        failAt(ErrorNumber::PermissionDenied, place);
    }
    published_ = true;
}

}  // namespace practice
