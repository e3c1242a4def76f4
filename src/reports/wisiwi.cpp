#include "reports/wisiwi.h"

#include "reports/twips.h"

namespace reports {

PrintableArea WYSIWYG_RTF(forms::RichText& editor, const ports::PageGeometry& page, const Margins& margins) {
    const std::int32_t leftOffset = toTwips(page.physicalOffsetX, page.dpiX);
    const std::int32_t left = subtract(margins.left, leftOffset);
    const std::int32_t right = subtract(subtract(page.width, margins.right), leftOffset);
    // By the horizontal measure, like the left one; both measures agree on every printer at hand.
    const std::int32_t topOffset = toTwips(page.physicalOffsetY, page.dpiX);
    const std::int32_t top = subtract(margins.top, topOffset);
    const std::int32_t bottom = subtract(subtract(page.height, margins.bottom), topOffset);
    const PrintableArea area{subtract(right, left), subtract(bottom, top)};
    editor.setLineWidth(area.width);
    return area;
}

Rectangle drawingRectangle(const ports::PageGeometry& page, const Margins& margins) {
    const std::int32_t leftOffset = toTwips(page.physicalOffsetX, page.dpiX);
    const std::int32_t topOffset = toTwips(page.physicalOffsetY, page.dpiY);
    return {subtract(margins.left, leftOffset), subtract(margins.top, topOffset),
            subtract(subtract(page.width, margins.right), leftOffset),
            subtract(subtract(page.height, margins.bottom), topOffset)};
}

void printPages(PageRenderer& renderer, ports::TextJob& job, int textLength) {
    for (int first = 0; (first = renderer.render(job, first)) < textLength;) {
        job.newPage();
    }
    job.end();
}

void PrintRTF(const forms::RichText& editor, ports::Printer& printer, const QString& title, const Margins& margins) {
    const Rectangle drawing = drawingRectangle(printer.geometry(), margins);
    const std::unique_ptr<ports::TextJob> job = printer.openText(title);
    TextRenderer renderer(editor.document(), drawing);
    printPages(renderer, *job, renderer.textLength());
}

}  // namespace reports
