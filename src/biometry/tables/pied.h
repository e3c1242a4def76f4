#pragma once

#include "biometry/tables/percentile_row.h"

namespace biometry::tables {

/// Foot length, whole millimetres below, at and above the median, weeks of amenorrhoea 13 to 23, 39 and 40.
/// Source: the practice's reference tables, which name none for this measure.
/// 10 mm at week 13 belongs to no class; week 15 has no class at the median. The row of week 16 lies below that of week
/// 15 and far below that of week 17: it is kept as the practice has it.
inline constexpr auto kPiedAroundMedian = std::to_array<PercentileRow<3>>({
    // SA, < 50, 50, > 50
    {13, {upTo(9), {11, 12}, from(13)}},
    {14, {upTo(13), only(14), from(15)}},
    {15, {upTo(16), none(), from(17)}},
    {16, {upTo(15), only(16), from(17)}},
    {17, {upTo(22), {23, 25}, from(26)}},
    {18, {upTo(25), {26, 28}, from(29)}},
    {19, {upTo(28), {29, 31}, from(32)}},
    {20, {upTo(30), {31, 33}, from(34)}},
    {21, {upTo(33), {34, 36}, from(37)}},
    {22, {upTo(37), {38, 39}, from(40)}},
    {23, {upTo(40), {41, 43}, from(44)}},
    {39, {upTo(75), {76, 78}, from(79)}},
    {40, {upTo(77), {78, 80}, from(81)}},
});

static_assert(coversWeeks(std::span(kPiedAroundMedian).first<11>(), 13, 23));
static_assert(coversWeeks(std::span(kPiedAroundMedian).last<2>(), 39, 40));
static_assert(everyRow(kPiedAroundMedian, [](const auto& row) {
    return isAscending(row) && startsAtZero(row) && isOpenAbove(row) && (row.week == 15 || hasEveryClass(row));
}));
static_assert(valuesWithoutClass(kPiedAroundMedian) == 1 && isGap(kPiedAroundMedian, 13, 10));
static_assert(growsWithTheWeek(std::span(kPiedAroundMedian).first<3>()) &&
              growsWithTheWeek(std::span(kPiedAroundMedian).subspan<3>()));

/// Foot length, whole millimetres by class, weeks of amenorrhoea 24 to 38.
/// Source: the practice's reference tables, which name none for this measure.
inline constexpr auto kPied = std::to_array<PercentileRow<5>>({
    // SA, < 5, 5 to 50, 50, 50 to 95, > 95
    {24, {upTo(39), {40, 42}, {43, 45}, {46, 50}, from(51)}},
    {25, {upTo(41), {42, 45}, {46, 48}, {49, 53}, from(54)}},
    {26, {upTo(44), {45, 47}, {48, 50}, {51, 55}, from(56)}},
    {27, {upTo(46), {47, 52}, {53, 55}, {56, 58}, from(59)}},
    {28, {upTo(48), {49, 54}, {55, 57}, {58, 61}, from(62)}},
    {29, {upTo(50), {51, 55}, {56, 58}, {59, 64}, from(65)}},
    {30, {upTo(53), {54, 56}, {57, 59}, {60, 67}, from(68)}},
    {31, {upTo(55), {56, 60}, {61, 63}, {64, 68}, from(69)}},
    {32, {upTo(57), {58, 63}, {64, 66}, {67, 72}, from(73)}},
    {33, {upTo(59), {60, 65}, {66, 68}, {69, 74}, from(75)}},
    {34, {upTo(61), {62, 67}, {68, 70}, {71, 77}, from(78)}},
    {35, {upTo(63), {64, 69}, {70, 72}, {73, 79}, from(80)}},
    {36, {upTo(65), {66, 71}, {72, 74}, {75, 82}, from(83)}},
    {37, {upTo(66), {67, 75}, {76, 78}, {79, 84}, from(85)}},
    {38, {upTo(68), {69, 76}, {77, 79}, {80, 86}, from(87)}},
});

static_assert(coversWeeks(kPied, 24, 38) && isComplete(kPied) && growsWithTheWeek(kPied));
static_assert(valuesWithoutClass(kPied) == 0);

}  // namespace biometry::tables
