#pragma once

#include <QStringList>
#include <QStringView>
#include <array>
#include <optional>

#include "biometry/measure.h"

namespace biometry {

/// The three charts of the biometry page, then the seven large ones of the curves window.
enum class Chart { PageBip, PageCa, PageFem, Bip, Cc, Dat, Ca, Fem, Pied, Cer };

inline constexpr std::size_t kChartCount = 10;

/// Where a chart's axes lie on its window, in twips (1440 to the inch): weeks to the right of `left`, millimetres up
/// from `bottom`.
struct ChartGeometry {
    Measure measure;
    int firstWeek;
    int weekSpan;
    int valueSpan;
    int width;
    int height;
    int left;
    int bottom;
};

inline constexpr std::array<ChartGeometry, kChartCount> kChartGeometries{{
    // first week, weeks, millimetres, width, height, left, bottom
    {Measure::Bip, 13, 29, 120, 3735, 4455, 138, 8610},
    {Measure::Ca, 15, 27, 400, 3735, 4450, 4095, 8600},
    {Measure::Fem, 13, 29, 90, 3735, 4455, 8045, 8610},
    {Measure::Bip, 13, 29, 120, 6880, 4990, 1855, 6195},
    {Measure::Cc, 13, 26, 400, 6880, 4990, 1100, 6090},
    {Measure::Dat, 13, 29, 140, 6870, 4990, 1855, 6195},
    {Measure::Ca, 13, 27, 400, 6860, 4990, 1380, 6090},
    {Measure::Fem, 13, 29, 90, 6940, 4990, 1820, 6090},
    {Measure::Pied, 13, 29, 100, 6880, 4995, 1855, 6095},
    {Measure::Cer, 13, 23, 60, 6900, 4990, 1255, 6090},
}};

constexpr const ChartGeometry& geometry(Chart chart) {
    return kChartGeometries[static_cast<std::size_t>(chart)];
}

/// A place on a window, in twips from its left and top.
struct Point {
    float left;
    float top;

    bool operator==(const Point&) const = default;
};

/// Where a measure of `value` millimetres at `week` lies. A marker is placed there by its top-left corner. Nothing is
/// clipped.
Point point(Chart chart, double week, double value);

/// What happens to a marker: shown or hidden, and moved; it stays as it is where nothing is said.
struct MarkerMove {
    std::optional<bool> visible;
    std::optional<Point> to;

    bool operator==(const MarkerMove&) const = default;
};

/// The marker of the present measure on a page chart: at its whole week (ties to even), hidden unless both texts are
/// numeric, hidden above the chart's span of millimetres.
MarkerMove presentMarker(Chart chart, QStringView week, QStringView value);

/// The marker of a recalled exam on a page chart: the age keeps its decimals (22,3 is 22.3 weeks), no value is too
/// high.
MarkerMove recalledMarker(Chart chart, QStringView age, QStringView value);

inline constexpr std::size_t kRecalledMarkers = 6;

/// The six markers of a page chart, from the first rows of the recall's lists; those without a row are hidden.
std::array<MarkerMove, kRecalledMarkers> recalledMarkers(Chart chart, const QStringList& ages,
                                                         const QStringList& values);

/// The cross on a large chart: hidden if the value isn't numeric, left as it is if only the week isn't.
MarkerMove cross(Chart chart, QStringView week, QStringView value);

/// The left of `Abscisse` when the curves window takes a week, in twips; nothing if the text isn't numeric.
std::optional<float> abscissaLeft(QStringView week);

}  // namespace biometry
