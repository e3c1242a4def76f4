#include <gtest/gtest.h>

#include <QMap>
#include <algorithm>

#include "base/dates.h"
#include "biometry/charts.h"
#include "biometry/dating.h"
#include "biometry/medians.h"
#include "biometry/percentiles.h"
#include "biometry/reference_copy.h"
#include "biometry/texts.h"

namespace {

using namespace biometry;

// Well beyond the last bounds: the last row is of week 41, the last class begins at 381 mm.
constexpr int kLastWeek = 60;
constexpr int kLastMillimetre = 600;

struct Copied {
    Measure measure;
    const char* name;
    int labelledWeeks;
};

class Table : public testing::TestWithParam<Copied> {};

std::vector<reference_copy::WeekLine> linesOf(const Copied& copied) {
    return reference_copy::measure(QString::fromLatin1(copied.name) + QStringLiteral(".txt"));
}

const QString kBefore = QStringLiteral("celui d'avant");

const reference_copy::WeekLine& lineOf(const std::vector<reference_copy::WeekLine>& lines, int week) {
    return *std::ranges::find_if(lines, [week](const auto& line) { return line.weeks.holds(week); });
}

QString expectedText(const reference_copy::WeekLine& line, int millimetres) {
    const auto& piece =
        *std::ranges::find_if(line.pieces, [millimetres](const auto& p) { return p.values.holds(millimetres); });
    if (piece.isLabel) {
        return piece.result;
    }
    return piece.result == u"none" ? kBefore : QString();
}

bool isAlarm(const QString& text) {
    static const QStringList alarms{QStringLiteral("< 3 ème Percentile"), QStringLiteral("< 2,5 ème Percentile"),
                                    QStringLiteral("> 97,5 ème Percentile"), QStringLiteral("< 5 ème Percentile")};
    return alarms.contains(text);
}

// How many of the values that were asked differ from the copy.
int differences(Measure measure, const std::vector<reference_copy::WeekLine>& lines, int week, int millimetres) {
    const QString text = expectedText(lineOf(lines, week), millimetres);
    const PercentileLabel expected{text, isAlarm(text) ? 0xFF0000U : 0x0000FFU, isAlarm(text) ? 10 : 8};
    const PercentileLabel label =
        classify(measure, QString::number(week), QString::number(millimetres), PercentileLabel{kBefore, 0xFF0000, 10});
    EXPECT_EQ(label.text.toStdString(), text.toStdString()) << "week " << week << ", " << millimetres << " mm";
    return label == expected ? 0 : 1;
}

TEST_P(Table, SaysTheSameAsTheCopyForEachWeekAndMillimetre) {
    const Copied& copied = GetParam();
    const auto lines = linesOf(copied);
    int differing = 0;
    for (int week = 0; week <= kLastWeek; ++week) {
        for (int millimetres = 0; millimetres <= kLastMillimetre; ++millimetres) {
            differing += differences(copied.measure, lines, week, millimetres);
        }
        differing += differences(copied.measure, lines, week, 32767);
    }
    EXPECT_EQ(differing, 0);
}

TEST_P(Table, HasAsManyWeeksWithClassesInTheCopy) {
    const Copied& copied = GetParam();
    const auto lines = linesOf(copied);
    EXPECT_EQ(std::ranges::count_if(lines, [](const auto& line) { return line.pieces.front().isLabel; }),
              copied.labelledWeeks);
}

INSTANTIATE_TEST_SUITE_P(OfEachMeasure, Table,
                         testing::Values(Copied{Measure::Bip, "bip", 29}, Copied{Measure::Cc, "cc", 25},
                                         Copied{Measure::Dat, "dat", 29}, Copied{Measure::Ca, "ca", 26},
                                         Copied{Measure::Fem, "fem", 29}, Copied{Measure::Pied, "pied", 28},
                                         Copied{Measure::Hum, "hum", 29}, Copied{Measure::Cer, "cer", 23}),
                         [](const auto& tested) { return std::string(tested.param.name); });

std::string expectedStart(const reference_copy::CrownRumpLine& line, QDate today) {
    if (line.result == u"refused") {
        return "[refuse] " + kCrownRumpTooLongMessage.toUtf8().toStdString();
    }
    return base::shortDate(today.addDays(14 - (line.result == u"none" ? 0 : line.result.toInt()))).toStdString();
}

TEST(CrownRumpTable, DatesEachMillimetreAsTheCopy) {
    const QDate today(2002, 4, 5);
    const auto lines = reference_copy::crownRump();
    ASSERT_EQ(lines.size(), 87U);
    for (int length = 0; length <= 200; ++length) {
        const auto line = std::ranges::find_if(lines, [=](const auto& l) { return l.millimetres.holds(length); });
        ASSERT_NE(line, lines.end());
        EXPECT_EQ(told(startFromCrownRump(QString::number(length), today)), expectedStart(*line, today)) << length;
    }
}

TEST(MedianTable, HasTheMediansOfTheCopyInEachWeek) {
    const auto lines = reference_copy::medians();
    ASSERT_EQ(lines.size(), 31U);
    for (int week = 0; week <= kLastWeek; ++week) {
        const auto line = std::ranges::find_if(lines, [=](const auto& l) { return l.weeks.holds(week); });
        ASSERT_NE(line, lines.end());
        const Medians boxes = medians(week).value();
        ASSERT_EQ(line->medians.size(), 8);
        for (std::size_t i = 0; i < boxes.size(); ++i) {
            const QString& copied = line->medians.at(static_cast<qsizetype>(i));
            EXPECT_EQ(boxes[i].toStdString(), copied == u"none" ? "" : copied.toStdString()) << week << " " << i;
        }
    }
}

QMap<QString, int> constants(const ChartGeometry& chart) {
    return {{QStringLiteral("left origin"), chart.left},     {QStringLiteral("bottom origin"), chart.bottom},
            {QStringLiteral("plotted width"), chart.width},  {QStringLiteral("plotted height"), chart.height},
            {QStringLiteral("first week"), chart.firstWeek}, {QStringLiteral("week span"), chart.weekSpan},
            {QStringLiteral("value span"), chart.valueSpan}};
}

// Without the pieces about the still picture beside the chart.
QMap<QString, int> constants(const QStringList& pieces) {
    QMap<QString, int> read;
    for (const QString& piece : pieces) {
        if (!piece.startsWith(u"echo ")) {
            read.insert(piece.section(u' ', 0, -2), piece.section(u' ', -1).toInt());
        }
    }
    return read;
}

TEST(ChartGeometries, AreThoseOfTheCopy) {
    const QMap<QString, Chart> charts{
        {QStringLiteral("page Bip"), Chart::PageBip}, {QStringLiteral("page Ca"), Chart::PageCa},
        {QStringLiteral("page Fem"), Chart::PageFem}, {QStringLiteral("large Bip"), Chart::Bip},
        {QStringLiteral("large Cc"), Chart::Cc},      {QStringLiteral("large Dat"), Chart::Dat},
        {QStringLiteral("large Ca"), Chart::Ca},      {QStringLiteral("large Fem"), Chart::Fem},
        {QStringLiteral("large Pied"), Chart::Pied},  {QStringLiteral("large Cer"), Chart::Cer}};
    std::size_t compared = 0;
    for (const auto& [name, pieces] : reference_copy::charts()) {
        if (name != u"axis week") {
            ASSERT_TRUE(charts.contains(name)) << name.toStdString();
            EXPECT_EQ(constants(geometry(charts[name])), constants(pieces)) << name.toStdString();
            ++compared;
        }
    }
    EXPECT_EQ(compared, kChartCount);
}

}  // namespace
