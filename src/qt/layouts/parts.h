#pragma once

#include <QBoxLayout>
#include <initializer_list>

class QLabel;
class QWidget;

namespace qt {

/// A column or a row with the margins and gaps of the grid; `margin` in steps of it.
QVBoxLayout* newColumn(QWidget* parent = nullptr, int margin = 0);
QHBoxLayout* newRow(QWidget* parent = nullptr, int margin = 0);

/// A caption that leads to its field: an Alt key in it moves the focus there.
QLabel* newCaption(const QString& text, QWidget* field);

/// Lets a widget scroll upwards and downwards where there is no room for all of it. Tab stops at its fields alone.
QWidget* scrolling(QWidget* content);

/// Takes a panel off the screen while a picture is seen in its place. A keyboard that is in the panel then goes to the
/// button that leads back, and returns with it.
void coverWhileSeen(QWidget* panel, QWidget* picture, QWidget* back);

/// Tab walks these widgets in this order.
void setTabOrder(std::initializer_list<QWidget*> widgets);

}  // namespace qt
