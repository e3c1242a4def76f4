#pragma once

#include <QComboBox>
#include <QObject>
#include <QSlider>
#include <functional>

#include "forms/control.h"

class QKeyEvent;
class QWidget;

namespace qt {

/// Stands between the keyboard and an editor: each typed character, Backspace and what an input method commits among
/// them, goes through the control's key filter first. Pasted text doesn't pass here.
class KeyFilter final : public QObject {
public:
    struct Slots {
        /// Whether there is a filter at present.
        std::function<bool()> filters;
        std::function<void(forms::KeyPress&)> typed;
        std::function<void(forms::Key)> pressed;
    };

    KeyFilter(QWidget* editor, Slots slots);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool filterKey(QKeyEvent* event);
    bool filterInput(QInputMethodEvent* event);
    bool swallowsBackspace() const;
    QString filtered(const QString& text) const;

    QWidget* editor_;
    Slots slots_;
    bool sending_ = false;
};

/// Calls a handler at a key press; what the handler takes goes no further.
class PressFilter final : public QObject {
public:
    PressFilter(QWidget* watched, std::function<bool(const QKeyEvent&)> pressed);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    std::function<bool(const QKeyEvent&)> pressed_;
};

bool isEnter(const QKeyEvent& event);

/// Enter or Ctrl+Enter walks out of a field of one line to the next field, past the buttons; Ctrl+Enter out of one of
/// several lines. Behind the last field it goes where Tab goes.
void walkOnAtEnter(QWidget* field);

/// A combo box that the mouse wheel passes over without changing it.
class QuietComboBox final : public QComboBox {
public:
    QuietComboBox() { setFocusPolicy(Qt::StrongFocus); }

protected:
    void wheelEvent(QWheelEvent* event) override;
};

/// A slider that the mouse wheel passes over without moving it.
class QuietSlider final : public QSlider {
public:
    QuietSlider() : QSlider(Qt::Horizontal) { setFocusPolicy(Qt::StrongFocus); }

protected:
    void wheelEvent(QWheelEvent* event) override;
};

}  // namespace qt
