#include "port/box_watcher.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDialogButtonBox>
#include <QEvent>
#include <QFileDialog>
#include <QJsonObject>
#include <QLineEdit>
#include <QMessageBox>
#include <QPointer>
#include <QPrintDialog>
#include <QPushButton>
#include <QTimer>

#include "qt/real_font_dialog.h"

namespace port {
namespace {

const QString kNoneWaiting = QStringLiteral("none waiting");

QString iconName(QMessageBox::Icon icon) {
    switch (icon) {
        case QMessageBox::Information:
            return QStringLiteral("information");
        case QMessageBox::Question:
            return QStringLiteral("question");
        case QMessageBox::Warning:
            return QStringLiteral("exclamation");
        case QMessageBox::Critical:
            return QStringLiteral("critical");
        case QMessageBox::NoIcon:
            break;
    }
    return {};
}

QAbstractButton* buttonOf(const QMessageBox* box, QMessageBox::ButtonRole role) {
    for (QAbstractButton* button : box->buttons()) {
        if (box->buttonRole(button) == role) {
            return button;
        }
    }
    return nullptr;
}

QJsonObject describe(const QMessageBox* box, const QString& defaultButton, const QString& answered) {
    return {{QStringLiteral("kind"), box->objectName()}, {QStringLiteral("title"), box->windowTitle()},
            {QStringLiteral("text"), box->text()},       {QStringLiteral("icon"), iconName(box->icon())},
            {QStringLiteral("default"), defaultButton},  {QStringLiteral("answered"), answered}};
}

// What is known of a dialog that says nothing.
QJsonObject describe(const QDialog* dialog, const QString& answered) {
    return {{QStringLiteral("kind"), dialog->objectName()},
            {QStringLiteral("title"), dialog->windowTitle()},
            {QStringLiteral("text"), QString()},
            {QStringLiteral("icon"), QString()},
            {QStringLiteral("default"), QStringLiteral("ok")},
            {QStringLiteral("answered"), answered}};
}

void press(const QDialog* dialog, QDialogButtonBox::StandardButton which) {
    for (const QDialogButtonBox* box : dialog->findChildren<QDialogButtonBox*>()) {
        if (QPushButton* button = box->button(which)) {
            button->click();
            return;
        }
    }
}

// Leaves a dialog that didn't take what it was told, as a person would have to.
void leave(QDialog* dialog) {
    if (const QPointer<QDialog> open(dialog); open && open->isVisible()) {
        open->reject();
    }
}

// A question of the toolkit's own: whether a file may be replaced.
void agree(const QMessageBox* box) {
    QAbstractButton* yes = box->button(QMessageBox::Yes);
    (yes ? yes : box->buttons().constFirst())->click();
}

ports::FontChoice changed(ports::FontChoice font, const QJsonObject& given) {
    font.name = given.value(u"name").toString(font.name);
    font.size = given.value(u"size").toDouble(font.size);
    font.bold = given.value(u"bold").toBool(font.bold);
    font.italic = given.value(u"italic").toBool(font.italic);
    font.underline = given.value(u"underline").toBool(font.underline);
    font.strike = given.value(u"strike").toBool(font.strike);
    if (const QColor color(given.value(u"color").toString()); color.isValid()) {
        font.color = color;
    }
    return font;
}

}  // namespace

BoxWatcher::BoxWatcher() {
    qApp->installEventFilter(this);
}

void BoxWatcher::queue(const QJsonArray& answers) {
    for (const QJsonValue& answer : answers) {
        answers_.append(answer);
    }
}

QJsonArray BoxWatcher::takeSeen() {
    return std::exchange(seen_, {});
}

QJsonValue BoxWatcher::next() {
    return answers_.isEmpty() ? QJsonValue(QJsonValue::Undefined) : answers_.takeAt(0);
}

bool BoxWatcher::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Show) {
        if (auto* dialog = qobject_cast<QDialog*>(watched)) {
            QTimer::singleShot(0, dialog, [this, dialog] { answer(dialog); });
        }
    }
    return false;
}

