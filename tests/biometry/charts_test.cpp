#include <gtest/gtest.h>

#include "biometry/charts.h"

namespace {

using namespace biometry;

constexpr std::array kPageCharts{Chart::PageBip, Chart::PageCa, Chart::PageFem};

void expectAt(const std::optional<Point>& at, double left, double top) {
    ASSERT_TRUE(at.has_value());
    EXPECT_FLOAT_EQ(at->left, static_cast<float>(left));
    EXPECT_FLOAT_EQ(at->top, static_cast<float>(top));
}

// Left, top, right, bottom of the plotted area, in twips, worked out from origin, width and height.
struct Corners {
    Chart chart;
    int firstWeek, lastWeek, span;
    int left, top, right, bottom;
};

constexpr Corners kCorners[]{
    {Chart::PageBip, 13, 42, 120, 138, 4155, 3873, 8610},  {Chart::PageCa, 15, 42, 400, 4095, 4150, 7830, 8600},
    {Chart::PageFem, 13, 42, 90, 8045, 4155, 11780, 8610}, {Chart::Bip, 13, 42, 120, 1855, 1205, 8735, 6195},
    {Chart::Cc, 13, 39, 400, 1100, 1100, 7980, 6090},      {Chart::Dat, 13, 42, 140, 1855, 1205, 8725, 6195},
    {Chart::Ca, 13, 40, 400, 1380, 1100, 8240, 6090},      {Chart::Fem, 13, 42, 90, 1820, 1100, 8760, 6090},
    {Chart::Pied, 13, 42, 100, 1855, 1100, 8735, 6095},    {Chart::Cer, 13, 36, 60, 1255, 1100, 8155, 6090},
};

TEST(Point, LiesInTheCornersOfEachChart) {
    static_assert(std::size(kCorners) == kChartCount);
    for (const Corners& c : kCorners) {
        expectAt(point(c.chart, c.firstWeek, 0), c.left, c.bottom);
        expectAt(point(c.chart, c.lastWeek, c.span), c.right, c.top);
    }
}

// 1855 + 9 x 6880 / 29 and 6195 - 53 x 4990 / 120.
TEST(Point, IsLinearInBetween) {
    expectAt(point(Chart::Bip, 22, 53), 3990.1724, 3991.0833);
    expectAt(point(Chart::Bip, 22, 120), 3990.1724, 1205);
}

TEST(Point, KeepsDecimalsOfWeekAndValue) {
    // 138 + 9.3 x 3735 / 29 and 8610 - 53.5 x 4455 / 120
    expectAt(point(Chart::PageBip, 22.3, 53.5), 1335.7759, 6623.8125);
}

TEST(Point, IsNotClippedForWeekOrValue) {
    // 4095 + (13 - 15) x 3735 / 27 is about 3818
    expectAt(point(Chart::PageCa, 13, 0), 3818.3333, 8600);
    // 1820 + 37 x 6940 / 29 and 6090 - 180 x 4990 / 90
    expectAt(point(Chart::Fem, 50, 180), 10674.4828, -3890);
}

TEST(Measures, AreThoseOfTheCharts) {
    EXPECT_EQ(geometry(Chart::PageCa).measure, Measure::Ca);
    EXPECT_EQ(geometry(Chart::Dat).measure, Measure::Dat);
    EXPECT_EQ(geometry(Chart::Pied).measure, Measure::Pied);
    EXPECT_EQ(geometry(Chart::Cer).measure, Measure::Cer);
}

TEST(PresentMarker, IsShownAtWeekAndValue) {
    const MarkerMove move = presentMarker(Chart::PageBip, u"22", u"53");
    EXPECT_EQ(move.visible, true);
    expectAt(move.to, 1297.1379, 6642.375);  // 138 + 9 x 3735 / 29, 8610 - 53 x 4455 / 120
}

TEST(PresentMarker, StaysAtTheTopAndHidesAboveIt) {
    const MarkerMove top = presentMarker(Chart::PageBip, u"22", u"120");
    EXPECT_EQ(top.visible, true);
    expectAt(top.to, 1297.1379, 4155);
    EXPECT_EQ(presentMarker(Chart::PageBip, u"22", u"121").visible, false);
    EXPECT_EQ(presentMarker(Chart::PageCa, u"22", u"400").visible, true);
    EXPECT_EQ(presentMarker(Chart::PageCa, u"22", u"401").visible, false);
    EXPECT_EQ(presentMarker(Chart::PageFem, u"22", u"90").visible, true);
    EXPECT_EQ(presentMarker(Chart::PageFem, u"22", u"91").visible, false);
}

TEST(PresentMarker, HidesUnlessBothAreNumeric) {
    const MarkerMove hidden{.visible = false, .to = {}};
    for (const Chart chart : kPageCharts) {
        EXPECT_EQ(presentMarker(chart, u"", u"53"), hidden);
        EXPECT_EQ(presentMarker(chart, u"22", u""), hidden);
        EXPECT_EQ(presentMarker(chart, u"22", u"53 mm"), hidden);
    }
}

TEST(PresentMarker, PlotsAMeasureWithACommaByItsLeadingNumber) {
    EXPECT_EQ(presentMarker(Chart::PageBip, u"22", u"53,9"), presentMarker(Chart::PageBip, u"22", u"53"));
    EXPECT_EQ(presentMarker(Chart::PageBip, u"22", u"120,5").visible, true);
    EXPECT_EQ(presentMarker(Chart::PageBip, u"22", u"120.5").visible, false);
    expectAt(presentMarker(Chart::PageBip, u"22", u"53.5").to, 1297.1379, 6623.8125);
}

TEST(PresentMarker, TakesTheWeeksFromTheFirstAsAWholeNumberTiesToEven) {
    EXPECT_EQ(presentMarker(Chart::PageBip, u"22,5", u"53").to, point(Chart::PageBip, 23, 53));  // 9.5
    EXPECT_EQ(presentMarker(Chart::PageBip, u"23,5", u"53").to, point(Chart::PageBip, 23, 53));  // 10.5
    EXPECT_EQ(presentMarker(Chart::PageCa, u"22,6", u"53").to, point(Chart::PageCa, 23, 53));
}

TEST(PresentMarker, IsNotClippedForTheWeek) {
    const MarkerMove move = presentMarker(Chart::PageCa, u"13", u"60");
    EXPECT_EQ(move.visible, true);
    expectAt(move.to, 3818.3333, 7932.5);  // 8600 - 60 x 4450 / 400
}

TEST(RecalledMarker, ReadsTheDaysOfTheAgeAsTenths) {
    EXPECT_EQ(recalledMarker(Chart::PageBip, u"22,3", u"53").to, point(Chart::PageBip, 22.3, 53));
    // 138 + 9.6 x 3735 / 29
    expectAt(recalledMarker(Chart::PageBip, u"22,6", u"53").to, 1374.4138, 6642.375);
    EXPECT_EQ(recalledMarker(Chart::PageBip, u"22", u"53").to, point(Chart::PageBip, 22, 53));
}

TEST(RecalledMarker, HasNoUpperBound) {
    const MarkerMove move = recalledMarker(Chart::PageBip, u"22", u"121");
    EXPECT_EQ(move.visible, true);
    expectAt(move.to, 1297.1379, 4117.875);  // 8610 - 121 x 37.125
}

TEST(RecalledMarker, HidesUnlessBothAreNumeric) {
    const MarkerMove hidden{.visible = false, .to = {}};
    EXPECT_EQ(recalledMarker(Chart::PageFem, u"", u"38"), hidden);
    EXPECT_EQ(recalledMarker(Chart::PageFem, u"22", u""), hidden);
    EXPECT_EQ(recalledMarker(Chart::PageFem, u"22 Sem. A.", u"38"), hidden);
}

TEST(RecalledMarkers, PlotTheFirstSixOfEightExams) {
    const QStringList ages{QStringLiteral("12"), QStringLiteral("16"), QStringLiteral("20"), QStringLiteral("22,6"),
                           QStringLiteral("26"), QStringLiteral("30"), QStringLiteral("34"), QStringLiteral("38")};
    const QStringList values{QStringLiteral("20"), QStringLiteral("35"), QString(),
                             QStringLiteral("55"), QStringLiteral("66"), QStringLiteral("76"),
                             QStringLiteral("85"), QStringLiteral("90")};
    const auto moves = recalledMarkers(Chart::PageBip, ages, values);
    ASSERT_EQ(moves.size(), 6U);
    EXPECT_EQ(moves[0].to, point(Chart::PageBip, 12, 20));
    EXPECT_EQ(moves[2].visible, false);
    EXPECT_EQ(moves[3].to, point(Chart::PageBip, 22.6, 55));
    EXPECT_EQ(moves[5].to, point(Chart::PageBip, 30, 76));
}

TEST(RecalledMarkers, HideAllWithoutRows) {
    for (const MarkerMove& move : recalledMarkers(Chart::PageCa, {}, {})) {
        EXPECT_EQ(move.visible, false);
        EXPECT_FALSE(move.to.has_value());
    }
}

TEST(Cross, GoesToTheMeasureOfTheWeek) {
    const MarkerMove move = cross(Chart::Cc, u"22", u"196");
    EXPECT_EQ(move.visible, true);
    expectAt(move.to, 3481.5385, 3644.9);  // 1100 + 9 x 6880 / 26, 6090 - 196 x 4990 / 400
    EXPECT_EQ(cross(Chart::Bip, u"22,5", u"53").to, point(Chart::Bip, 23, 53));
    EXPECT_EQ(cross(Chart::Bip, u"22", u"300").visible, true);
}

TEST(Cross, HidesWithoutAMeasureAndStaysWithoutAWeek) {
    EXPECT_EQ(cross(Chart::Bip, u"22", u""), (MarkerMove{.visible = false, .to = {}}));
    EXPECT_EQ(cross(Chart::Bip, u"", u""), (MarkerMove{.visible = false, .to = {}}));
    EXPECT_EQ(cross(Chart::Bip, u"", u"53"), MarkerMove{});
}

TEST(AbscissaLeft, FollowsTheWholeWeek) {
    EXPECT_FLOAT_EQ(abscissaLeft(u"13").value(), 1945);
    EXPECT_FLOAT_EQ(abscissaLeft(u"42").value(), 10120);
    EXPECT_FLOAT_EQ(abscissaLeft(u"22").value(), 4482.0690F);  // 1945 + 9 x 8175 / 29
    EXPECT_FLOAT_EQ(abscissaLeft(u"22,4").value(), 4482.0690F);
    EXPECT_FALSE(abscissaLeft(u"").has_value());
}

}  // namespace
