#pragma once

#include <QString>
#include <cstdint>

#include "biometry/measure.h"

namespace biometry {

/// The colours of a percentile label, 0xRRGGBB.
inline constexpr std::uint32_t kCalmColor = 0x0000FF;
inline constexpr std::uint32_t kAlarmColor = 0xFF0000;

/// The font sizes of a percentile label, in points.
inline constexpr int kCalmSize = 8;
inline constexpr int kAlarmSize = 10;

/// The label beside a measure.
struct PercentileLabel {
    QString text;
    std::uint32_t color = kCalmColor;
    int size = kCalmSize;

    bool operator==(const PercentileLabel&) const = default;
};

/// The label after its measure has changed to `value`, from the label as it stands: where the reference says nothing
/// the text stays. `week` is the text of `SAF3`, in weeks of amenorrhoea, `value` that of the measure, in millimetres,
/// of which the leading number counts, rounded to a whole one. Throws Overflow for a value beyond 16 bits and
/// TypeMismatch for a week that is neither "" nor a number. Source: the practice's tables, `biometry/tables/`.
PercentileLabel classify(Measure measure, QStringView week, QStringView value, PercentileLabel present);

/// Whether a change of this measure empties the two ratios, besides the estimated weight, which every measure empties.
constexpr bool clearsRatios(Measure measure) {
    return measure != Measure::Hum;
}

}  // namespace biometry
