#include <gtest/gtest.h>

#include <algorithm>
#include <functional>

#include "biometry/curves.h"

namespace {

using namespace biometry;

double valueAt(Measure measure, double percentile, int week) {
    for (const CurvePoint& at : percentileCurve(measure, percentile)) {
        if (at.week == week) {
            return at.millimetres;
        }
    }
    return -1;
}

std::vector<double> percentilesAt(Measure measure, int week) {
    std::vector<double> values;
    for (const double percentile : percentilesOf(measure)) {
        values.push_back(valueAt(measure, percentile, week));
    }
    return values;
}

// Week 22 of the biparietal diameter: up to 47, 48 to 49, 50 to 52, 53 to 54, 55 to 57, 58 to 59, from 60.
TEST(PercentileCurve, LiesMidwayBetweenTwoClassesAndInTheMiddleOfTheMedianClass) {
    EXPECT_EQ(percentilesAt(Measure::Bip, 22), (std::vector{47.5, 49.5, 53.5, 57.5, 59.5}));
    // Week 30 of the humerus: up to 43, 44 to 47, 48 to 50, 51, 52 to 55, 56 to 58, from 59.
    EXPECT_EQ(percentilesAt(Measure::Hum, 30), (std::vector{43.5, 47.5, 51.0, 55.5, 58.5}));
    // Week 33 of the foot: up to 59, 60 to 65, 66 to 68, 69 to 74, from 75.
    EXPECT_EQ(percentilesAt(Measure::Pied, 33), (std::vector{59.5, 67.0, 74.5}));
}

TEST(PercentileCurve, LiesOnTheValueThatHasNoClass) {
    EXPECT_EQ(valueAt(Measure::Bip, 3, 16), 29);
    EXPECT_EQ(valueAt(Measure::Ca, 3, 15), 80);
    EXPECT_EQ(valueAt(Measure::Ca, 90, 21), 177);
}

TEST(PercentileCurve, CoversTheWeeksOfItsTable) {
    EXPECT_EQ(percentileCurve(Measure::Bip, 50).size(), 29U);
    EXPECT_EQ(percentileCurve(Measure::Cc, 50).front().week, 16);
    EXPECT_EQ(percentileCurve(Measure::Cc, 50).back().week, 40);
    EXPECT_EQ(percentileCurve(Measure::Cer, 97).front().week, 15);
    EXPECT_EQ(percentileCurve(Measure::Cer, 97).back().week, 37);
}

TEST(PercentileCurve, LeavesOutTheMissingTopOfWeek19OfTheFemur) {
    EXPECT_EQ(percentileCurve(Measure::Fem, 97).size(), 28U);
    EXPECT_EQ(valueAt(Measure::Fem, 97, 19), -1);
    EXPECT_EQ(valueAt(Measure::Fem, 97, 20), 37.5);
    EXPECT_EQ(valueAt(Measure::Fem, 90, 19), 32.5);
}

TEST(PercentileCurve, OfTheFootHasItsOuterCurvesFromWeek24To38Alone) {
    EXPECT_EQ(percentileCurve(Measure::Pied, 5).size(), 15U);
    EXPECT_EQ(percentileCurve(Measure::Pied, 95).front().week, 24);
    EXPECT_EQ(percentileCurve(Measure::Pied, 95).back().week, 38);
    EXPECT_EQ(percentileCurve(Measure::Pied, 50).size(), 28U);
}

TEST(PercentileCurve, OfTheFootAtWeek15LiesBetweenItsTwoClasses) {
    EXPECT_EQ(valueAt(Measure::Pied, 50, 15), 16.5);
    EXPECT_EQ(valueAt(Measure::Pied, 50, 13), 11.5);
}

TEST(PercentileCurve, IsEmptyForAPercentileThatTheMeasureDoesNotHave) {
    EXPECT_TRUE(percentileCurve(Measure::Bip, 5).empty());
    EXPECT_TRUE(percentileCurve(Measure::Orb, 50).empty());
    EXPECT_TRUE(percentilesOf(Measure::Orb).empty());
}

TEST(PercentileCurves, NeverCrossInAnyWeek) {
    for (const Measure measure : kClassified) {
        for (int week = 13; week <= 41; ++week) {
            std::vector<double> values = percentilesAt(measure, week);
            std::erase(values, -1);
            EXPECT_EQ(std::ranges::adjacent_find(values, std::greater_equal<>()), values.end())
                << indexOf(measure) << " " << week;
        }
    }
}

}  // namespace
