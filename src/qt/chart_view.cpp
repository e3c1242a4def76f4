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
    window_.alsoBind(picture, [this](forms::Aspect, int) {
        drawn_ = {};
        update();
    });
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
    drawn_ = {};
    placeAll();
}

void ChartView::changeEvent(QEvent* event) {
    if (event->type() == QEvent::PaletteChange) {
        drawn_ = {};
    }
    QWidget::changeEvent(event);
}

// A marker that moves leaves the charts as they are.
void ChartView::drawCharts() {
    drawn_ = QPixmap(size() * devicePixelRatioF());
    drawn_.setDevicePixelRatio(devicePixelRatioF());
    drawn_.fill(Qt::transparent);
    QPainter painter(&drawn_);
    painter.setTransform(toPixels(), true);
    for (const ShownChart& shown : charts_) {
        if (shown.picture->visible()) {
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
    if (drawn_.isNull() || drawn_.devicePixelRatio() != devicePixelRatioF()) {
        drawCharts();
    }
    QPainter painter(this);
    const QRectF part = event->rect();
    painter.drawPixmap(part, drawn_, QRectF(part.topLeft() * devicePixelRatioF(), part.size() * devicePixelRatioF()));
    painter.setTransform(toPixels(), true);
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
