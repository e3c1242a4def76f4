#include "biometry/reference.h"

#include <algorithm>

#include "biometry/tables/bip.h"
#include "biometry/tables/ca.h"
#include "biometry/tables/cc.h"
#include "biometry/tables/cer.h"
#include "biometry/tables/dat.h"
#include "biometry/tables/fem.h"
#include "biometry/tables/hum.h"
#include "biometry/tables/pied.h"

namespace biometry {
namespace {

template <class Table>
std::optional<ReferenceRow> find(const Table& table, double week, Vocabulary vocabulary) {
    const auto row = std::ranges::find(table, week, [](const auto& r) { return static_cast<double>(r.week); });
    return row == std::end(table) ? std::nullopt : std::optional(ReferenceRow{vocabulary, row->classes});
}

}  // namespace

std::optional<ReferenceRow> referenceRow(Measure measure, double week) {
    switch (measure) {
        case Measure::Bip:
            return find(tables::kBip, week, Vocabulary::From3To97);
        case Measure::Cc:
            return find(tables::kCc, week, Vocabulary::From3To97);
        case Measure::Dat:
            return find(tables::kDat, week, Vocabulary::From3To97);
        case Measure::Ca:
            return find(tables::kCa, week, Vocabulary::From3To97);
        case Measure::Fem:
            return find(tables::kFem, week, Vocabulary::From3To97);
        case Measure::Cer:
            return find(tables::kCer, week, Vocabulary::From3To97);
        case Measure::Hum:
            return find(tables::kHum, week, Vocabulary::From2_5To97_5);
        case Measure::Pied: {
            const auto row = find(tables::kPied, week, Vocabulary::From5To95);
            return row ? row : find(tables::kPiedAroundMedian, week, Vocabulary::AroundMedian);
        }
        case Measure::Orb:
            break;
    }
    return std::nullopt;
}

}  // namespace biometry
