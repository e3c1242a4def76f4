#pragma once

#include <QString>
#include <cstdint>
#include <functional>
#include <memory>

class QColor;
class QGlyphRun;
class QPainter;
class QPointF;

namespace ports {

/// The page of a printer. Twips are 1440 an inch.
struct PageGeometry {
    /// The whole sheet, in twips.
    std::int32_t width = 0;
    std::int32_t height = 0;
    /// Device pixels an inch, across and down.
    std::int32_t dpiX = 0;
    std::int32_t dpiY = 0;
    /// What the printer can't reach at the left and at the top, in device pixels. A job's origin lies there.
    std::int32_t physicalOffsetX = 0;
    std::int32_t physicalOffsetY = 0;
};

/// A document on its way to a printer.
class PrintJob {
public:
    virtual ~PrintJob() = default;
    /// Draws on the page at hand, in device pixels from the first point that can be printed.
    virtual QPainter& painter() = 0;
    /// Throws DeviceError if the printer refuses.
    virtual void newPage() = 0;
    /// Ends the document; nothing is drawn after it. Throws DeviceError where the document can't be kept, as on a full
    /// disk. A document that is let go of without it may be given up.
    virtual void end() {}
};

/// A document of text alone on its way to a printer.
class TextJob {
public:
    virtual ~TextJob() = default;
    /// Draws on the page at hand; `at` is in twips from the first point that can be printed.
    virtual void draw(const QGlyphRun& glyphs, QPointF at, const QColor& color) = 0;
    /// Throws DeviceError if the printer refuses.
    virtual void newPage() = 0;
    /// Ends the document; nothing is drawn after it. Throws DeviceError where it can't be kept.
    virtual void end() = 0;
};

/// One printer, with the paper it is to print on.
class Printer {
public:
    virtual ~Printer() = default;
    virtual PageGeometry geometry() const = 0;
    /// Opens a document. Throws DeviceError if that fails.
    virtual std::unique_ptr<PrintJob> open(const QString& title) = 0;
    /// Opens a document of text alone; it may take a shorter way than all that a painter draws. Throws DeviceError if
    /// that fails.
    virtual std::unique_ptr<TextJob> openText(const QString& title);
};

/// The printers of the machine.
class Printers {
public:
    virtual ~Printers() = default;
    /// The one that serves where none is chosen, with A4 paper upright; null on a machine without a printer.
    virtual std::unique_ptr<Printer> standard() = 0;
    /// Prints, by this function, a whole document on a printer.
    using Print = std::function<void(Printer&)>;
    /// Lets a person choose a printer and its paper, or a PDF file, and prints there; nothing on Cancel. Before that
    /// the person may look at the pages, as often as he likes. Throws what `print` throws.
    virtual void choose(const Print& print) = 0;
};

}  // namespace ports
