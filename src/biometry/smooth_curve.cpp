#include <algorithm>
#include <limits>
#include <map>

#include "biometry/curves.h"
#include "biometry/reference.h"

namespace biometry {
namespace {

constexpr double kFree = std::numeric_limits<double>::infinity();
// A curve that only touched the last value of a class would be drawn through it.
constexpr double kClearance = 0.2;
constexpr int kRounds = 400;

/// A point of the curve and how far it may go down and up.
struct Bead {
    int week;
    double at;
    double low = -kFree;
    double high = kFree;
};

// The whole values that lie next to the curve, below and above it.
struct Neighbours {
    double below = -kFree;
    double above = kFree;
};

Neighbours neighbours(const ReferenceRow& row, double value) {
    Neighbours found;
    for (const tables::Range& range : row.classes) {
        const bool holdsValue = !range.isEmpty() && range.first <= value && value <= range.last;
        if (range.isEmpty() || holdsValue) {
            continue;
        }
        if (range.last < value) {
            found.below = std::max(found.below, static_cast<double>(range.last));
        } else {
            found.above = std::min(found.above, static_cast<double>(range.first));
        }
    }
    return found;
}

Bead beadAt(Measure measure, const CurvePoint& point) {
    const Neighbours next = neighbours(*referenceRow(measure, point.week), point.millimetres);
    return {point.week, point.millimetres, next.below + kClearance, next.above - kClearance};
}

// One bead a week; those of the weeks without a boundary are free, and begin where the one before them stands.
std::vector<Bead> beads(Measure measure, const std::vector<CurvePoint>& curve) {
    std::vector<Bead> all;
    for (const CurvePoint& point : curve) {
        while (!all.empty() && all.back().week + 1 < point.week) {
            all.push_back({all.back().week + 1, all.back().at});
        }
        all.push_back(beadAt(measure, point));
    }
    return all;
}

// Where the bends at this bead and its neighbours are least, their places given.
double straightest(const std::vector<Bead>& all, std::size_t i) {
    double sum = 0;
    double weight = 0;
    // A bend that is `own` times this bead and `rest` of the others.
    const auto bend = [&](double own, double rest) {
        sum -= own * rest;
        weight += own * own;
    };
    const auto at = [&](std::size_t k) { return all[k].at; };
    if (i >= 2) {
        bend(1, at(i - 2) - 2 * at(i - 1));
    }
    if (i >= 1 && i + 1 < all.size()) {
        bend(-2, at(i - 1) + at(i + 1));
    }
    if (i + 2 < all.size()) {
        bend(1, at(i + 2) - 2 * at(i + 1));
    }
    return weight == 0 ? at(i) : sum / weight;
}

std::vector<CurvePoint> smoothed(Measure measure, double percentile) {
    std::vector<Bead> all = beads(measure, percentileCurve(measure, percentile));
    for (int round = 0; round < kRounds; ++round) {
        for (std::size_t i = 0; i < all.size(); ++i) {
            all[i].at = std::clamp(straightest(all, i), all[i].low, all[i].high);
        }
    }
    std::vector<CurvePoint> curve(all.size());
    std::ranges::transform(all, curve.begin(), [](const Bead& bead) { return CurvePoint{bead.week, bead.at}; });
    return curve;
}

}  // namespace

const std::vector<CurvePoint>& smoothCurve(Measure measure, double percentile) {
    static std::map<std::pair<Measure, double>, std::vector<CurvePoint>> known;
    const auto found = known.find({measure, percentile});
    return found != known.end()
               ? found->second
               : known.emplace(std::pair(measure, percentile), smoothed(measure, percentile)).first->second;
}

}  // namespace biometry
