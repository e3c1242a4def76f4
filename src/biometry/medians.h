#pragma once

#include <QString>
#include <array>
#include <optional>

#include "biometry/measure.h"

namespace biometry {

/// The texts of the median boxes, by measure (`indexOf`): whole millimetres, or "" where the week has none.
using Medians = std::array<QString, kClassifiedCount>;

/// The medians that a week of amenorrhoea writes into the boxes: those of its row from 13 to 41, all "" below 13 and
/// above 41. A week between two rows takes that of week 25 from there on; before it, nothing is written.
std::optional<Medians> medians(double week);

/// What a change of the week field does, in the order of the members. Each write triggers what its field does.
struct WeekChange {
    /// The nine measures become "" at once, before the rest: the week was emptied.
    bool emptiesMeasuresFirst = false;
    /// The eight percentile labels become "".
    bool blanksLabels = false;
    /// What the median boxes take, if anything.
    std::optional<Medians> medians;
    /// The text of `Label22`, if it is written.
    std::optional<QString> theoreticalWeight;
    /// `Poids` becomes "".
    bool blanksEstimatedWeight = false;
    /// Where the scroll bars go, by measure; those that stay have none.
    std::array<std::optional<int>, kMeasureCount> scrollBars;
    /// The nine measures become "", after the scroll bars have written theirs.
    bool emptiesMeasuresLast = false;
};

/// The steps of a change of the week field to `week`, with the median boxes as they stand before it. A week that is no
/// number does nothing, "" only empties.
WeekChange weekChange(QStringView week, const Medians& boxes);

}  // namespace biometry
