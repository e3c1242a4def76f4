#pragma once

#include <gtest/gtest.h>

#include <tuple>
#include <utility>
#include <vector>

#include "exams/first_trimester_sheet.h"

namespace exams {

/// The rubric that each field of phrases offers.
inline const std::vector<std::pair<int, int>> kFirstTrimesterRubrics{
    {1, 1},   {5, 2},   {6, 3},   {7, 7},   {8, 8},   {9, 9},  {10, 10}, {12, 4},
    {14, 5},  {24, 12}, {25, 13}, {26, 16}, {16, 6},  {27, 6}, {35, 6},  // movements
    {22, 45}, {33, 45}, {41, 45}, {23, 11}, {34, 11}, {42, 11}};         // nasal bone, morphology

/// The first and the last number that each field of numbers offers, the one chosen at first, and how many they are.
inline const std::vector<std::tuple<int, const char*, const char*, const char*, int>> kFirstTrimesterNumbers{
    {11, "0", "3", "1", 4},        {13, "6", "50", "30", 45},     {15, "0", "3", "1", 4},
    {17, "130", "200", "170", 71}, {28, "130", "200", "170", 71}, {36, "130", "200", "170", 71},  // heart rate
    {18, "4", "100", "60", 97},    {29, "4", "100", "60", 97},    {37, "4", "100", "60", 97},     // crown-rump
    {19, "13", "30", "24", 18},    {30, "13", "30", "24", 18},    {38, "13", "30", "24", 18},     // biparietal
    {20, "5", "15", "10", 11},     {31, "5", "15", "10", 11},     {39, "5", "15", "10", 11},      // femur
    {21, "0,6", "5", "2", 45},     {32, "0,6", "5", "2", 45},     {40, "0,6", "5", "2", 45}};     // nuchal

/// Walks the fields of a window, the three dates among them. Each rubric holds its number as its one phrase.
inline void expectOffersOfEachField(FirstTrimesterSheet& sheet) {
    ASSERT_EQ(kFirstTrimesterRubrics.size() + kFirstTrimesterNumbers.size() + 3, 42U);
    const auto enter = [&sheet](int index) {
        sheet.Text1.setFocus();
        sheet.showFetus(index < 27 ? 0 : index < 35 ? 1 : 2);
        sheet.Txt1Ter(index).setFocus();
    };
    for (const auto& [index, rubric] : kFirstTrimesterRubrics) {
        enter(index);
        EXPECT_EQ(sheet.List1.items(), QStringList({QString::number(rubric) + " "})) << index;
        EXPECT_FALSE(sheet.List2.visible()) << index;
        EXPECT_FALSE(sheet.Calendar1.visible()) << index;
    }
    for (const auto& [index, first, last, chosen, count] : kFirstTrimesterNumbers) {
        enter(index);
        EXPECT_TRUE(sheet.List2.visible()) << index;
        EXPECT_EQ(sheet.List1.count(), 0) << index;
        EXPECT_EQ(sheet.List2.items().first(), first) << index;
        EXPECT_EQ(sheet.List2.items().last(), last) << index;
        EXPECT_EQ(sheet.List2.count(), count) << index;
        EXPECT_EQ(sheet.List2.text(), chosen) << index;
    }
    for (const int date : {2, 3, 4}) {
        enter(5);
        enter(date);
        EXPECT_EQ(sheet.List1.count(), 0) << date;
        EXPECT_TRUE(sheet.Calendar1.visible()) << date;
    }
    enter(7);
    enter(0);
    EXPECT_EQ(sheet.List1.items(), QStringList({"7 "}));
    EXPECT_FALSE(sheet.Calendar1.visible());
}

}  // namespace exams
