#pragma once

#include <QIcon>

namespace qt {

/// A line drawing of this program as an icon, in the colour that the palette has for text on buttons; in the accent
/// colour where it is pressed. `name` is the drawing's file name without its ending.
QIcon inkIcon(const QString& name);

}  // namespace qt
