#include "ports/painted_text.h"

#include <QGlyphRun>
#include <QPainter>

namespace ports {
namespace {

constexpr double kTwipsPerInch = 1440;

}  // namespace

PaintedText::PaintedText(std::unique_ptr<PrintJob> job, const PageGeometry& page)
    : job_(std::move(job)), scaleX_(page.dpiX / kTwipsPerInch), scaleY_(page.dpiY / kTwipsPerInch) {}

void PaintedText::draw(const QGlyphRun& glyphs, QPointF at, const QColor& color) {
    QPainter& painter = job_->painter();
    painter.save();
    painter.scale(scaleX_, scaleY_);
    painter.setPen(color);
    painter.drawGlyphRun(at, glyphs);
    painter.restore();
}

std::unique_ptr<TextJob> Printer::openText(const QString& title) {
    return std::make_unique<PaintedText>(open(title), geometry());
}

}  // namespace ports
