#pragma once

#include <cairo-ft.h>

class QRawFont;

namespace qt {

/// The same font for the library that writes PDF files, bold or slanted by computation where the toolkit has it so.
/// Faces are kept while the program runs, one a font whatever its size. Null for a font without outlines in tables.
cairo_font_face_t* faceOf(const QRawFont& font);

}  // namespace qt
