#pragma once

#include <QString>
#include <functional>

class QWidget;

namespace qt {

/// What a fetus of the later trimesters has: the phrases across, the measures as a grid of three columns with their
/// units, the arteries, and the morphology, which takes the room that is left. `field` makes the widget of a place in
/// the row of a fetus's fields, with its caption.
void layOutFetus(QWidget* body, const std::function<QWidget*(int place, const QString& caption)>& field);

}  // namespace qt
