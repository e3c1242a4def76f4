#include "qt/key_filter.h"

#include <QCoreApplication>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QWheelEvent>
#include <utility>

#include "forms/key_filters.h"

namespace qt {

KeyFilter::KeyFilter(QWidget* editor, Slots slots) : QObject(editor), editor_(editor), slots_(std::move(slots)) {
    editor->installEventFilter(this);
}

bool KeyFilter::eventFilter(QObject*, QEvent* event) {
    if (sending_) {
        return false;
    }
    if (event->type() == QEvent::KeyPress) {
        return filterKey(static_cast<QKeyEvent*>(event));
    }
    if (event->type() == QEvent::InputMethod) {
        return filterInput(static_cast<QInputMethodEvent*>(event));
    }
    return false;
}

QString KeyFilter::filtered(const QString& text) const {
    QString result;
    for (const QChar c : text) {
        forms::KeyPress key(c);
        slots_.typed(key);
        if (!key.swallowed()) {
            result += key.character();
        }
    }
    return result;
}

bool KeyFilter::swallowsBackspace() const {
    forms::KeyPress key(forms::kBackspace);
    slots_.typed(key);
    return key.swallowed();
}

bool KeyFilter::filterKey(QKeyEvent* event) {
    const bool bare = !(event->modifiers() & (Qt::ShiftModifier | Qt::ControlModifier | Qt::AltModifier));
    if (bare && (event->key() == Qt::Key_Left || event->key() == Qt::Key_Right)) {
        slots_.pressed(event->key() == Qt::Key_Left ? forms::Key::Left : forms::Key::Right);
        return false;
    }
    const bool command = event->modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier);
    if (command || !slots_.filters()) {
        return false;
    }
    if (event->key() == Qt::Key_Backspace) {
        return swallowsBackspace();
    }
    const QString text = event->text();
    if (text.isEmpty() || !text.at(0).isPrint()) {
        return false;
    }
    const QString result = filtered(text);
    if (result == text) {
        return false;
    }
    if (!result.isEmpty()) {
        QKeyEvent other(QEvent::KeyPress, 0, Qt::NoModifier, result);
        sending_ = true;
        QCoreApplication::sendEvent(editor_, &other);
        sending_ = false;
    }
    return true;
}

bool KeyFilter::filterInput(QInputMethodEvent* event) {
    if (event->commitString().isEmpty() || !slots_.filters()) {
        return false;
    }
    QInputMethodEvent other(event->preeditString(), event->attributes());
    other.setCommitString(filtered(event->commitString()), event->replacementStart(), event->replacementLength());
    sending_ = true;
    QCoreApplication::sendEvent(editor_, &other);
    sending_ = false;
    return true;
}

PressFilter::PressFilter(QWidget* watched, std::function<bool(const QKeyEvent&)> pressed)
    : QObject(watched), pressed_(std::move(pressed)) {
    watched->installEventFilter(this);
}

bool PressFilter::eventFilter(QObject*, QEvent* event) {
    return event->type() == QEvent::KeyPress && pressed_(*static_cast<QKeyEvent*>(event));
}

bool isEnter(const QKeyEvent& event) {
    return event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
}

namespace {

bool takesTab(const QWidget* widget) {
    return widget->isVisible() && widget->isEnabled() && (widget->focusPolicy() & Qt::TabFocus) &&
           !widget->focusProxy();
}

/// The next field behind this one, buttons passed over; null if there is none before the walk starts again.
QWidget* fieldBehind(QWidget* field) {
    QWidget* next = field->nextInFocusChain();
    while (!next->isWindow() && !(takesTab(next) && !qobject_cast<QPushButton*>(next))) {
        next = next->nextInFocusChain();
    }
    return next->isWindow() ? nullptr : next;
}

}  // namespace

void walkOnAtEnter(QWidget* field) {
    const bool severalLines = qobject_cast<QPlainTextEdit*>(field) != nullptr;
    new PressFilter(field, [field, severalLines](const QKeyEvent& event) {
        const bool withControl = event.modifiers() & Qt::ControlModifier;
        if (!isEnter(event) || (severalLines && !withControl)) {
            return false;
        }
        if (QWidget* next = fieldBehind(field)) {
            next->setFocus(Qt::TabFocusReason);
        } else {
            QKeyEvent tab(QEvent::KeyPress, Qt::Key_Tab, Qt::NoModifier);
            QCoreApplication::sendEvent(field, &tab);
        }
        return true;
    });
}

void QuietComboBox::wheelEvent(QWheelEvent* event) {
    event->ignore();
}

void QuietSlider::wheelEvent(QWheelEvent* event) {
    event->ignore();
}

}  // namespace qt
