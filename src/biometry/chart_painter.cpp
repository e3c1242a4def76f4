#include "biometry/chart_painter.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QPainterPath>
#include <algorithm>
#include <cmath>

#include "base/numbers.h"
#include "biometry/curves.h"

namespace biometry {
namespace {

constexpr int kMedian = 50;

/// How a chart is drawn; sizes in twips.
struct Style {
    int lastWeek;        // of the grid
    int weekStep;        // between the numbers under the axis
    int textSize;        // of the numbers
    int titleSize;       // 0: the window has the title
    bool numbersInside;  // the axis has no room on its left
};

constexpr Style kPageStyle{42, 4, 155, 190, true};
constexpr Style kLargeStyle{42, 2, 170, 0, false};
constexpr int kLastWeekOfCerebellum = 38;

Style styleOf(Chart chart) {
    Style style = chart <= Chart::PageFem ? kPageStyle : kLargeStyle;
    if (chart == Chart::Cer) {
        style.lastWeek = kLastWeekOfCerebellum;
    }
    return style;
}

double half(Chart chart) {
    return (chart <= Chart::PageFem ? kMarkerSide : kCrossSide) / 2.0;
}

double twipsPerMillimetre(Chart chart) {
    const ChartGeometry& g = geometry(chart);
    return static_cast<double>(g.height) / g.valueSpan;
}

// The finest of these steps whose lines stand apart.
int fineStep(Chart chart) {
    constexpr double kLeastTwips = 40;
    for (const int step : {1, 2, 5}) {
        if (step * twipsPerMillimetre(chart) >= kLeastTwips) {
            return step;
        }
    }
    return 10;
}

int numberedStep(Chart chart) {
    const int span = geometry(chart).valueSpan;
    return span > 200 ? 50 : span > 60 ? 20 : 10;
}

int firstGridWeek(Chart chart) {
    return geometry(chart).firstWeek;
}

QFont fontOf(int size, bool bold = false) {
    QFont font(QStringLiteral("Arial"));
    font.setPixelSize(size);
    font.setBold(bold);
    return font;
}

QPen solid(const QColor& color, double width) {
    return QPen(color, width, Qt::SolidLine, Qt::FlatCap, Qt::RoundJoin);
}

/// Lines along the axes, one device pixel wide: as rectangles they take a twentieth of the time.
class Grid {
public:
    Grid(QPainter& painter, Chart chart)
        : painter_(painter),
          chart_(chart),
          area_(plot(chart)),
          thinX_(1 / painter.transform().m11()),
          thinY_(1 / painter.transform().m22()) {}

