#pragma once

#include <QString>

namespace qt {

/// The first device of the machine that delivers pictures; empty if there is none.
QString firstVideoDevice();

/// Switches a card to one of its inputs, by its name without regard to case; the card keeps it. False if there is no
/// such card or no such input.
bool selectVideoInput(const QString& device, const QString& input);

}  // namespace qt
