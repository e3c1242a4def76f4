#include "pictures/sheet.h"

#include <QFont>
#include <QFontMetricsF>
#include <QPainter>
#include <algorithm>

namespace pictures {
namespace {

constexpr double kTwipsPerInch = 1440;
constexpr double kTwipsPerMillimetre = kTwipsPerInch / 25.4;
constexpr double kTwipsPerPoint = 20;
constexpr double kUsualPoints = 10;
constexpr int kFooterBlanks = 210;

}  // namespace

QString footer() {
    return QStringLiteral("MORVALT") + QString(kFooterBlanks, u' ') + QStringLiteral("Pelorine");
}

Sheet::Sheet(ports::Printer& printer, const QString& title) : job_(printer.open(title)), points_(kUsualPoints) {
    const ports::PageGeometry page = printer.geometry();
    QPainter& painter = job_->painter();
    painter.scale(page.dpiX / kTwipsPerInch, page.dpiY / kTwipsPerInch);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
}

Sheet::~Sheet() = default;

void Sheet::setTop(double millimetres) {
    top_ = millimetres * kTwipsPerMillimetre;
}

void Sheet::line(const QString& text) {
    QFont font(QStringLiteral("Arial"));
    font.setPixelSize(qRound(points_ * kTwipsPerPoint));
    font.setBold(bold_);
    const QFontMetricsF metrics(font);
    job_->painter().setFont(font);
    job_->painter().drawText(QPointF(0, top_ + metrics.ascent()), text);
    top_ += metrics.height();
}

void Sheet::draw(const QImage& picture, const SheetPlace& place) {
    const auto twips = [](double millimetres) { return millimetres * kTwipsPerMillimetre; };
    job_->painter().drawImage(QRectF(twips(place.left), twips(place.top), twips(place.width), twips(place.height)),
                              picture);
}

void Sheet::draw(std::span<const QImage> pictures, std::span<const SheetPlace> places) {
    for (std::size_t i = 0; i < std::min(pictures.size(), places.size()); ++i) {
        draw(pictures[i], places[i]);
    }
}

}  // namespace pictures
