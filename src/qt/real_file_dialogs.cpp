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

QString RealFileDialogs::open(const QString& filter, const QString& proposed) {
    QFileDialog dialog(QApplication::activeWindow(), QObject::tr("Ouvrir"),
                       folder_.isEmpty() ? QDir::homePath() : folder_);
    dialog.setObjectName(QStringLiteral("open"));
    dialog.setProperty("filterText", filter);
    dialog.setOption(QFileDialog::DontUseNativeDialog);
    dialog.setFileMode(QFileDialog::ExistingFile);
    dialog.setNameFilter(toolkitFilter(filter));
    dialog.setProperty("proposed", proposed);
    if (!proposed.isEmpty() && proposed != u"*.*") {
        dialog.selectFile(proposed);
    }
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) {
        return {};
    }
    folder_ = dialog.directory().absolutePath();
    return QDir::toNativeSeparators(dialog.selectedFiles().first());
}

}  // namespace qt
