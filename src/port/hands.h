#pragma once

#include <QJsonObject>
#include <QString>

#include "forms/controls.h"
#include "qt/form_window.h"

class QAction;

namespace port {

/// A control, its window and the widget that a person meets there.
struct Target {
    forms::Control* control = nullptr;
    qt::FormWindow* window = nullptr;
    QWidget* widget = nullptr;
    QAction* action = nullptr;  // of a menu entry, which has no widget
};

/// What a person can do with a control. Each throws PortError where a person could not.
namespace hands {

/// Throws PortError if a window in front keeps this one from taking input.
void requireInput(const qt::FormWindow& window);
/// Throws PortError unless the control can be seen, is enabled and its window takes input.
void reach(const Target& target);
void focus(const Target& target);
void type(const Target& target, const QString& text);
void replace(const Target& target, const QString& text);
void key(const Target& target, const QString& keys);
void click(const Target& target, const QJsonObject& request);
void doubleClick(const Target& target, const QJsonObject& request);
void rightClick(const Target& target);
void pick(const Target& target, const QString& date);
/// Moves a scroll bar.
void scroll(const Target& target, int value);
void choose(const Target& target, const QJsonObject& request);

}  // namespace hands

/// What the control shows, as told to the client.
QJsonObject look(const Target& target);

/// The text of a rich text in pieces of the same attributes.
QJsonObject format(const Target& target);

/// Why a request can't be carried out.
struct PortError {
    QString why;
};

}  // namespace port
