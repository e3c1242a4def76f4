#include "qt/chart_view.h"

#include <QHelpEvent>
#include <QLabel>
#include <QPaintEvent>
#include <QPainter>
#include <QToolTip>
#include <algorithm>

#include "qt/theme.h"

namespace qt {
namespace {

constexpr double kTwipsPerPixel = 15;
// How far from a curve the pointer still means it, in pixels.
constexpr double kReach = 6;

}  // namespace

biometry::Ink screenInk(const QPalette& palette) {
    const QColor ground = palette.color(QPalette::Base);
    const QColor text = palette.color(QPalette::Text);
    return {.ground = ground,
            .text = text,
            .grid = theme::mixed(ground, text, 0.28),
            .fineGrid = theme::mixed(ground, text, 0.09),
            .curve = theme::mixed(text, ground, 0.2),
            .median = palette.color(QPalette::Link)};
}

ChartView::ChartView(FormWindow& window, const QRectF& part) : window_(window), part_(part) {
    setMinimumSize((part.size() / kTwipsPerPixel * 0.6).toSize());
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    setAttribute(Qt::WA_OpaquePaintEvent);
    window.atRetirement([this] {
        charts_.clear();
        markers_.clear();
        followers_.clear();
    });
}

QSize ChartView::sizeHint() const {
    return (part_.size() / kTwipsPerPixel).toSize();
}

QWidget* ChartView::bare(const QString& name) {
    auto* widget = new QWidget(this);
    widget->setAttribute(Qt::WA_TransparentForMouseEvents);
    widget->setAccessibleName(name);
    return widget;
}

void ChartView::addChart(biometry::Chart chart, forms::Image& picture) {
    QWidget* twin = bare(biometry::measureName(biometry::geometry(chart).measure));
    charts_.push_back({chart, &picture, twin});
    window_.bind(picture, twin, [](forms::Aspect, int) {});
    window_.alsoBind(picture, [this, chart](forms::Aspect, int) { update(covered(chart)); });
}

void ChartView::addMarker(forms::Marker& marker, const QString& name) {
    markers_.push_back(&marker);
    follow(marker, bare(name));
}

void ChartView::follow(forms::Control& control, QWidget* widget) {
    widget->setParent(this);
    followers_.push_back({&control, widget});
    const auto sync = [this, follower = followers_.back()](forms::Aspect, int) { place(follower); };
    if (window_.widgetOf(control)) {
        // Its text is bound already: only its place is left.
        window_.alsoBind(control, sync);
    } else {
        window_.bind(control, widget, sync);
    }
}

void ChartView::setTwin(const forms::Image& picture, const QString& text) {
    const auto shown = std::ranges::find(charts_, &picture, &ShownChart::picture);
    if (shown != charts_.end()) {
        shown->twin->setAccessibleDescription(text);
    }
}

double ChartView::scale() const {
    return std::min(width() / part_.width(), height() / part_.height());
}

QTransform ChartView::toPixels() const {
    const QPointF spare(width() - part_.width() * scale(), height() - part_.height() * scale());
    QTransform transform;
    transform.translate(spare.x() / 2, spare.y() / 2);
    transform.scale(scale(), scale());
    transform.translate(-part_.left(), -part_.top());
    return transform;
}

QRect ChartView::inPixels(const QRectF& twips) const {
    return toPixels().mapRect(twips).toAlignedRect();
}

// The smooth edges of the drawing may reach a pixel further.
QRect ChartView::covered(biometry::Chart chart) const {
    return inPixels(biometry::drawing(chart)).adjusted(-1, -1, 1, 1);
}

void ChartView::place(const Follower& follower) const {
    const forms::Control& control = *follower.control;
    if (const auto place = control.place()) {
        follower.widget->setGeometry(inPixels(QRectF(place->left, place->top, place->width, place->height)));
    } else if (const auto* marker = dynamic_cast<const forms::Marker*>(&control); marker && marker->spot()) {
        // The smooth edge of the drawing may reach a pixel further.
        const QRectF twips(marker->spot()->left, marker->spot()->top, marker->side(), marker->side());
        follower.widget->setGeometry(inPixels(twips).adjusted(-1, -1, 1, 1));
    } else if (const auto spot = control.spot()) {
        follower.widget->adjustSize();
        follower.widget->move(toPixels().map(QPointF(spot->left, spot->top)).toPoint());
    }
}

void ChartView::placeAll() {
    for (const ShownChart& shown : charts_) {
        shown.twin->setGeometry(inPixels(biometry::drawing(shown.chart)));
    }
    for (const Follower& follower : followers_) {
        place(follower);
    }
}

void ChartView::resizeEvent(QResizeEvent*) {
    placeAll();
}

// Around the grids, which have a ground of their own: at 4K each fill of the whole view takes a third of a frame.
void ChartView::fillAround(QPainter& painter, QRegion region) const {
    for (const ShownChart& shown : charts_) {
        if (shown.picture->visible()) {
            region -= inPixels(biometry::plot(shown.chart)).adjusted(1, 1, -1, -1);
        }
    }
    for (const QRect& part : region) {
        painter.fillRect(part, palette().brush(backgroundRole()));
    }
}

void ChartView::drawCharts(QPainter& painter, const QRect& part) const {
    for (const ShownChart& shown : charts_) {
        if (shown.picture->visible() && covered(shown.chart).intersects(part)) {
            paintChart(painter, shown.chart, screenInk(palette()));
        }
    }
}

void ChartView::drawMarkers(QPainter& painter) const {
    const QColor edge = palette().color(QPalette::Base);
    for (const forms::Marker* marker : markers_) {
        if (!marker->visible() || !marker->spot()) {
            continue;
        }
        const biometry::Point at{marker->spot()->left, marker->spot()->top};
        if (marker->color()) {
            paintMarker(painter, at, QColor::fromRgb(*marker->color()), edge);
        } else {
            paintCross(painter, at, QColor(theme::isDark() ? 0xff5a4f : 0xd00000));
        }
    }
}

void ChartView::paintEvent(QPaintEvent* event) {
    QPainter painter(this);
    fillAround(painter, event->region());
    painter.setTransform(toPixels(), true);
    drawCharts(painter, event->rect());
    drawMarkers(painter);
}

QString ChartView::tipAt(QPointF pixel) const {
    const QPointF place = toPixels().inverted().map(pixel);
    for (const ShownChart& shown : charts_) {
        if (shown.picture->visible() && biometry::plot(shown.chart).contains(place)) {
            const auto found = biometry::curveAt(shown.chart, place, kReach / scale());
            return found ? biometry::tip(*found) : QString();
        }
    }
    return {};
}

bool ChartView::event(QEvent* event) {
    if (event->type() == QEvent::ToolTip) {
        const auto* help = static_cast<QHelpEvent*>(event);
        QToolTip::showText(help->globalPos(), tipAt(help->pos()), this);
        return true;
    }
    return QWidget::event(event);
}

}  // namespace qt
