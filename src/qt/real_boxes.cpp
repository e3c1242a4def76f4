#include "qt/real_boxes.h"

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>

namespace qt {
namespace {

QMessageBox::Icon realIcon(ports::Icon icon) {
    switch (icon) {
        case ports::Icon::Information:
            return QMessageBox::Information;
        case ports::Icon::Question:
            return QMessageBox::Question;
        case ports::Icon::Exclamation:
            return QMessageBox::Warning;
        case ports::Icon::Critical:
            return QMessageBox::Critical;
        case ports::Icon::None:
            break;
    }
    return QMessageBox::NoIcon;
}

bool defaultsToNo(ports::Icon icon, ports::DefaultAnswer answer) {
    return answer == ports::DefaultAnswer::No ||
           (answer == ports::DefaultAnswer::Usual && icon == ports::Icon::Critical);
}

void prepare(QMessageBox& box, const QString& name, const QString& title, const QString& text, ports::Icon icon) {
    box.setObjectName(name);
    box.setWindowTitle(title);
    box.setTextFormat(Qt::PlainText);
    box.setText(text);
    box.setIcon(realIcon(icon));
}

void tell(const QString& name, const QString& text, ports::Icon icon) {
    QMessageBox box(QApplication::activeWindow());
    prepare(box, name, ports::kMessageTitle, text, icon);
    box.addButton(QObject::tr("&OK"), QMessageBox::AcceptRole);
    box.exec();
}

}  // namespace

void RealBoxes::message(const QString& text, ports::Icon icon) {
    tell(QStringLiteral("message"), text, icon);
}

bool RealBoxes::ask(const QString& text, ports::Icon icon, const ports::Asking& asking) {
    QMessageBox box(QApplication::activeWindow());
    prepare(box, QStringLiteral("question"), asking.title.isEmpty() ? ports::kQuestionTitle : asking.title, text, icon);
    auto* yes = box.addButton(QObject::tr("&Oui"), QMessageBox::YesRole);
    auto* no = box.addButton(QObject::tr("&Non"), QMessageBox::NoRole);
    box.setDefaultButton(defaultsToNo(icon, asking.defaultAnswer) ? no : yes);
    box.setEscapeButton(no);
    box.exec();
    return box.clickedButton() == yes;
}

void RealBoxes::report(const base::RuntimeError& error) {
    tell(QStringLiteral("error"), ports::reportText(error), ports::Icon::Critical);
}

}  // namespace qt
