#pragma once

#include <optional>
#include <span>

#include "biometry/measure.h"
#include "biometry/tables/percentile_row.h"

namespace biometry {

/// Which percentiles part the classes of a row.
enum class Vocabulary {
    From3To97,      ///< 3, 10, the median class, 90, 97
    From2_5To97_5,  ///< 2.5, 10, the median class, 90, 97.5
    From5To95,      ///< 5, the median class, 95
    AroundMedian,   ///< the median class alone
};

/// The classes of one measure at one week, as its table has them.
struct ReferenceRow {
    Vocabulary vocabulary;
    std::span<const tables::Range> classes;
};

/// The row of exactly this week of amenorrhoea. Nothing is interpolated: no row, no reference.
std::optional<ReferenceRow> referenceRow(Measure measure, double week);

}  // namespace biometry
