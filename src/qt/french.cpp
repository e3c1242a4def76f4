#include "qt/french.h"

#include <QApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

namespace qt {

void speakFrench(QApplication& application) {
    const QLocale french(QLocale::French, QLocale::France);
    QLocale::setDefault(french);
    auto* translator = new QTranslator(&application);
    if (translator->load(QStringLiteral("qtbase_fr"), QLibraryInfo::path(QLibraryInfo::TranslationsPath))) {
        QApplication::installTranslator(translator);
    }
    QApplication::setApplicationName(QStringLiteral("veranox"));
    QApplication::setApplicationDisplayName({});
    QApplication::setApplicationVersion(QStringLiteral("3.11"));
}

}  // namespace qt
