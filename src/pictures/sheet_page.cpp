#include "pictures/sheet_page.h"

#include <QFontMetricsF>
#include <QPainter>

#include "reports/twips.h"

namespace pictures {
namespace {

constexpr int kTwipsPerPoint = 20;
constexpr double kMillimetresPerInch = 25.4;

QFont fontOf(const SheetLine& line) {
    QFont font(QStringLiteral("Arial"));
    font.setPixelSize(qRound(line.points * kTwipsPerPoint));
    font.setBold(line.bold);
    return font;
}

}  // namespace

SheetPage::SheetPage(ports::Printer& printer, const QString& title)
    : page_(printer.geometry()), job_(printer.open(title)) {}

void SheetPage::print(const SheetLine& line) {
    if (line.top) {
        next_ = *line.top / kMillimetresPerInch * reports::kTwipsPerInch;
    }
    const QFont font = fontOf(line);
    const QFontMetricsF metrics(font);
    QPainter& painter = job_->painter();
    painter.save();
    painter.scale(static_cast<double>(page_.dpiX) / reports::kTwipsPerInch,
                  static_cast<double>(page_.dpiY) / reports::kTwipsPerInch);
    painter.setFont(font);
    painter.drawText(QPointF(0, next_ + metrics.ascent()), line.text);
    painter.restore();
    next_ += metrics.lineSpacing();
}

void SheetPage::draw(const QImage& picture, const QRectF& place) {
    const double across = page_.dpiX / kMillimetresPerInch;
    const double down = page_.dpiY / kMillimetresPerInch;
    QPainter& painter = job_->painter();
    painter.save();
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(QRectF(place.x() * across, place.y() * down, place.width() * across, place.height() * down),
                      picture);
    painter.restore();
}

}  // namespace pictures
