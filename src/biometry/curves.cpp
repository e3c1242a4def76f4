#include "biometry/curves.h"

#include <algorithm>
#include <optional>

#include "biometry/reference.h"

namespace biometry {
namespace {

constexpr int kFirstWeek = 13;
constexpr int kLastWeek = 41;
constexpr double kMedian = 50;

constexpr double kFrom3To97[]{3, 10, kMedian, 90, 97};
constexpr double kFrom2_5To97_5[]{2.5, 10, kMedian, 90, 97.5};
constexpr double kFrom5To95[]{5, kMedian, 95};
constexpr double kAroundMedian[]{kMedian};

std::span<const double> percentiles(Vocabulary vocabulary) {
    switch (vocabulary) {
        case Vocabulary::From3To97:
            return kFrom3To97;
        case Vocabulary::From2_5To97_5:
            return kFrom2_5To97_5;
        case Vocabulary::From5To95:
            return kFrom5To95;
        case Vocabulary::AroundMedian:
            return kAroundMedian;
    }
    return {};
}

double middle(int low, int high) {
    return (low + high) / 2.0;
}

std::optional<double> boundary(const tables::Range& below, const tables::Range& above) {
    return below.isEmpty() || above.isEmpty() ? std::nullopt : std::optional(middle(below.last, above.first));
}

std::optional<double> median(std::span<const tables::Range> classes) {
    const std::size_t at = classes.size() / 2;
    return classes[at].isEmpty() ? boundary(classes[at - 1], classes[at + 1])
                                 : std::optional(middle(classes[at].first, classes[at].last));
}

// The median class stands in the middle and has no curve on either side of it.
std::size_t classBelow(std::size_t index, std::size_t count) {
    return index < count / 2 ? index : index + 1;
}

std::optional<double> valueAt(const ReferenceRow& row, double percentile) {
    if (percentile == kMedian) {
        return median(row.classes);
    }
    const auto known = percentiles(row.vocabulary);
    const auto found = std::ranges::find(known, percentile);
    if (found == known.end()) {
        return std::nullopt;
    }
    const std::size_t below = classBelow(static_cast<std::size_t>(found - known.begin()), known.size());
    return boundary(row.classes[below], row.classes[below + 1]);
}

}  // namespace

std::span<const double> percentilesOf(Measure measure) {
    switch (measure) {
        case Measure::Hum:
            return kFrom2_5To97_5;
        case Measure::Pied:
            return kFrom5To95;
        case Measure::Orb:
            return {};
        default:
            return kFrom3To97;
    }
}

std::vector<CurvePoint> percentileCurve(Measure measure, double percentile) {
    std::vector<CurvePoint> curve;
    curve.reserve(kLastWeek - kFirstWeek + 1);
    for (int week = kFirstWeek; week <= kLastWeek; ++week) {
        const auto row = referenceRow(measure, week);
        if (const auto value = row ? valueAt(*row, percentile) : std::nullopt) {
            curve.push_back({week, *value});
        }
    }
    return curve;
}

}  // namespace biometry
