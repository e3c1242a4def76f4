#include "qt/real_help.h"

#include <QApplication>
#include <QDir>
#include <QFileInfo>

namespace qt {

RealHelp::~RealHelp() {
    delete window_;
}

void RealHelp::showContents(const QString& file) {
    showChapter(file, {});
}

void RealHelp::showChapter(const QString& file, const QString& window) {
    if (open(file)) {
        standInFrontOfModal();
        window_->showChapterOf(window);
    }
}

bool RealHelp::open(const QString& file) {
    if (window_) {
        return true;
    }
    const QString place = placeOf(file);
    if (!QFileInfo::exists(place)) {
        complain(QStringLiteral("Le fichier d'aide %1 est introuvable."), file);
        return false;
    }
    auto opened = std::make_unique<HelpFile>(place);
    if (!opened->isReadable()) {
        complain(QStringLiteral("Le fichier d'aide %1 ne peut pas être lu."), place);
        return false;
    }
    window_ = new HelpWindow(std::move(opened), printers_);
    return true;
}

// A window that keeps the others from taking input leaves its own children alone: the help becomes one, and goes with
// it.
void RealHelp::standInFrontOfModal() {
    QWidget* modal = QApplication::activeModalWidget();
    if (modal && modal != window_ && window_->parentWidget() != modal) {
        const QRect place = window_->geometry();
        window_->setParent(modal, Qt::Window);
        window_->setGeometry(place);
    }
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
