#include "responses/exam_field.h"

#include <gtest/gtest.h>

#include <array>

namespace responses {
namespace {

template <std::size_t N>
constexpr std::array<ExamField, N> rowsOf(const int (&indexes)[N]) {
    std::array<ExamField, N> rows{};
    for (std::size_t i = 0; i < N; ++i) {
        rows[i].index = indexes[i];
    }
    return rows;
}

TEST(CoversEachIndexOnce, HoldsForAnyOrder) {
    static_assert(coversEachIndexOnce(rowsOf({0, 2, 1}), 0, 2));
    EXPECT_TRUE(coversEachIndexOnce(rowsOf({0, 2, 1}), 0, 2));
}

TEST(CoversEachIndexOnce, FailsOnAGapADoubleAndAStranger) {
    EXPECT_FALSE(coversEachIndexOnce(rowsOf({0, 2}), 0, 2));
    EXPECT_FALSE(coversEachIndexOnce(rowsOf({0, 1, 1, 2}), 0, 2));
    EXPECT_FALSE(coversEachIndexOnce(rowsOf({0, 1, 2, 3}), 0, 2));
}

TEST(CoversEachIndexOnce, AllowsANamedControlOutsideTheArray) {
    constexpr std::array<ExamField, 2> named{{{0, u"", u"BMI"}, {kOutside, u"", u"Ca", nothing(), u"TxtCa1"}}};
    constexpr std::array<ExamField, 2> unnamed{{{0, u"", u"BMI"}, {kOutside, u"", u"Ca"}}};
    EXPECT_TRUE(coversEachIndexOnce(named, 0, 0));
    EXPECT_FALSE(coversEachIndexOnce(unnamed, 0, 0));
}

TEST(Offer, OfNumbersRunsFromTheFirstToTheLast) {
    EXPECT_EQ(numberLines(numbers(0, 3, 1)), QStringList({"0", "1", "2", "3"}));
    EXPECT_EQ(typicalLine(numbers(0, 3, 1)), "1");
    EXPECT_EQ(numberLines(numbers(130, 200, 170)).size(), 71);
}

TEST(Offer, OfTenthsReadsInTheFrenchForm) {
    const QStringList lines = numberLines(tenths(6, 50, 20));
    EXPECT_EQ(lines.size(), 45);
    EXPECT_EQ(lines.mid(0, 6), QStringList({"0,6", "0,7", "0,8", "0,9", "1", "1,1"}));
    EXPECT_EQ(lines.last(), "5");
    EXPECT_EQ(typicalLine(tenths(6, 50, 20)), "2");
    EXPECT_EQ(lines.count("2"), 1);
}

}  // namespace
}  // namespace responses
