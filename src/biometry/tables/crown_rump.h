#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

namespace biometry::tables {

/// The longest crown-rump length that dates a pregnancy, in millimetres.
inline constexpr int kLongestCrownRump = 85;

/// Days of amenorrhoea by crown-rump length, 1 to 85 whole millimetres, ten a line.
/// Source: the practice's dating table. It has no row for 74 mm, which stands here as 0 days; 73 and 75 share theirs.
inline constexpr std::array<std::uint8_t, kLongestCrownRump> kCrownRumpDays{
    32,  35,  38,  42,  42,  43, 45, 47, 48, 49,  // 1 to 10
    52,  53,  53,  55,  56,  57, 58, 59, 60, 60,  // 11 to 20
    61,  63,  64,  65,  66,  67, 67, 68, 69, 70,  // 21 to 30
    70,  71,  71,  71,  72,  74, 74, 75, 75, 76,  // 31 to 40
    77,  77,  78,  78,  79,  79, 80, 81, 81, 82,  // 41 to 50
    82,  83,  83,  84,  84,  85, 85, 86, 86, 87,  // 51 to 60
    88,  88,  89,  89,  90,  91, 91, 92, 92, 93,  // 61 to 70
    94,  94,  95,  0,   95,  97, 97, 98, 98, 99,  // 71 to 80
    100, 100, 101, 101, 102,                      // 81 to 85
};

consteval bool crownRumpDaysGrow() {
    int before = 0;
    for (std::size_t i = 0; i < kCrownRumpDays.size(); ++i) {
        const int days = kCrownRumpDays[i];
        if (i + 1 != 74 && days < before) {
            return false;
        }
        before = i + 1 == 74 ? before : days;
    }
    return true;
}

static_assert(kCrownRumpDays[74 - 1] == 0 && kCrownRumpDays[73 - 1] == kCrownRumpDays[75 - 1]);
static_assert(kCrownRumpDays.front() == 32 && kCrownRumpDays.back() == 102 && crownRumpDaysGrow());

}  // namespace biometry::tables
