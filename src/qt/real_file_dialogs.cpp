#include "qt/real_file_dialogs.h"

#include <QApplication>
#include <QDir>
#include <QFileDialog>

namespace qt {
namespace {

// A file system may tell "ECHO.MDB" from "echo.mdb", the filter does not.
QString anyCase(const QString& pattern) {
    if (pattern == u"*.*") {
        return QStringLiteral("*");
    }
    return pattern == pattern.toLower() ? pattern : pattern + u' ' + pattern.toLower();
}

// "jpg" and "bmp" of "Jpeg|*.jpg|Bitmap|*.bmp".
QStringList endingsOf(const QString& filter) {
    const QStringList parts = filter.split(u'|');
    QStringList endings;
    for (qsizetype i = 1; i < parts.size(); i += 2) {
        endings << parts[i].section(u';', 0, 0).section(u'.', -1);
    }
    return endings;
}

// A proposed name is one name in the dialog's folder, whatever a patient is called. Quotation marks would make several
// of it.
QString oneName(QString proposed) {
    for (QChar& c : proposed) {
        c = c == u'/' || c == u'"' || c < u' ' ? QChar(u'_') : c;
    }
    return proposed;
}

void prepare(QFileDialog& dialog, const QString& name, const QString& filter, const QString& proposed) {
    dialog.setObjectName(name);
    dialog.setProperty("filterText", filter);
    dialog.setProperty("proposed", proposed);
    dialog.setOption(QFileDialog::DontUseNativeDialog);
    dialog.setNameFilter(toolkitFilter(filter));
    if (!proposed.isEmpty()) {
        dialog.selectFile(proposed);
    }
}

}  // namespace

QString toolkitFilter(const QString& filter) {
    const QStringList parts = filter.split(u'|');
    QStringList result;
    for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
        QStringList patterns;
        for (const QString& pattern : parts[i + 1].split(u';', Qt::SkipEmptyParts)) {
            patterns << anyCase(pattern.trimmed());
        }
        const QString caption = parts[i].section(u'(', 0, 0).trimmed();
        result << QStringLiteral("%1 (%2)").arg(caption, patterns.join(u' '));
    }
    return result.join(QStringLiteral(";;"));
}

QString RealFileDialogs::open(const QString& filter, const QString& proposed, ports::MustExist mustExist) {
    QFileDialog dialog(QApplication::activeWindow(), QObject::tr("Ouvrir"), lastFolder());
    prepare(dialog, QStringLiteral("open"), filter, proposed == u"*.*" ? QString() : proposed);
    dialog.setProperty("proposed", proposed);
    dialog.setFileMode(mustExist == ports::MustExist::Yes ? QFileDialog::ExistingFile : QFileDialog::AnyFile);
    return run(dialog);
}

std::optional<ports::SaveChoice> RealFileDialogs::save(const ports::SaveRequest& request) {
    QFileDialog dialog(QApplication::activeWindow(), QObject::tr("Enregistrer sous"),
                       request.folder.isEmpty() ? lastFolder() : request.folder);
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setFileMode(QFileDialog::AnyFile);
    // A name without ending gets that of the filter, before it is looked up whether the file is there.
    const QStringList endings = endingsOf(request.filter);
    const auto follow = [&dialog, endings] {
        dialog.setDefaultSuffix(endings.value(dialog.nameFilters().indexOf(dialog.selectedNameFilter())));
    };
    QObject::connect(&dialog, &QFileDialog::filterSelected, &dialog, follow);
    prepare(dialog, QStringLiteral("save"), request.filter, oneName(request.proposed));
    dialog.selectNameFilter(dialog.nameFilters().value(request.filterIndex - 1));
    follow();
    const QString file = run(dialog);
    if (file.isEmpty()) {
        return {};
    }
    return ports::SaveChoice{file, static_cast<int>(dialog.nameFilters().indexOf(dialog.selectedNameFilter())) + 1};
}

QString RealFileDialogs::lastFolder() const {
    return folder_.isEmpty() ? QDir::homePath() : folder_;
}

QString RealFileDialogs::run(QFileDialog& dialog) {
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) {
        return {};
    }
    folder_ = dialog.directory().absolutePath();
    return QDir::toNativeSeparators(dialog.selectedFiles().first());
}

}  // namespace qt
