#include "practice/restore.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QMap>
#include <QStringList>
#include <vector>

#include "base/errors.h"
#include "practice/check.h"
#include "store/schema.h"
#include "store/snapshot.h"

namespace practice {
namespace {

using base::ErrorNumber;
using base::RuntimeError;
using store::FileKind;

QString pathOf(const Paths& files, FileKind kind) {
    switch (kind) {
        case FileKind::Nom:
            return files.nom;
        case FileKind::Echo:
            return files.echo;
        case FileKind::Atcd:
            return files.atcd;
        case FileKind::Echotek:
            break;
    }
    return files.echotek;
}

void requireSound(const Paths& files, const QString& what) {
    QStringList faults;
    for (const Finding& finding : checkFiles(files)) {
        for (const QString& fault : finding.faults) {
            faults << u"%1 : %2"_qs.arg(finding.subject, fault);
        }
    }
    if (!faults.isEmpty()) {
        throw RuntimeError(ErrorNumber::UnknownFormat, what + u'\n' + faults.join(u'\n'));
    }
}

void requireFolder(const QString& folder) {
    if (QFileInfo(folder).isDir() || QDir().mkdir(folder)) {
        return;
    }
    throw RuntimeError(ErrorNumber::PathNotFound, base::errorText(ErrorNumber::PathNotFound, folder));
}

/// The new files in the place of the old ones, which can be taken back until this object goes.
class Exchange {
public:
    Exchange(const QString& folder, const QDateTime& now)
        : folder_(folder), aside_(freeName(now.toString(u"'avant-restauration-'yyyyMMdd-HHmmss"_qs))) {}

    void setAside(FileKind kind) {
        const QString name = store::usualName(kind);
        if (QFileInfo::exists(folder_.filePath(name))) {
            permissions_[kind] = QFile::permissions(folder_.filePath(name));
        }
        for (const QString& trace : {QString(), u"-journal"_qs, u"-wal"_qs, u"-shm"_qs}) {
            moveAside(name + trace);
        }
    }

    /// A restored file is open to the same people as the one before it.
    void place(store::Snapshot& file, FileKind kind) {
        file.publish();
        placed_ << store::usualName(kind);
        if (permissions_.contains(kind)) {
            QFile::setPermissions(folder_.filePath(placed_.last()), permissions_[kind]);
        }
    }

    /// Whether everything is again as it was.
    bool takeBack() {
        for (const QString& name : placed_) {
            QFile::remove(folder_.filePath(name));
            QFile::remove(folder_.filePath(name + u"-journal"_qs));
        }
        bool whole = true;
        for (const QString& name : moved_) {
            whole = QFile::rename(asidePath(name), folder_.filePath(name)) && whole;
        }
        folder_.rmdir(aside_);
        return whole;
    }

    /// Where the old files are; empty if there were none.
    QString aside() const { return moved_.isEmpty() ? QString() : folder_.filePath(aside_); }

private:
    QString freeName(const QString& wanted) const {
        QString name = wanted;
        for (int i = 2; folder_.exists(name); ++i) {
            name = u"%1-%2"_qs.arg(wanted).arg(i);
        }
        return name;
    }

    QString asidePath(const QString& name) const { return folder_.filePath(aside_ + u'/' + name); }

    void moveAside(const QString& name) {
        if (!QFileInfo::exists(folder_.filePath(name))) {
            return;
        }
        folder_.mkdir(aside_);
        if (!QFile::rename(folder_.filePath(name), asidePath(name))) {
            throw RuntimeError(ErrorNumber::PermissionDenied,
                               u"Le fichier ne peut pas être mis de côté : %1"_qs.arg(folder_.filePath(name)));
        }
        moved_ << name;
    }

    QDir folder_;
    QString aside_;
    QStringList moved_, placed_;
    QMap<FileKind, QFile::Permissions> permissions_;
};

std::vector<store::Snapshot> copiesOf(const Paths& backup, const Paths& places) {
    std::vector<store::Snapshot> copies;
    copies.reserve(std::size(store::kAllFiles));
    for (const FileKind kind : store::kAllFiles) {
        copies.emplace_back(pathOf(backup, kind), kind, pathOf(places, kind));
    }
    return copies;
}

void exchange(Exchange& files, std::vector<store::Snapshot>& copies, const Paths& places) {
    for (const FileKind kind : store::kAllFiles) {
        files.setAside(kind);
    }
    for (std::size_t i = 0; i < copies.size(); ++i) {
        files.place(copies[i], store::kAllFiles[i]);
    }
    requireSound(places, u"Les bases restaurées sont en défaut :"_qs);
}

}  // namespace

Paths backupAt(const QString& place) {
    Paths inFolder = pathsIn(place);
    if (QFileInfo::exists(inFolder.nom) || !QFileInfo::exists(place + store::usualName(FileKind::Nom))) {
        return inFolder;
    }
    const auto path = [&place](FileKind kind) { return QFileInfo(place + store::usualName(kind)).absoluteFilePath(); };
    return {path(FileKind::Nom), path(FileKind::Echo), path(FileKind::Atcd), path(FileKind::Echotek)};
}

QString restore(const QString& backup, const QString& folder, const QDateTime& now) {
    const Paths source = backupAt(backup);
    requireSound(source, u"La sauvegarde est en défaut, rien n'a été modifié :"_qs);
    requireFolder(folder);
    const Paths places = pathsIn(folder);
    std::vector<store::Snapshot> copies = copiesOf(source, places);
    Exchange files(folder, now);
    try {
        exchange(files, copies, places);
    } catch (const RuntimeError& error) {
        const QString aside = files.aside();
        if (files.takeBack()) {
            throw;
        }
        throw RuntimeError(error.number(), u"%1\nLes bases précédentes sont dans %2"_qs.arg(error.text(), aside));
    }
    return files.aside();
}

}  // namespace practice
