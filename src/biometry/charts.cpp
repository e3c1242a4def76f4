#include "biometry/charts.h"

#include "base/numbers.h"

namespace biometry {
namespace {

constexpr double kAbscissaOrigin = 1945;
constexpr double kAbscissaWidth = 8175;
constexpr double kAbscissaWeeks = 29;
constexpr double kAbscissaFirstWeek = 13;

bool areNumeric(QStringView week, QStringView value) {
    return base::isNumeric(week) && base::isNumeric(value);
}

// The week as a whole number of weeks from the chart's first, ties to even.
Point pointAtWholeWeek(Chart chart, QStringView week, QStringView value) {
    const int first = geometry(chart).firstWeek;
    return point(chart, base::roundHalfEven(base::toNumber(week) - first) + first, base::leadingNumber(value));
}

}  // namespace

Point point(Chart chart, double week, double value) {
    const ChartGeometry& g = geometry(chart);
    const double left = g.left + (week - g.firstWeek) * (static_cast<double>(g.width) / g.weekSpan);
    const double top = g.bottom - value * (static_cast<double>(g.height) / g.valueSpan);
    return {static_cast<float>(left), static_cast<float>(top)};
}

MarkerMove presentMarker(Chart chart, QStringView week, QStringView value) {
    if (!areNumeric(week, value)) {
        return {.visible = false, .to = {}};
    }
    const bool isOnChart = base::leadingNumber(value) <= geometry(chart).valueSpan;
    return {.visible = isOnChart, .to = pointAtWholeWeek(chart, week, value)};
}

MarkerMove recalledMarker(Chart chart, QStringView age, QStringView value) {
    if (!areNumeric(age, value)) {
        return {.visible = false, .to = {}};
    }
    return {.visible = true, .to = point(chart, base::toNumber(age), base::leadingNumber(value))};
}

std::array<MarkerMove, kRecalledMarkers> recalledMarkers(Chart chart, const QStringList& ages,
                                                         const QStringList& values) {
    std::array<MarkerMove, kRecalledMarkers> moves;
    for (std::size_t i = 0; i < moves.size(); ++i) {
        const auto row = static_cast<qsizetype>(i);
        moves[i] = recalledMarker(chart, ages.value(row), values.value(row));
    }
    return moves;
}

MarkerMove cross(Chart chart, QStringView week, QStringView value) {
    if (!base::isNumeric(value)) {
        return {.visible = false, .to = {}};
    }
    if (!base::isNumeric(week)) {
        return {};
    }
    return {.visible = true, .to = pointAtWholeWeek(chart, week, value)};
}

std::optional<float> abscissaLeft(QStringView week) {
    if (!base::isNumeric(week)) {
        return std::nullopt;
    }
    const double weeks = base::roundHalfEven(base::toNumber(week) - kAbscissaFirstWeek);
    return static_cast<float>(kAbscissaOrigin + weeks * (kAbscissaWidth / kAbscissaWeeks));
}

}  // namespace biometry
