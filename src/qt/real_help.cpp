#include "qt/real_help.h"

#include <QDir>
#include <QFileInfo>

namespace qt {

RealHelp::~RealHelp() {
    delete window_;
}

void RealHelp::showContents(const QString& file) {
    if (!window_) {
        const QString place = placeOf(file);
        if (!QFileInfo::exists(place)) {
            complain(QStringLiteral("Le fichier d'aide %1 est introuvable."), file);
            return;
        }
        auto opened = std::make_unique<HelpFile>(place);
        if (!opened->isReadable()) {
            complain(QStringLiteral("Le fichier d'aide %1 ne peut pas être lu."), place);
            return;
        }
        window_ = new HelpWindow(std::move(opened));
    }
    window_->showContents();
}

QString RealHelp::placeOf(const QString& file) const {
    if (otherFolder_.isEmpty() || QFileInfo::exists(file)) {
        return file;
    }
    return QDir(otherFolder_).filePath(QFileInfo(file).fileName());
}

void RealHelp::complain(const QString& what, const QString& file) {
    boxes_.message(what.arg(QDir::toNativeSeparators(file)), ports::Icon::Exclamation);
}

}  // namespace qt
