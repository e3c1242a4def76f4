#include "pictures/sheet_page.h"

#include <QFontMetricsF>
#include <QPainter>
#include <algorithm>

#include "reports/twips.h"

namespace pictures {
namespace {

// What the printer writes with until it is told otherwise.
constexpr double kPrinterPoints = 10;
// The foot of a sheet, in millimetres from the top, and the blanks inside it.
constexpr double kFoot = 275;
constexpr int kFootBlanks = 210;
constexpr int kTwipsPerPoint = 20;
constexpr double kMillimetresPerInch = 25.4;

QFont fontOf(const SheetLine& line) {
    QFont font(QStringLiteral("Arial"));
    font.setPixelSize(qRound(line.points * kTwipsPerPoint));
    font.setBold(line.bold);
    return font;
}

}  // namespace

SheetLine openingLine() {
    return {.text = {}, .points = kPrinterPoints};
}

SheetLine footLine() {
    return {.text = QStringLiteral("MORVALT") + QString(kFootBlanks, u' ') + QStringLiteral("Pelorine"), .top = kFoot};
}

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

void SheetPage::draw(std::span<const QImage> pictures, const Arrangement& arrangement) {
    const std::size_t count = std::min(pictures.size(), static_cast<std::size_t>(arrangement.places));
    for (std::size_t i = 0; i < count; ++i) {
        const Corner corner = arrangement.corners.at(i);
        draw(pictures[i], QRectF(corner.x, corner.y, arrangement.width, arrangement.height));
    }
}

}  // namespace pictures
