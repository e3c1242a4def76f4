#include "biometry/medians.h"

#include <algorithm>

#include "base/numbers.h"
#include "biometry/tables/medians.h"
#include "biometry/weights.h"

namespace biometry {
namespace {

constexpr int kFirstWeek = 13;
constexpr int kLastWeek = 41;
constexpr int kWeekOfLaterFractions = 25;

Medians texts(const tables::MedianRow& row) {
    Medians boxes;
    std::ranges::transform(row.millimetres, boxes.begin(), [](int millimetres) {
        return millimetres == tables::kNone ? QString() : QString::number(millimetres);
    });
    return boxes;
}

std::optional<Medians> rowOf(double week) {
    const auto row =
        std::ranges::find(tables::kMedians, week, [](const auto& r) { return static_cast<double>(r.week); });
    return row == tables::kMedians.end() ? std::nullopt : std::optional(texts(*row));
}

const QString& box(const Medians& boxes, Measure measure) {
    return boxes[indexOf(measure)];
}

bool canWeigh(const Medians& boxes) {
    return std::ranges::all_of(std::array{Measure::Ca, Measure::Cc, Measure::Fem},
                               [&](Measure measure) { return base::isNumeric(box(boxes, measure)); });
}

std::array<std::optional<int>, kMeasureCount> scrollBars(const Medians& boxes) {
    std::array<std::optional<int>, kMeasureCount> moves;
    for (const Measure measure : kClassified) {
        if (base::isNumeric(box(boxes, measure))) {
            moves[indexOf(measure)] = base::toInt16(base::toNumber(box(boxes, measure)));
        }
    }
    if (base::isNumeric(box(boxes, Measure::Bip))) {
        moves[indexOf(Measure::Orb)] = base::toInt16(base::toNumber(box(boxes, Measure::Bip)) / 2 - 2);
    }
    return moves;
}

}  // namespace

std::optional<Medians> medians(double week) {
    if (week < kFirstWeek || week > kLastWeek) {
        return Medians{};
    }
    const auto row = rowOf(week);
    return row || week < kWeekOfLaterFractions ? row : rowOf(kWeekOfLaterFractions);
}

WeekChange weekChange(QStringView week, const Medians& boxes) {
    WeekChange change;
    if (week.isEmpty()) {
        change.emptiesMeasuresFirst = true;
        change.medians = Medians{};
    }
    if (!base::isNumeric(week)) {
        return change;
    }
    const double number = base::toNumber(week);
    change.blanksLabels = number < kFirstWeek;
    change.medians = medians(number);
    const Medians& now = change.medians ? *change.medians : boxes;
    change.theoreticalWeight = theoreticalWeight(number, now);
    change.blanksEstimatedWeight = !canWeigh(now);
    change.scrollBars = scrollBars(now);
    change.emptiesMeasuresLast = true;
    return change;
}

}  // namespace biometry
