#pragma once

#include "biometry/tables/percentile_row.h"

namespace biometry::tables {

/// Femur length, whole millimetres by class, weeks of amenorrhoea 13 to 41.
/// Source: the practice's reference tables, "Courbe CFEF".
/// Week 19 has no class above the sixth: 35 mm and more belong to none.
inline constexpr auto kFem = std::to_array<PercentileRow<7>>({
    // SA, < 3, 3 to 10, 10 to 50, 50, 50 to 90, 90 to 97, > 97
    {13, {upTo(5), {6, 8}, only(9), only(10), {11, 13}, {14, 15}, from(16)}},
    {14, {upTo(8), {9, 10}, {11, 12}, only(13), {14, 16}, {17, 18}, from(19)}},
    {15, {upTo(11), {12, 14}, {15, 16}, only(17), {18, 19}, {20, 21}, from(22)}},
    {16, {upTo(14), {15, 17}, {18, 19}, only(20), {21, 22}, {23, 24}, from(25)}},
    {17, {upTo(17), {18, 20}, {21, 22}, only(23), {24, 26}, {27, 28}, from(29)}},
    {18, {upTo(20), {21, 23}, {24, 25}, only(26), {27, 28}, {29, 31}, from(32)}},
    {19, {upTo(24), {25, 26}, {27, 29}, only(30), {31, 32}, {33, 34}, none()}},
    {20, {upTo(26), {27, 29}, {30, 31}, {32, 33}, {34, 35}, {36, 37}, from(38)}},
    {21, {upTo(29), {30, 32}, {33, 34}, only(35), {36, 38}, {39, 40}, from(41)}},
    {22, {upTo(32), {33, 34}, {35, 37}, only(38), {39, 40}, {41, 43}, from(44)}},
    {23, {upTo(34), {35, 37}, {38, 39}, {40, 41}, {42, 44}, {45, 46}, from(47)}},
    {24, {upTo(37), {38, 40}, {41, 42}, {43, 44}, {45, 46}, {47, 48}, from(49)}},
    {25, {upTo(39), {40, 42}, {43, 44}, {45, 46}, {47, 49}, {50, 51}, from(52)}},
    {26, {upTo(42), {43, 45}, {46, 47}, {48, 49}, {50, 52}, {53, 54}, from(55)}},
    {27, {upTo(44), {45, 47}, {48, 49}, {50, 51}, {52, 54}, {55, 56}, from(57)}},
    {28, {upTo(46), {47, 49}, {50, 52}, only(53), {54, 55}, {56, 58}, from(59)}},
    {29, {upTo(48), {49, 51}, {52, 54}, only(55), {56, 59}, {60, 61}, from(62)}},
    {30, {upTo(50), {51, 53}, {54, 56}, only(57), {58, 61}, {62, 63}, from(64)}},
    {31, {upTo(52), {53, 55}, {56, 58}, only(59), {60, 63}, {64, 65}, from(66)}},
    {32, {upTo(54), {55, 57}, {58, 60}, only(61), {62, 65}, {66, 67}, from(68)}},
    {33, {upTo(56), {57, 59}, {60, 62}, only(63), {64, 67}, {68, 69}, from(70)}},
    {34, {upTo(58), {59, 61}, {62, 64}, only(65), {66, 69}, {70, 71}, from(72)}},
    {35, {upTo(59), {60, 63}, {64, 66}, only(67), {68, 70}, {71, 72}, from(73)}},
    {36, {upTo(61), {62, 64}, {65, 67}, {68, 69}, {70, 72}, {73, 74}, from(75)}},
    {37, {upTo(62), {63, 66}, {67, 68}, {69, 71}, {72, 74}, {75, 76}, from(77)}},
    {38, {upTo(64), {65, 67}, {68, 69}, {70, 71}, {72, 75}, {76, 77}, from(78)}},
    {39, {upTo(65), {66, 68}, {69, 71}, {72, 73}, {74, 76}, {77, 79}, from(80)}},
    {40, {upTo(66), {67, 69}, {70, 72}, {73, 74}, {75, 78}, {79, 80}, from(81)}},
    {41, {upTo(67), {68, 70}, {71, 73}, {74, 76}, {77, 79}, {80, 82}, from(83)}},
});

static_assert(coversWeeks(kFem, 13, 41) && growsWithTheWeek(kFem));
static_assert(everyRow(kFem, [](const auto& row) { return isAscending(row) && startsAtZero(row); }));
static_assert(everyRow(kFem,
                       [](const auto& row) { return row.week == 19 || (hasEveryClass(row) && isOpenAbove(row)); }));
static_assert(valuesWithoutClass(kFem) == 0 && isGap(kFem, 19, 35) && isGap(kFem, 19, kNoBound));

}  // namespace biometry::tables
