#pragma once

#include <QColor>
#include <QRectF>
#include <optional>

#include "biometry/charts.h"

class QPainter;

namespace biometry {

/// The side of a page chart's marker and that of the cross on a large chart, in twips.
inline constexpr int kMarkerSide = 105;
inline constexpr int kCrossSide = 240;

/// The colours of a chart.
struct Ink {
    QColor ground;
    QColor text;
    QColor grid;
    QColor fineGrid;
    QColor curve;
    QColor median;
};

/// Black, greys and white: on paper each curve is told by its width and its dashes.
Ink paperInk();

/// Where the value `millimetres` at `week` lies in the drawing, in twips of the window: half a marker to the right and
/// below `point`, so that the middle of a marker placed by its corner lies there.
QPointF spot(Chart chart, double week, double millimetres);

/// The grid of a chart, in twips of the window.
QRectF plot(Chart chart);

/// What the whole drawing covers, with its title, its numbers and the labels of its curves.
QRectF drawing(Chart chart);

/// Draws a chart as vectors in twips of its window: title, axes with their units, the grid of weeks and millimetres,
/// the percentile curves, the median strong, each with its number at its end.
void paintChart(QPainter& painter, Chart chart, const Ink& ink);

/// Draws a marker as a disc, and the cross, by their top left corner.
void paintMarker(QPainter& painter, Point at, QColor color, QColor edge);
void paintCross(QPainter& painter, Point at, QColor color);

/// A place on a percentile curve.
struct OnCurve {
    double percentile;
    int week;
    /// By the reference, before any smoothing.
    double millimetres;

    bool operator==(const OnCurve&) const = default;
};

/// The curve that passes within `reach` twips above or below a place of the drawing, at the nearest whole week;
/// nothing where none does.
std::optional<OnCurve> curveAt(Chart chart, QPointF place, double reach);

/// What a pointer over a curve tells: "22 SA : 53,5 mm (50 ème percentile)".
QString tip(const OnCurve& place);

}  // namespace biometry
