#pragma once

#include "biometry/tables/percentile_row.h"

namespace biometry::tables {

/// Cerebellum, whole millimetres by class, weeks of amenorrhoea 15 to 37.
/// Source: the practice's reference tables, "Courbe CFEF".
/// 16 mm at week 19 belongs to no class.
inline constexpr auto kCer = std::to_array<PercentileRow<7>>({
    // SA, < 3, 3 to 10, 10 to 50, 50, 50 to 90, 90 to 97, > 97
    {15, {upTo(10), only(11), only(12), only(13), only(14), {15, 16}, from(17)}},
    {16, {upTo(11), {12, 13}, only(14), only(15), only(16), only(17), from(18)}},
    {17, {upTo(13), only(14), only(15), only(16), only(17), only(18), from(19)}},
    {18, {upTo(14), only(15), only(16), only(17), only(18), {19, 20}, from(21)}},
    {19, {upTo(15), only(17), only(18), only(19), only(20), only(21), from(22)}},
    {20, {upTo(16), only(17), {18, 19}, only(20), only(21), only(22), from(23)}},
    {21, {upTo(17), only(18), {19, 20}, only(21), {22, 23}, only(24), from(25)}},
    {22, {upTo(19), only(20), {21, 22}, only(23), only(24), only(25), from(26)}},
    {23, {upTo(20), only(21), {22, 23}, only(24), only(25), only(26), from(27)}},
    {24, {upTo(21), only(22), {23, 24}, only(25), {26, 27}, only(28), from(29)}},
    {25, {upTo(22), only(23), {24, 25}, only(26), {27, 28}, {29, 30}, from(31)}},
    {26, {upTo(24), only(25), {26, 27}, only(28), {29, 30}, only(31), from(32)}},
    {27, {upTo(25), {26, 27}, {28, 29}, only(30), {31, 32}, {33, 34}, from(35)}},
    {28, {upTo(27), {28, 29}, {30, 31}, only(32), {33, 34}, {35, 36}, from(37)}},
    {29, {upTo(29), {30, 31}, {32, 33}, only(34), {35, 36}, {37, 38}, from(39)}},
    {30, {upTo(31), {32, 33}, {34, 35}, only(36), {37, 38}, {39, 40}, from(41)}},
    {31, {upTo(33), {34, 35}, {36, 37}, only(38), {39, 40}, {41, 42}, from(43)}},
    {32, {upTo(35), {36, 37}, {38, 39}, only(40), {41, 42}, {43, 44}, from(45)}},
    {33, {upTo(36), {37, 38}, {39, 40}, {41, 42}, {43, 44}, {45, 46}, from(47)}},
    {34, {upTo(38), {39, 40}, {41, 42}, only(43), {44, 46}, {47, 48}, from(49)}},
    {35, {upTo(39), {40, 41}, {42, 43}, {44, 45}, {46, 47}, {48, 49}, from(50)}},
    {36, {upTo(40), {41, 42}, {43, 45}, only(46), {47, 49}, {50, 51}, from(52)}},
    {37, {upTo(41), {42, 44}, {45, 46}, {47, 48}, {49, 51}, {52, 53}, from(54)}},
});

static_assert(coversWeeks(kCer, 15, 37) && isComplete(kCer) && growsWithTheWeek(kCer));
static_assert(valuesWithoutClass(kCer) == 1 && isGap(kCer, 19, 16));

}  // namespace biometry::tables