void BoxWatcher::answer(QDialog* dialog) {
    if (auto* file = qobject_cast<QFileDialog*>(dialog)) {
        answerFile(file);
    } else if (auto* print = qobject_cast<QPrintDialog*>(dialog)) {
        answerPrint(print);
    } else if (auto* font = dynamic_cast<qt::FontBox*>(dialog)) {
        answerFont(font);
    } else if (auto* box = qobject_cast<QMessageBox*>(dialog)) {
        if (box->objectName().isEmpty()) {
            agree(box);
        } else {
            box->objectName() == u"question" ? answerQuestion(box) : answerMessage(box);
        }
    }
}

void BoxWatcher::answerMessage(QMessageBox* box) {
    if (!answers_.isEmpty() && answers_.first() == QJsonValue(QStringLiteral("ok"))) {
        answers_.removeFirst();
    }
    seen_.append(describe(box, QStringLiteral("ok"), QStringLiteral("ok")));
    buttonOf(box, QMessageBox::AcceptRole)->click();
}

void BoxWatcher::answerQuestion(QMessageBox* box) {
    const QString given = next().toString(kNoneWaiting);
    QAbstractButton* yes = buttonOf(box, QMessageBox::YesRole);
    const bool defaultYes = box->defaultButton() == yes;
    seen_.append(describe(box, defaultYes ? QStringLiteral("yes") : QStringLiteral("no"), given));
    (given == u"yes" ? yes : buttonOf(box, QMessageBox::NoRole))->click();
}

void BoxWatcher::answerFile(QFileDialog* dialog) {
    const QJsonValue given = next();
    const QString file = given.toObject().value(u"file").toString();
    QJsonObject box{{QStringLiteral("kind"), dialog->objectName()},
                    {QStringLiteral("title"), dialog->windowTitle()},
                    {QStringLiteral("text"), QString()},
                    {QStringLiteral("icon"), QString()},
                    {QStringLiteral("default"), QStringLiteral("ok")},
                    {QStringLiteral("proposed"), dialog->property("proposed").toString()},
                    {QStringLiteral("folder"), dialog->directory().absolutePath()},
                    {QStringLiteral("filter"), dialog->property("filterText").toString()},
                    {QStringLiteral("answered"), file.isEmpty() ? given.toString(kNoneWaiting) : file}};
    seen_.append(box);
    if (file.isEmpty()) {
        dialog->reject();
        return;
    }
    const int filter = given.toObject().value(u"filter").toInt(0);
    if (filter > 0 && filter <= dialog->nameFilters().size()) {
        const QString chosen = dialog->nameFilters().at(filter - 1);
        dialog->selectNameFilter(chosen);
        Q_EMIT dialog->filterSelected(chosen);
    }
    dialog->selectFile(file);
    static_cast<QDialog*>(dialog)->setResult(QDialog::Accepted);
    QMetaObject::invokeMethod(dialog, "accept");
    if (QPointer<QFileDialog> open(dialog); open && open->isVisible()) {
        // The dialog refused the name (a file that isn't there): leave it as a person would have to.
        dialog->reject();
    }
}

void BoxWatcher::answerPrint(QPrintDialog* dialog) {
    const QJsonValue given = next();
    const QString file = given.toObject().value(u"file").toString();
    seen_.append(describe(dialog, file.isEmpty() ? given.toString(kNoneWaiting) : file));
    if (auto* name = dialog->findChild<QLineEdit*>(QStringLiteral("filename")); name && !file.isEmpty()) {
        name->setText(file);
    }
    const bool accepts = !file.isEmpty() || given == QJsonValue(QStringLiteral("ok"));
    press(dialog, accepts ? QDialogButtonBox::Ok : QDialogButtonBox::Cancel);
    leave(dialog);
}

void BoxWatcher::answerFont(qt::FontBox* dialog) {
    const QJsonValue given = next();
    const QJsonValue font = given.toObject().value(u"font");
    seen_.append(describe(dialog, font.isObject() ? QStringLiteral("ok") : given.toString(kNoneWaiting)));
    if (font.isObject()) {
        dialog->show(changed(dialog->choice(), font.toObject()));
    }
    const bool accepts = font.isObject() || given == QJsonValue(QStringLiteral("ok"));
    press(dialog, accepts ? QDialogButtonBox::Ok : QDialogButtonBox::Cancel);
    leave(dialog);
}

}  // namespace port
