#pragma once

#include <cstdint>

#include "forms/rich_text.h"
#include "ports/printer.h"
#include "reports/page_renderer.h"

namespace reports {

/// The distances of a text from the edges of the sheet, in twips.
struct Margins {
    std::int32_t left = 0;
    std::int32_t top = 0;
    std::int32_t right = 0;
    std::int32_t bottom = 0;
};

/// The margins for which the editor breaks its lines, and those of the paper. That they differ is the program's
/// setting: on paper lines break at other places than in the editor.
inline constexpr Margins kEditorMargins{360, 360, 360, 360};
inline constexpr Margins kPaperMargins{1440, 1440, 1440, 1440};

/// How much of the sheet lies between the margins, in twips.
struct PrintableArea {
    std::int32_t width = 0;
    std::int32_t height = 0;
    bool operator==(const PrintableArea&) const = default;
};

/// Has the editor break its lines as this printer would between these margins. Nothing is printed. Throws Overflow.
PrintableArea WYSIWYG_RTF(forms::RichText& editor, const ports::PageGeometry& page, const Margins& margins);

/// Where the text stands on the page, in twips from the first point that the printer reaches. Throws Overflow.
Rectangle drawingRectangle(const ports::PageGeometry& page, const Margins& margins);

/// Prints page after page until the text has come to its end. Throws DeviceError.
void printPages(PageRenderer& renderer, ports::TextJob& job, int textLength);

/// Prints the whole text between the margins. Throws DeviceError and Overflow.
void PrintRTF(const forms::RichText& editor, ports::Printer& printer, const QString& title, const Margins& margins);

}  // namespace reports
