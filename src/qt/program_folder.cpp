#include "qt/program_folder.h"

#include <QCoreApplication>
#include <QDir>
#include <QStandardPaths>
#include <QTemporaryFile>

namespace qt {

QString programFolder() {
    const QString data = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
    return writableFolder(QCoreApplication::applicationDirPath(), data + QStringLiteral("/veranox"));
}

// Permissions alone don't tell: a folder may lie on a medium that takes nothing.
QString writableFolder(const QString& wanted, const QString& otherwise) {
    if (QTemporaryFile(wanted + QStringLiteral("/.veranox-XXXXXX")).open()) {
        return QDir::cleanPath(wanted);
    }
    QDir().mkpath(otherwise);
    return QDir::cleanPath(otherwise);
}

}  // namespace qt
