#pragma once

#include <cairo.h>

#include <QByteArray>
#include <QColor>
#include <QPointF>
#include <QRawFont>
#include <QSizeF>
#include <vector>

#include "ports/printer.h"
#include "qt/file_in_making.h"

namespace qt {

/// How the sheets of a PDF file are made.
struct PdfSheet {
    /// In points, 72 an inch.
    QSizeF size;
    /// Where a job's origin lies, in points from the upper left corner of the sheet.
    QPointF origin;
    bool grey = false;
};

/// Text alone as a PDF file, in half the time of a painter, which has to be able to draw anything. The file is there,
/// whole, when the document has ended; until then what stood in its place stays.
class PdfText final : public ports::TextJob {
public:
    /// Throws DeviceError if no file can be made there.
    PdfText(const QString& file, const QString& title, const PdfSheet& sheet);
    ~PdfText() override;

    void draw(const QGlyphRun& glyphs, QPointF at, const QColor& color) override;
    void newPage() override;
    void end() override;

private:
    void drawWaiting();
    void drawLines(const QGlyphRun& glyphs, QPointF at);

    FileInMaking file_;
    QByteArray bytes_;
    bool grey_;
    cairo_t* sheet_;
    // The glyphs of one font and one color that are not yet drawn.
    std::vector<cairo_glyph_t> waiting_;
    QRawFont font_;
    QColor ink_;
};

}  // namespace qt
