#pragma once

#include <cstdint>

class QTextDocument;

namespace reports {

/// The unit of every layout: 1440 an inch.
inline constexpr int kTwipsPerInch = 1440;

/// Has a document laid out in twips whatever the screen: 1 is one twip, a point is 20. All whole point sizes are exact
/// there, so that lines break at the same place on every screen and every paper. It takes effect as the document is
/// given a width.
void measureInTwips(QTextDocument& document);

/// Device pixels in twips, to the nearest. Throws Overflow.
std::int32_t toTwips(std::int32_t pixels, std::int32_t dpi);

/// The difference of two 32-bit values. Throws Overflow where it is none.
std::int32_t subtract(std::int32_t from, std::int32_t value);

}  // namespace reports
