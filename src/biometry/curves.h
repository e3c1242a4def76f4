#pragma once

#include <span>
#include <vector>

#include "biometry/measure.h"

namespace biometry {

/// One value of a curve: millimetres at a whole week of amenorrhoea.
struct CurvePoint {
    int week;
    double millimetres;

    bool operator==(const CurvePoint&) const = default;
};

/// The percentiles that have a curve for a measure, ascending: 3, 10, 50, 90, 97; 2.5, 10, 50, 90, 97.5 for the
/// humerus; 5, 50, 95 for the foot; none for the orbit.
std::span<const double> percentilesOf(Measure measure);

/// A percentile curve for drawing, from the ranges of the percentile table: a boundary is the mean of the upper end of
/// a class and the lower end of the next, the median the middle of its class, or the boundary in its place where the
/// week has no such class. Weeks of the table without that boundary are left out.
std::vector<CurvePoint> percentileCurve(Measure measure, double percentile);

/// The same curve with a steady course, for drawing: at each whole week it lies where it parts the classes, so that no
/// value of one class is drawn on the other side. Weeks without a boundary inside the curve are filled in.
const std::vector<CurvePoint>& smoothCurve(Measure measure, double percentile);

}  // namespace biometry
