#include "qt/help_file.h"

#include <QHelpEngineCore>

namespace qt {

HelpFile::HelpFile(const QString& path)
    : engine_(std::make_unique<QHelpEngineCore>(folder_.filePath(QStringLiteral("aide.qhc")))) {
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

}  // namespace qt
