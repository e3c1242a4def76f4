#pragma once

#include <QColor>
#include <QFont>

class QApplication;
class QIcon;

namespace qt::theme {

/// The step of the grid on which widgets stand, in pixels; margins and gaps are multiples of it.
inline constexpr int kGrid = 8;

/// Gives the application its look: Fusion, the system's palette with one accent colour, 10-point text. A desktop that
/// hands Qt no palette can be told by the environment: VERANOX_PALETTE=claire or VERANOX_PALETTE=sombre.
void apply(QApplication& application);

/// Whether the palette in use is a dark one.
bool isDark();

/// A colour with a part (0 to 1) of another in it.
QColor mixed(const QColor& color, const QColor& other, double part);

/// A colour of text that stands out from what is behind it: the same, made lighter or darker as far as need be.
QColor readable(QColor text, const QColor& behind);

QFont sectionFont();
/// For composed lines that align by blanks.
QFont fixedFont();
/// For the name of the patient and the titles of windows.
QFont headingFont();

/// The program's icon.
QIcon windowIcon();

}  // namespace qt::theme
