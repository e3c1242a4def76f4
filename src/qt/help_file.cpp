#include "qt/help_file.h"

#include <QHelpEngine>
#include <QHelpLink>
#include <QRegularExpression>

namespace qt {

HelpFile::HelpFile(const QString& path)
    : engine_(std::make_unique<QHelpEngine>(folder_.filePath(QStringLiteral("aide.qhc")))) {
    engine_->setReadOnly(false);
    const QString space = QHelpEngineCore::namespaceName(path);
    if (!space.isEmpty() && engine_->setupData() && engine_->registerDocumentation(path)) {
        contents_ = QUrl(QStringLiteral("qthelp://%1/aide/sommaire.html").arg(space));
    }
}

HelpFile::~HelpFile() = default;

bool HelpFile::isReadable() const {
    return !contents_.isEmpty() && !page(contents_).isEmpty();
}

QByteArray HelpFile::page(const QUrl& address) const {
    return engine_->fileData(address);
}

QList<QUrl> HelpFile::chapters() const {
    static const QRegularExpression kLink(QStringLiteral("href=\"([^\"]+)\""));
    QList<QUrl> chapters{contents_};
    const QString page = QString::fromUtf8(this->page(contents_));
    for (const QRegularExpressionMatch& link : kLink.globalMatch(page)) {
        chapters << contents_.resolved(QUrl(link.captured(1)));
    }
    return chapters;
}

QUrl HelpFile::chapterOf(const QString& window) const {
    const QList<QHelpLink> links = engine_->documentsForIdentifier(window, QString());
    return links.isEmpty() ? QUrl() : links.first().url;
}

}  // namespace qt
