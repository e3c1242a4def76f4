#include "qt/pdf_text.h"

#include <cairo-pdf.h>

#include <QGlyphRun>
#include <QPainterPath>
#include <algorithm>

#include "base/errors.h"
#include "qt/font_faces.h"

namespace qt {
namespace {

constexpr double kPointsPerTwip = 1 / 20.0;

cairo_status_t append(void* bytes, const unsigned char* data, unsigned int size) {
    static_cast<QByteArray*>(bytes)->append(reinterpret_cast<const char*>(data), size);
    return CAIRO_STATUS_SUCCESS;
}

void trace(cairo_t* sheet, const QPainterPath& path) {
    for (int i = 0; i < path.elementCount(); ++i) {
        const QPointF to = path.elementAt(i);
        switch (path.elementAt(i).type) {
            case QPainterPath::MoveToElement:
                cairo_move_to(sheet, to.x(), to.y());
                break;
            case QPainterPath::LineToElement:
                cairo_line_to(sheet, to.x(), to.y());
                break;
            default:
                // A curve has its two handles first, then its end.
                const QPointF handle = path.elementAt(++i);
                const QPointF end = path.elementAt(++i);
                cairo_curve_to(sheet, to.x(), to.y(), handle.x(), handle.y(), end.x(), end.y());
        }
    }
}

QColor greyOf(const QColor& color) {
    const int grey = qGray(color.rgb());
    return {grey, grey, grey};
}

}  // namespace

PdfText::PdfText(const QString& file, const QString& title, const PdfSheet& sheet) : file_(file), grey_(sheet.grey) {
    cairo_surface_t* surface =
        cairo_pdf_surface_create_for_stream(append, &bytes_, sheet.size.width(), sheet.size.height());
    cairo_pdf_surface_set_metadata(surface, CAIRO_PDF_METADATA_TITLE, title.toUtf8().constData());
    sheet_ = cairo_create(surface);
    cairo_surface_destroy(surface);
    cairo_translate(sheet_, sheet.origin.x(), sheet.origin.y());
    cairo_scale(sheet_, kPointsPerTwip, kPointsPerTwip);
}

PdfText::~PdfText() {
    cairo_destroy(sheet_);
}

void PdfText::draw(const QGlyphRun& glyphs, QPointF at, const QColor& color) {
    const QColor ink = grey_ ? greyOf(color) : color;
    if (const QRawFont font = glyphs.rawFont(); font != font_ || ink != ink_) {
        drawWaiting();
        font_ = font;
        ink_ = ink;
    }
    const QList<quint32> indexes = glyphs.glyphIndexes();
    const QList<QPointF> positions = glyphs.positions();
    for (int i = 0; i < indexes.size(); ++i) {
        const QPointF to = at + positions[i];
        waiting_.push_back({indexes[i], to.x(), to.y()});
    }
    drawLines(glyphs, at);
}

// All at once what has one font and one color: each call costs as much as a line of text.
void PdfText::drawWaiting() {
    if (waiting_.empty()) {
        return;
    }
    cairo_set_source_rgb(sheet_, ink_.redF(), ink_.greenF(), ink_.blueF());
    if (cairo_font_face_t* face = faceOf(font_)) {
        cairo_set_font_face(sheet_, face);
        cairo_set_font_size(sheet_, font_.pixelSize());
        cairo_show_glyphs(sheet_, waiting_.data(), static_cast<int>(waiting_.size()));
    } else {
        for (const cairo_glyph_t& glyph : waiting_) {
            trace(sheet_, font_.pathForGlyph(static_cast<quint32>(glyph.index)).translated(glyph.x, glyph.y));
        }
        cairo_fill(sheet_);
    }
    waiting_.clear();
}

// Those under the text and through it.
void PdfText::drawLines(const QGlyphRun& glyphs, QPointF at) {
    const QList<QPointF> positions = glyphs.positions();
    if (positions.isEmpty() || (!glyphs.underline() && !glyphs.strikeOut())) {
        return;
    }
    const QList<QPointF> advances = font_.advancesForGlyphIndexes(glyphs.glyphIndexes());
    double left = positions.front().x();
    double right = left;
    for (int i = 0; i < positions.size(); ++i) {
        left = std::min(left, positions[i].x());
        right = std::max(right, positions[i].x() + advances[i].x());
    }
    const double thickness = font_.lineThickness();
    const QPointF base = at + QPointF(left, positions.front().y());
    cairo_set_source_rgb(sheet_, ink_.redF(), ink_.greenF(), ink_.blueF());
    if (glyphs.underline()) {
        cairo_rectangle(sheet_, base.x(), base.y() + font_.underlinePosition() - thickness / 2, right - left,
                        thickness);
    }
    if (glyphs.strikeOut()) {
        cairo_rectangle(sheet_, base.x(), base.y() - font_.ascent() / 3 - thickness / 2, right - left, thickness);
    }
    cairo_fill(sheet_);
}

void PdfText::newPage() {
    drawWaiting();
    cairo_show_page(sheet_);
}

void PdfText::end() {
    drawWaiting();
    cairo_surface_finish(cairo_get_target(sheet_));
    // The file is not waited for until it is on the disk, which takes longer than all the rest: a print that a power
    // cut loses is printed again.
    if (file_.file().write(bytes_) != bytes_.size() || !file_.file().flush()) {
        throw base::RuntimeError(base::ErrorNumber::DeviceError);
    }
    file_.publish();
}

}  // namespace qt
