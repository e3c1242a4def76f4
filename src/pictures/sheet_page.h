#pragma once

#include <QRectF>
#include <QString>
#include <memory>
#include <optional>
#include <span>

#include "pictures/album_sheet.h"
#include "ports/printer.h"

class QImage;

namespace pictures {

/// A line of text on a picture sheet.
struct SheetLine {
    QString text;
    double points = 20;
    bool bold = false;
    /// Where it stands, in millimetres from the top; none is below the line before.
    std::optional<double> top = std::nullopt;

    bool operator==(const SheetLine&) const = default;
};

/// What opens a page: an empty line of the printer's own size.
SheetLine openingLine();
/// The foot of a page, which has its own place. The blanks inside it carry its second word off the paper.
SheetLine footLine();

/// The one page of a picture sheet on its way to a printer. Its origin is the first point that the printer reaches.
/// What comes later lies over what came before.
class SheetPage {
public:
    /// Opens the document. Throws DeviceError.
    SheetPage(ports::Printer& printer, const QString& title);

    void print(const SheetLine& line);
    /// Stretches a picture to a rectangle in millimetres, whatever its shape. All its pixels go to the printer.
    void draw(const QImage& picture, const QRectF& place);
    /// Draws pictures in their order into the places of an arrangement; those without a place are left out.
    void draw(std::span<const QImage> pictures, const Arrangement& arrangement);
    /// Ends the document. Throws DeviceError.
    void end() { job_->end(); }

private:
    ports::PageGeometry page_;
    std::unique_ptr<ports::PrintJob> job_;
    // Where the next line stands, in twips.
    double next_ = 0;
};

}  // namespace pictures
