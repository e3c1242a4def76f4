#include <gtest/gtest.h>

#include <QStringList>
#include <tuple>
#include <vector>

#include "biometry/medians.h"
#include "biometry/reference.h"

namespace {

using namespace biometry;

std::string joined(const std::optional<Medians>& boxes) {
    if (!boxes) {
        return "[leave]";
    }
    QStringList texts;
    for (const QString& box : *boxes) {
        texts << (box.isEmpty() ? QStringLiteral("-") : box);
    }
    return texts.join(u' ').toStdString();
}

std::string joined(const WeekChange& change) {
    QStringList texts;
    for (const auto& place : change.scrollBars) {
        texts << (place ? QString::number(*place) : QStringLiteral("-"));
    }
    return texts.join(u' ').toStdString();
}

// A median that does not lie in the median class of its measure and week.
using Oddity = std::tuple<Measure, int, int>;

WeekChange changedTo(QStringView week) {
    return weekChange(week, medians(22).value());
}

TEST(Medians, AreThoseOfTheWeeksRow) {
    EXPECT_EQ(joined(medians(13)), "24 - 21 - 10 11 11 -");
    EXPECT_EQ(joined(medians(15)), "31 - 28 95 17 17 17 14");
    EXPECT_EQ(joined(medians(16)), "35 122 31 106 20 20 20 15");
    EXPECT_EQ(joined(medians(25)), "63 229 61 205 46 47 41 27");
    EXPECT_EQ(joined(medians(37)), "89 314 95 316 70 77 61 48");
    EXPECT_EQ(joined(medians(38)), "90 318 98 325 71 78 62 -");
    EXPECT_EQ(joined(medians(41)), "93 331 104 348 75 - 65 -");
}

TEST(Medians, AreEmptyBelow13AndAbove41) {
    EXPECT_EQ(joined(medians(12)), "- - - - - - - -");
    EXPECT_EQ(joined(medians(42)), "- - - - - - - -");
    EXPECT_EQ(joined(medians(0)), "- - - - - - - -");
}

TEST(Medians, OfAWeekBetweenTwoRowsAreThoseOf25FromThereOn) {
    EXPECT_EQ(joined(medians(22.5)), "[leave]");
    EXPECT_EQ(joined(medians(30.5)), joined(medians(25)));
    EXPECT_EQ(joined(medians(41.5)), "- - - - - - - -");
}

TEST(Medians, OutsideTheMedianClassOfTheirTableAreTheseAlone) {
    std::vector<Oddity> outside;
    for (int week = 13; week <= 41; ++week) {
        const Medians boxes = medians(week).value();
        for (const Measure measure : kClassified) {
            const auto row = referenceRow(measure, week);
            const QString& box = boxes[indexOf(measure)];
            if (row && !box.isEmpty() && !row->classes[row->classes.size() / 2].holds(box.toInt())) {
                outside.push_back({measure, week, box.toInt()});
            }
        }
    }
    const std::vector<Oddity> expected{{Measure::Pied, 15, 17}, {Measure::Cer, 15, 14}, {Measure::Pied, 16, 20},
                                       {Measure::Fem, 19, 29},  {Measure::Cer, 19, 18}, {Measure::Cer, 25, 27}};
    EXPECT_EQ(outside, expected);
}

TEST(WeekChange, WritesTheMediansAndTheoreticalWeightAndEmptiesTheMeasuresLast) {
    const WeekChange change = changedTo(u"16");
    EXPECT_FALSE(change.emptiesMeasuresFirst);
    EXPECT_FALSE(change.blanksLabels);
    EXPECT_EQ(joined(change.medians), joined(medians(16)));
    EXPECT_EQ(change.theoreticalWeight.value().toStdString(), "88 g");
    EXPECT_FALSE(change.blanksEstimatedWeight);
    EXPECT_TRUE(change.emptiesMeasuresLast);
}

TEST(WeekChange, MovesEachScrollBarToItsMedianAndTheOrbitsToHalfTheBipLess2) {
    EXPECT_EQ(joined(changedTo(u"16")), "35 122 31 106 20 20 20 15 16");  // 35 / 2 - 2 is 15.5
    EXPECT_EQ(joined(changedTo(u"22")), "53 196 52 173 38 39 35 23 24");  // 24.5
    EXPECT_EQ(joined(changedTo(u"24")), "60 219 58 195 43 44 39 25 28");
}

TEST(WeekChange, LeavesTheScrollBarsThatHaveNoMedian) {
    EXPECT_EQ(joined(changedTo(u"13")), "24 - 21 - 10 11 11 - 10");
    EXPECT_EQ(joined(changedTo(u"41")), "93 331 104 348 75 - 65 - 44");  // 93 / 2 - 2 is 44.5
    EXPECT_EQ(joined(changedTo(u"42")), "- - - - - - - - -");
}

TEST(WeekChange, FromWeek13To15HasNoTheoreticalWeightAndBlanksTheEstimatedOne) {
    for (const QStringView week : {u"13", u"14", u"15"}) {
        const WeekChange change = changedTo(week);
        EXPECT_EQ(change.theoreticalWeight.value().toStdString(), "");
        EXPECT_TRUE(change.blanksEstimatedWeight);
        EXPECT_TRUE(change.emptiesMeasuresLast);
    }
}

TEST(WeekChange, HasATheoreticalWeightUpToWeek41) {
    EXPECT_EQ(changedTo(u"41").theoreticalWeight.value().toStdString(), "3342 g");
    const WeekChange beyond = changedTo(u"42");
    EXPECT_EQ(beyond.theoreticalWeight.value().toStdString(), "");
    EXPECT_EQ(joined(beyond.medians), "- - - - - - - -");
    EXPECT_TRUE(beyond.blanksEstimatedWeight);
    EXPECT_FALSE(beyond.blanksLabels);
}

TEST(WeekChange, Below13BlanksMediansLabelsAndWeights) {
    const WeekChange change = changedTo(u"12");
    EXPECT_TRUE(change.blanksLabels);
    EXPECT_EQ(joined(change.medians), "- - - - - - - -");
    EXPECT_EQ(change.theoreticalWeight.value().toStdString(), "");
    EXPECT_TRUE(change.blanksEstimatedWeight);
    EXPECT_EQ(joined(change), "- - - - - - - - -");
    EXPECT_TRUE(change.emptiesMeasuresLast);
}

TEST(WeekChange, ToNothingEmptiesMeasuresAndMediansAndKeepsTheLabels) {
    const WeekChange change = changedTo(u"");
    EXPECT_TRUE(change.emptiesMeasuresFirst);
    EXPECT_EQ(joined(change.medians), "- - - - - - - -");
    EXPECT_FALSE(change.blanksLabels);
    EXPECT_FALSE(change.theoreticalWeight.has_value());
    EXPECT_FALSE(change.blanksEstimatedWeight);
    EXPECT_EQ(joined(change), "- - - - - - - - -");
    EXPECT_FALSE(change.emptiesMeasuresLast);
}

TEST(WeekChange, ToWhatIsNoNumberDoesNothing) {
    const WeekChange change = changedTo(u"SA");
    EXPECT_FALSE(change.emptiesMeasuresFirst);
    EXPECT_FALSE(change.medians.has_value());
    EXPECT_FALSE(change.theoreticalWeight.has_value());
    EXPECT_FALSE(change.emptiesMeasuresLast);
}

TEST(WeekChange, BetweenTwoRowsGoesByTheBoxesAsTheyStand) {
    const WeekChange change = changedTo(u"22,5");
    EXPECT_FALSE(change.medians.has_value());
    EXPECT_EQ(joined(change), "53 196 52 173 38 39 35 23 24");
    // 196² x 0.053 x 38 is 77369.4, 173² x 0.32 x 38 is 363936.6
    EXPECT_EQ(change.theoreticalWeight.value().toStdString(), "441 g");
}

}  // namespace
