#include "qt/real_clipboard.h"

#include <QApplication>
#include <QClipboard>

namespace qt {

QString RealClipboard::text() const {
    QString text = QApplication::clipboard()->text();
    return text.replace(QStringLiteral("\r\n"), QStringLiteral("\n")).replace(u'\n', QStringLiteral("\r\n"));
}

void RealClipboard::setText(const QString& text) {
    QString plain = text;
    QApplication::clipboard()->setText(plain.replace(QStringLiteral("\r\n"), QStringLiteral("\n")));
}

}  // namespace qt
