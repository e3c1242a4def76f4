#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

namespace biometry::tables {

/// The median that a week doesn't have.
inline constexpr std::int16_t kNone = 0;

/// The medians of one whole week of amenorrhoea, whole millimetres.
struct MedianRow {
    int week;
    std::int16_t millimetres[8];
};

/// The 50th percentile of the eight measures, whole millimetres, weeks of amenorrhoea 13 to 41.
/// Source: the practice's reference tables. Not all of them lie in the median class of the percentile tables: the two
/// are kept apart, as the practice has them.
inline constexpr auto kMedians = std::to_array<MedianRow>({
    // SA, Bip, Cc, Dat, Ca, Fem, Pied, Hum, Cer
    {13, {24, kNone, 21, kNone, 10, 11, 11, kNone}}, {14, {28, kNone, 24, kNone, 13, 14, 14, kNone}},
    {15, {31, kNone, 28, 95, 17, 17, 17, 14}},       {16, {35, 122, 31, 106, 20, 20, 20, 15}},
    {17, {38, 135, 35, 119, 23, 24, 23, 16}},        {18, {41, 149, 38, 129, 26, 27, 26, 17}},
    {19, {44, 160, 42, 140, 29, 30, 29, 18}},        {20, {47, 174, 45, 152, 32, 32, 31, 20}},
    {21, {50, 184, 48, 162, 35, 35, 33, 21}},        {22, {53, 196, 52, 173, 38, 39, 35, 23}},
    {23, {57, 208, 55, 183, 41, 42, 37, 24}},        {24, {60, 219, 58, 195, 43, 44, 39, 25}},
    {25, {63, 229, 61, 205, 46, 47, 41, 27}},        {26, {66, 238, 64, 215, 49, 49, 43, 28}},
    {27, {68, 247, 67, 224, 51, 54, 45, 30}},        {28, {71, 255, 70, 235, 53, 56, 47, 32}},
    {29, {74, 263, 73, 244, 55, 57, 49, 34}},        {30, {76, 271, 76, 255, 57, 58, 51, 36}},
    {31, {79, 280, 79, 264, 59, 62, 53, 38}},        {32, {81, 285, 82, 273, 61, 65, 55, 40}},
    {33, {83, 292, 85, 281, 63, 67, 57, 42}},        {34, {85, 299, 87, 291, 65, 69, 58, 43}},
    {35, {86, 304, 90, 300, 67, 71, 59, 45}},        {36, {88, 310, 92, 308, 68, 73, 60, 46}},
    {37, {89, 314, 95, 316, 70, 77, 61, 48}},        {38, {90, 318, 98, 325, 71, 78, 62, kNone}},
    {39, {91, 321, 100, 332, 73, 78, 63, kNone}},    {40, {92, 326, 102, 340, 74, 79, 64, kNone}},
    {41, {93, 331, 104, 348, 75, kNone, 65, kNone}},
});

consteval bool mediansCoverWeeks(int first, int last) {
    int week = first;
    for (const MedianRow& row : kMedians) {
        if (row.week != week++) {
            return false;
        }
    }
    return week == last + 1;
}

/// Whether a column has its medians from the week `first` to the week `last` alone, and they never fall.
consteval bool columnGrows(std::size_t column, int first, int last) {
    int before = 1;
    for (const MedianRow& row : kMedians) {
        const int now = row.millimetres[column];
        const bool covered = first <= row.week && row.week <= last;
        if (covered ? now < before : now != kNone) {
            return false;
        }
        before = covered ? now : before;
    }
    return true;
}

static_assert(mediansCoverWeeks(13, 41));
static_assert(columnGrows(0, 13, 41) && columnGrows(1, 16, 41) && columnGrows(2, 13, 41) && columnGrows(3, 15, 41));
static_assert(columnGrows(4, 13, 41) && columnGrows(5, 13, 40) && columnGrows(6, 13, 41) && columnGrows(7, 15, 37));

}  // namespace biometry::tables