    void across(int millimetres, const QColor& color) {
        const double y = spot(chart_, 0, millimetres).y();
        painter_.fillRect(QRectF(area_.left(), y - thinY_ / 2, area_.width(), thinY_), color);
    }
    void upright(int week, const QColor& color) {
        const double x = spot(chart_, week, 0).x();
        painter_.fillRect(QRectF(x - thinX_ / 2, area_.top(), thinX_, area_.height()), color);
    }

private:
    QPainter& painter_;
    Chart chart_;
    QRectF area_;
    double thinX_;
    double thinY_;
};

// The strong lines go over the fine ones.
void drawGrid(QPainter& painter, Chart chart, const Ink& ink) {
    Grid grid(painter, chart);
    for (const bool strong : {false, true}) {
        const QColor& color = strong ? ink.grid : ink.fineGrid;
        for (int mm = 0; mm <= geometry(chart).valueSpan; mm += fineStep(chart)) {
            if ((mm % numberedStep(chart) == 0) == strong) {
                grid.across(mm, color);
            }
        }
        for (int week = firstGridWeek(chart); week <= styleOf(chart).lastWeek; ++week) {
            if ((week % 5 == 0) == strong) {
                grid.upright(week, color);
            }
        }
    }
    constexpr double kAxis = 12;
    const QRectF area = plot(chart);
    painter.fillRect(QRectF(area.left() - kAxis / 2, area.bottom() - kAxis / 2, area.width(), kAxis), ink.text);
    painter.fillRect(QRectF(area.left() - kAxis / 2, area.top(), kAxis, area.height()), ink.text);
}

void drawWeeks(QPainter& painter, Chart chart, const Ink& ink) {
    const Style style = styleOf(chart);
    const double below = plot(chart).bottom();
    painter.setPen(ink.text);
    for (int week = (firstGridWeek(chart) + style.weekStep - 1) / style.weekStep * style.weekStep;
         week < style.lastWeek; week += style.weekStep) {
        const QRectF box(spot(chart, week, 0).x() - 300, below + style.textSize * 0.2, 600, style.textSize * 1.2);
        painter.drawText(box, Qt::AlignCenter, QString::number(week));
    }
    const QRectF unit(plot(chart).right() - 700, below + style.textSize * 1.3, 700, style.textSize * 1.2);
    painter.drawText(unit, Qt::AlignRight | Qt::AlignVCenter, QStringLiteral("S.A."));
}

// The value of a curve between two weeks.
std::optional<double> valueAt(const std::vector<CurvePoint>& curve, double week) {
    for (std::size_t i = 0; i + 1 < curve.size(); ++i) {
        if (week >= curve[i].week && week <= curve[i + 1].week) {
            const double part = (week - curve[i].week) / (curve[i + 1].week - curve[i].week);
            return std::lerp(curve[i].millimetres, curve[i + 1].millimetres, part);
        }
    }
    return std::nullopt;
}

double weekAt(Chart chart, double x) {
    const double origin = spot(chart, 0, 0).x();
    return (x - origin) / (spot(chart, 1, 0).x() - origin);
}

bool isStruckByACurve(Chart chart, const QRectF& box) {
    constexpr int kSteps = 6;
    const Measure measure = geometry(chart).measure;
    for (const double percentile : percentilesOf(measure)) {
        for (int i = 0; i <= kSteps; ++i) {
            const double week = weekAt(chart, box.left() + box.width() * i / kSteps);
            const auto value = valueAt(smoothCurve(measure, percentile), week);
            if (value && std::abs(spot(chart, 0, *value).y() - box.center().y()) < box.height() / 2) {
                return true;
            }
        }
    }
    return false;
}

// A number inside the chart goes along its line until no curve passes through it or close by.
QRectF clearOfCurves(Chart chart, QRectF box) {
    constexpr double kStep = 20;
    constexpr double kGap = 15;
    while (isStruckByACurve(chart, box.adjusted(-kGap, -kGap, kGap, kGap)) && box.right() < plot(chart).right()) {
        box.translate(kStep, 0);
    }
    return box;
}

void drawValues(QPainter& painter, Chart chart, const Ink& ink) {
    const Style style = styleOf(chart);
    const double axis = plot(chart).left();
    const double gap = style.textSize * 0.35;
    for (int mm = numberedStep(chart); mm <= geometry(chart).valueSpan; mm += numberedStep(chart)) {
        const bool last = mm + numberedStep(chart) > geometry(chart).valueSpan;
        const QString text = last ? QStringLiteral("%1 mm").arg(mm) : QString::number(mm);
        const double width = QFontMetricsF(painter.font()).horizontalAdvance(text);
        const double left = style.numbersInside ? axis + gap : axis - gap - width;
        QRectF box(left, spot(chart, 0, mm).y() - style.textSize * 0.6, width, style.textSize * 1.2);
        if (style.numbersInside) {
            box = clearOfCurves(chart, box);
            painter.fillRect(box, ink.ground);
        }
        painter.setPen(ink.text);
        painter.drawText(box, Qt::AlignCenter, text);
    }
}

// Through all points, each with the slope of the line between its neighbours.
QPainterPath through(const std::vector<QPointF>& points) {
    QPainterPath path(points.front());
    for (std::size_t i = 0; i + 1 < points.size(); ++i) {
        const QPointF before = points[i == 0 ? 0 : i - 1];
        const QPointF after = points[std::min(i + 2, points.size() - 1)];
        path.cubicTo(points[i] + (points[i + 1] - before) / 6, points[i + 1] - (after - points[i]) / 6, points[i + 1]);
    }
    return path;
}

std::vector<QPointF> spots(Chart chart, const std::vector<CurvePoint>& curve) {
    std::vector<QPointF> all(curve.size());
    std::ranges::transform(curve, all.begin(),
                           [chart](const CurvePoint& at) { return spot(chart, at.week, at.millimetres); });
    return all;
}

// The median is strong, the outermost curves are dashed.
QPen penOf(Chart chart, double percentile, const Ink& ink) {
    const double width = chart <= Chart::PageFem ? 14 : 20;
    if (percentile == kMedian) {
        return solid(ink.median, 2.2 * width);
    }
    QPen pen = solid(ink.curve, width);
    if (percentile < 9 || percentile > 91) {
        pen.setDashPattern({5, 3});
    }
    return pen;
}

// The number at the end of each curve; one that would touch its neighbour towards the median makes room.
void drawEnds(QPainter& painter, Chart chart, const std::vector<std::pair<double, QPointF>>& ends, const Ink& ink) {
    const int size = styleOf(chart).textSize;
    const double room = size * 0.95;
    std::vector<double> heights(ends.size());
    std::ranges::transform(ends, heights.begin(), [](const auto& end) { return end.second.y(); });
    const auto middle = static_cast<std::size_t>(
        std::ranges::find(ends, kMedian, [](const auto& end) { return end.first; }) - ends.begin());
    for (std::size_t i = middle + 1; i < ends.size(); ++i) {
        heights[i] = std::min(heights[i], heights[i - 1] - room);
    }
    for (std::size_t i = middle; i-- > 0;) {
        heights[i] = std::max(heights[i], heights[i + 1] + room);
    }
    for (std::size_t i = 0; i < ends.size(); ++i) {
        const QRectF box(ends[i].second.x() + size * 0.3, heights[i] - size, 4 * size, 2 * size);
        painter.setFont(fontOf(size, i == middle));
        painter.setPen(i == middle ? ink.median : ink.text);
        painter.drawText(box, Qt::AlignLeft | Qt::AlignVCenter, base::decimalText(ends[i].first));
    }
}

void drawCurves(QPainter& painter, Chart chart, const Ink& ink) {
    const Measure measure = geometry(chart).measure;
    std::vector<std::pair<double, QPointF>> ends;
    painter.setBrush(Qt::NoBrush);
    for (const double percentile : percentilesOf(measure)) {
        const std::vector<QPointF> points = spots(chart, smoothCurve(measure, percentile));
        if (points.empty()) {
            continue;
        }
        painter.setPen(penOf(chart, percentile, ink));
        painter.drawPath(through(points));
        ends.emplace_back(percentile, points.back());
    }
    drawEnds(painter, chart, ends, ink);
}

void drawTitle(QPainter& painter, Chart chart, const Ink& ink) {
    const int size = styleOf(chart).titleSize;
    if (size > 0) {
        const QRectF area = plot(chart);
        painter.setFont(fontOf(size, true));
        painter.setPen(ink.text);
        painter.drawText(QRectF(area.left(), area.top() - 1.5 * size, area.width(), 1.4 * size),
                         Qt::AlignLeft | Qt::AlignVCenter, measureName(geometry(chart).measure));
    }
}

std::optional<double> referenceAt(Measure measure, double percentile, int week) {
    const std::vector<CurvePoint> curve = percentileCurve(measure, percentile);
    const auto at = std::ranges::find(curve, week, &CurvePoint::week);
    return at == curve.end() ? std::nullopt : std::optional(at->millimetres);
}

}  // namespace

Ink paperInk() {
    return {.ground = Qt::white,
            .text = Qt::black,
            .grid = QColor(0x9a, 0x9a, 0x9a),
            .fineGrid = QColor(0xdd, 0xdd, 0xdd),
            .curve = QColor(0x30, 0x30, 0x30),
            .median = Qt::black};
}

QPointF spot(Chart chart, double week, double millimetres) {
    const Point corner = point(chart, week, millimetres);
    return {corner.left + half(chart), corner.top + half(chart)};
}

QRectF plot(Chart chart) {
    const QPointF low = spot(chart, firstGridWeek(chart), 0);
    const QPointF high = spot(chart, styleOf(chart).lastWeek, geometry(chart).valueSpan);
    return QRectF(low, high).normalized();
}

QRectF drawing(Chart chart) {
    const Style style = styleOf(chart);
    const double left = style.numbersInside ? 0.5 * style.textSize : 5.0 * style.textSize;
    const double right = style.numbersInside ? 0.7 * style.textSize : 3.0 * style.textSize;
    const double above = std::max(1.6 * style.titleSize, 1.0 * style.textSize);
    return plot(chart).adjusted(-left, -above, right, 2.8 * style.textSize);
}

void paintChart(QPainter& painter, Chart chart, const Ink& ink) {
    painter.save();
    painter.fillRect(plot(chart), ink.ground);
    painter.setRenderHint(QPainter::Antialiasing, false);
    drawGrid(painter, chart, ink);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setFont(fontOf(styleOf(chart).textSize));
    drawWeeks(painter, chart, ink);
    drawValues(painter, chart, ink);
    drawCurves(painter, chart, ink);
    drawTitle(painter, chart, ink);
    painter.restore();
}

void paintMarker(QPainter& painter, Point at, QColor color, QColor edge) {
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(solid(edge, 8));
    painter.setBrush(color);
    painter.drawEllipse(QRectF(at.left, at.top, kMarkerSide, kMarkerSide));
    painter.restore();
}

void paintCross(QPainter& painter, Point at, QColor color) {
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(solid(color, 34));
    const double middle = kCrossSide / 2.0;
    painter.drawLine(QLineF(at.left + middle, at.top, at.left + middle, at.top + kCrossSide));
    painter.drawLine(QLineF(at.left, at.top + middle, at.left + kCrossSide, at.top + middle));
    painter.restore();
}

std::optional<OnCurve> curveAt(Chart chart, QPointF place, double reach) {
    const Measure measure = geometry(chart).measure;
    const double week = weekAt(chart, place.x());
    std::optional<OnCurve> nearest;
    for (const double percentile : percentilesOf(measure)) {
        const auto value = valueAt(smoothCurve(measure, percentile), week);
        const double distance = value ? std::abs(spot(chart, 0, *value).y() - place.y()) : reach;
        const int whole = static_cast<int>(std::lround(week));
        const auto reference = referenceAt(measure, percentile, whole);
        if (distance < reach && reference) {
            reach = distance;
            nearest = OnCurve{percentile, whole, *reference};
        }
    }
    return nearest;
}

QString tip(const OnCurve& place) {
    return QStringLiteral("%1 SA : %2 mm (%3 ème percentile)")
        .arg(QString::number(place.week), base::decimalText(place.millimetres), base::decimalText(place.percentile));
}

}  // namespace biometry
