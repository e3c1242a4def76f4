#pragma once

#include <QString>
#include <array>
#include <cstddef>

namespace biometry {

/// The measures of a fetus, in the order of the median boxes, then the orbital diameter, which has no table.
enum class Measure { Bip, Cc, Dat, Ca, Fem, Pied, Hum, Cer, Orb };

inline constexpr std::size_t kClassifiedCount = 8;
inline constexpr std::size_t kMeasureCount = 9;

/// The measures that have a percentile table and a median.
inline constexpr std::array<Measure, kClassifiedCount> kClassified{
    Measure::Bip, Measure::Cc, Measure::Dat, Measure::Ca, Measure::Fem, Measure::Pied, Measure::Hum, Measure::Cer};

/// The name of a measure as headings have it: "Diamètre Bipariétal".
QString measureName(Measure measure);

constexpr std::size_t indexOf(Measure measure) {
    return static_cast<std::size_t>(measure);
}

}  // namespace biometry
