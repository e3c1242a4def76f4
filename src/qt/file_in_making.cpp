#include "qt/file_in_making.h"

#include <QFileInfo>
#include <cstdio>

#include "base/errors.h"

namespace qt {

FileInMaking::FileInMaking(const QString& wanted)
    : wanted_(wanted), making_(QFileInfo(wanted).absolutePath() + QStringLiteral("/.XXXXXX.pdf")) {
    if (!making_.open()) {
        throw base::RuntimeError(base::ErrorNumber::DeviceError);
    }
}

void FileInMaking::publish() {
    if (QFileInfo::exists(wanted_)) {
        making_.setPermissions(QFile::permissions(wanted_));
    }
    if (::rename(QFile::encodeName(making_.fileName()).constData(), QFile::encodeName(wanted_).constData()) != 0) {
        throw base::RuntimeError(base::ErrorNumber::DeviceError);
    }
    making_.setAutoRemove(false);
}

}  // namespace qt
