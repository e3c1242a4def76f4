#include <gtest/gtest.h>

#include "base/errors.h"
#include "biometry/percentiles.h"

namespace {

using namespace biometry;

PercentileLabel calm(const QString& text) {
    return {text, 0x0000FF, 8};
}

PercentileLabel alarm(const QString& text) {
    return {text, 0xFF0000, 10};
}

const QString kLow = QStringLiteral("< 3 ème Percentile");
const QString kMedian = QStringLiteral("50 ème Percentile");
const QString kBefore = QStringLiteral("celui d'avant");

void PrintLabel(const PercentileLabel& label, std::ostream& out) {
    out << label.text.toStdString() << " 0x" << std::hex << label.color << std::dec << " " << label.size;
}

std::string seen(const PercentileLabel& label) {
    std::ostringstream out;
    PrintLabel(label, out);
    return out.str();
}

PercentileLabel classified(Measure measure, QStringView week, QStringView value) {
    return classify(measure, week, value, alarm(kBefore));
}

std::string word(Measure measure, QStringView week, QStringView value) {
    return classified(measure, week, value).text.toStdString();
}

#define EXPECT_LABEL(label, expected) EXPECT_EQ(seen(label), seen(expected))

TEST(Classify, TellsTheClassInBlueAndSize8) {
    EXPECT_LABEL(classified(Measure::Bip, u"22", u"53"), calm(kMedian));
    EXPECT_LABEL(classified(Measure::Bip, u"22", u"60"), calm(QStringLiteral("> 97 ème Percentile")));
}

TEST(Classify, TellsTheLowestClassInRedAndSize10) {
    EXPECT_LABEL(classified(Measure::Bip, u"22", u"47"), alarm(kLow));
}

TEST(Classify, NamesTheSevenClassesOfThe3To97Tables) {
    EXPECT_EQ(word(Measure::Cc, u"25", u"206"), "< 3 ème Percentile");
    EXPECT_EQ(word(Measure::Cc, u"25", u"207"), "3 ème à 10 ème Percentile");
    EXPECT_EQ(word(Measure::Cc, u"25", u"214"), "10 ème à 50 ème Percentile");
    EXPECT_EQ(word(Measure::Cc, u"25", u"232"), "50 ème Percentile");
    EXPECT_EQ(word(Measure::Cc, u"25", u"233"), "50 ème à 90 ème Percentile");
    EXPECT_EQ(word(Measure::Cc, u"25", u"250"), "90 ème à 97 ème Percentile");
    EXPECT_EQ(word(Measure::Cc, u"25", u"251"), "> 97 ème Percentile");
}

TEST(Classify, NamesTheSevenClassesOfTheHumerus) {
    EXPECT_LABEL(classified(Measure::Hum, u"30", u"43"), alarm(QStringLiteral("< 2,5 ème Percentile")));
    EXPECT_EQ(word(Measure::Hum, u"30", u"44"), "2,5 ème à 10 ème Percentile");
    EXPECT_EQ(word(Measure::Hum, u"30", u"48"), "10 ème à 50 ème Percentile");
    EXPECT_EQ(word(Measure::Hum, u"30", u"51"), "50 ème Percentile");
    EXPECT_EQ(word(Measure::Hum, u"30", u"52"), "50 ème à 90 ème Percentile");
    EXPECT_EQ(word(Measure::Hum, u"30", u"58"), "90 ème à 97,5 ème Percentile");
    EXPECT_LABEL(classified(Measure::Hum, u"30", u"59"), alarm(QStringLiteral("> 97,5 ème Percentile")));
}

TEST(Classify, NamesTheFiveClassesOfTheFootAndNeverAlarmsForALongOne) {
    EXPECT_LABEL(classified(Measure::Pied, u"33", u"59"), alarm(QStringLiteral("< 5 ème Percentile")));
    EXPECT_LABEL(classified(Measure::Pied, u"33", u"60"), calm(QStringLiteral("5 ème à 50 ème Percentile")));
    EXPECT_LABEL(classified(Measure::Pied, u"33", u"66"), calm(kMedian));
    EXPECT_LABEL(classified(Measure::Pied, u"33", u"74"), calm(QStringLiteral("50 ème à 95 ème Percentile")));
    EXPECT_LABEL(classified(Measure::Pied, u"33", u"80"), calm(QStringLiteral("> 95 ème ème Percentile")));
}

TEST(Classify, NamesTheThreeClassesOfTheFootAroundItsMedian) {
    EXPECT_LABEL(classified(Measure::Pied, u"23", u"40"), calm(QStringLiteral("< 50 ème Percentile")));
    EXPECT_LABEL(classified(Measure::Pied, u"23", u"41"), calm(kMedian));
    EXPECT_LABEL(classified(Measure::Pied, u"40", u"81"), calm(QStringLiteral("> 50 ème Percentile")));
}

TEST(Classify, ReadsTheLeadingNumberWithThePointAndRoundsItToTheEvenMillimetre) {
    // Week 14: 28 is the median class, 29 and 30 the next.
    EXPECT_EQ(word(Measure::Bip, u"14", u"28,7"), "50 ème Percentile");
    EXPECT_EQ(word(Measure::Bip, u"14", u"28.7"), "50 ème à 90 ème Percentile");
    EXPECT_EQ(word(Measure::Bip, u"14", u"28.5"), "50 ème Percentile");
    EXPECT_EQ(word(Measure::Bip, u"14", u"29.5"), "50 ème à 90 ème Percentile");
    EXPECT_EQ(word(Measure::Bip, u"14", u"28 mm"), "50 ème Percentile");
}

TEST(Classify, ReadsATextThatIsNoNumberAsZero) {
    EXPECT_LABEL(classified(Measure::Bip, u"22", u"non vu"), alarm(kLow));
    EXPECT_LABEL(classified(Measure::Bip, u"22", u" 53"), alarm(kLow));
    EXPECT_LABEL(classified(Measure::Bip, u"22", u"-53"), alarm(kLow));
}

TEST(Classify, LeavesTheTextOfAValueWithoutAClass) {
    EXPECT_LABEL(classified(Measure::Bip, u"16", u"29"), calm(kBefore));
    EXPECT_LABEL(classified(Measure::Bip, u"29", u"67"), calm(kBefore));
    EXPECT_LABEL(classified(Measure::Cer, u"19", u"16"), calm(kBefore));
    EXPECT_LABEL(classified(Measure::Ca, u"21", u"177"), calm(kBefore));
    EXPECT_LABEL(classified(Measure::Ca, u"36", u"333"), calm(kBefore));
    EXPECT_LABEL(classified(Measure::Pied, u"13", u"10"), calm(kBefore));
}

TEST(Classify, OfABip29TypedAtWeek16KeepsTheRedLabelOfThe2) {
    PercentileLabel label = classify(Measure::Bip, u"16", u"2", {});
    EXPECT_LABEL(label, alarm(kLow));
    label = classify(Measure::Bip, u"16", u"29", label);
    EXPECT_LABEL(label, alarm(kLow));
}

TEST(Classify, OfACa80AtWeek15LeavesTheLabelBut79And81DoNot) {
    EXPECT_LABEL(classified(Measure::Ca, u"15", u"80"), calm(kBefore));
    EXPECT_LABEL(classified(Measure::Ca, u"15", u"79"), alarm(kLow));
    EXPECT_LABEL(classified(Measure::Ca, u"15", u"81"), calm(QStringLiteral("3 ème à 10 ème Percentile")));
}

TEST(Classify, OfAFem40AtWeek19ShowsTheLabelOfTheValueBefore) {
    PercentileLabel label = classify(Measure::Fem, u"19", u"34", {});
    EXPECT_LABEL(label, calm(QStringLiteral("90 ème à 97 ème Percentile")));
    label = classify(Measure::Fem, u"19", u"40", label);
    EXPECT_LABEL(label, calm(QStringLiteral("90 ème à 97 ème Percentile")));
    label = classify(Measure::Fem, u"19", u"35", alarm(kLow));
    EXPECT_LABEL(label, alarm(kLow));
}

TEST(Classify, HasNoMedianClassForTheFootAtWeek15) {
    EXPECT_EQ(word(Measure::Pied, u"15", u"16"), "< 50 ème Percentile");
    EXPECT_EQ(word(Measure::Pied, u"15", u"17"), "> 50 ème Percentile");
}

TEST(Classify, BlanksEachLabelBeforeTheFirstWeekAndStaysBlue) {
    for (const Measure measure : kClassified) {
        EXPECT_LABEL(classify(measure, u"12", u"1", alarm(kLow)), calm(QString()));
    }
}

TEST(Classify, StartsTheCerebellumAtWeek15) {
    EXPECT_EQ(word(Measure::Cer, u"14", u"13"), "");
    EXPECT_EQ(word(Measure::Cer, u"15", u"13"), "50 ème Percentile");
}

TEST(Classify, BlanksTheCircumferencesFromWeek13ToTheirFirstRow) {
    EXPECT_EQ(word(Measure::Ca, u"13", u"80"), "");
    EXPECT_EQ(word(Measure::Ca, u"14", u"80"), "");
    EXPECT_EQ(word(Measure::Ca, u"15", u"94"), "50 ème Percentile");
    EXPECT_EQ(word(Measure::Cc, u"13", u"100"), "");
    EXPECT_EQ(word(Measure::Cc, u"14", u"100"), "");
    EXPECT_EQ(word(Measure::Cc, u"15", u"100"), "");
    EXPECT_EQ(word(Measure::Cc, u"16", u"121"), "50 ème Percentile");
}

TEST(Classify, BlanksOrLeavesBehindTheLastRowByMeasure) {
    EXPECT_EQ(word(Measure::Ca, u"41", u"340"), "");
    EXPECT_EQ(word(Measure::Cc, u"41", u"340"), "");
    EXPECT_EQ(word(Measure::Pied, u"41", u"80"), "");
    EXPECT_EQ(word(Measure::Cer, u"37", u"47"), "50 ème Percentile");
    EXPECT_EQ(word(Measure::Cer, u"38", u"47"), "");
    EXPECT_EQ(word(Measure::Hum, u"41", u"65"), "50 ème Percentile");
    EXPECT_EQ(word(Measure::Hum, u"42", u"65"), "");
    for (const Measure measure : {Measure::Bip, Measure::Dat, Measure::Fem}) {
        EXPECT_LABEL(classified(measure, u"42", u"90"), calm(kBefore));
        EXPECT_LABEL(classify(measure, u"42", u"90", calm(kLow)), alarm(kLow));
    }
    EXPECT_EQ(word(Measure::Bip, u"41", u"93"), "50 ème Percentile");
    EXPECT_EQ(word(Measure::Dat, u"41", u"105"), "50 ème Percentile");
    EXPECT_EQ(word(Measure::Fem, u"41", u"75"), "50 ème Percentile");
}

TEST(Classify, InterpolatesNothingBetweenTwoWeeks) {
    EXPECT_LABEL(classified(Measure::Bip, u"22,5", u"53"), calm(kBefore));
    EXPECT_LABEL(classified(Measure::Ca, u"40,5", u"340"), calm(kBefore));
    EXPECT_EQ(word(Measure::Hum, u"41,5", u"65"), "");
    EXPECT_EQ(word(Measure::Cer, u"37,5", u"47"), "");
}

TEST(Classify, WithoutAWeekTurnsTheLabelBlueAndKeepsItsText) {
    EXPECT_LABEL(classify(Measure::Bip, u"", u"10", alarm(kLow)), calm(kLow));
    EXPECT_LABEL(classify(Measure::Bip, u"", u"", alarm(kLow)), calm(kLow));
}

TEST(Classify, BlanksTheLabelOfAnEmptyMeasureWhateverTheWeek) {
    for (const Measure measure : kClassified) {
        for (const QStringView week : {u"12", u"13", u"22", u"41", u"42", u"60"}) {
            EXPECT_LABEL(classify(measure, week, u"", alarm(kLow)), calm(QString()));
        }
    }
}

TEST(Classify, AlarmsForTheWordsOfEachMeasureAlone) {
    const QString humLow = QStringLiteral("< 2,5 ème Percentile");
    const QString humHigh = QStringLiteral("> 97,5 ème Percentile");
    const QString footLow = QStringLiteral("< 5 ème Percentile");
    const QString footHigh = QStringLiteral("> 95 ème Percentile");
    const auto kept = [](Measure measure, const QString& text) { return classify(measure, u"22,5", u"1", calm(text)); };
    EXPECT_LABEL(kept(Measure::Hum, humLow), alarm(humLow));
    EXPECT_LABEL(kept(Measure::Hum, humHigh), alarm(humHigh));
    EXPECT_LABEL(kept(Measure::Hum, kLow), alarm(kLow));
    EXPECT_LABEL(kept(Measure::Hum, footLow), calm(footLow));
    EXPECT_LABEL(kept(Measure::Pied, footLow), alarm(footLow));
    EXPECT_LABEL(kept(Measure::Pied, footHigh), alarm(footHigh));
    EXPECT_LABEL(kept(Measure::Pied, humLow), calm(humLow));
    EXPECT_LABEL(kept(Measure::Bip, footLow), calm(footLow));
}

TEST(Classify, FailsBeyondWhatTheFieldsCanHold) {
    EXPECT_THROW(classify(Measure::Bip, u"22", u"32768", {}), base::RuntimeError);
    EXPECT_THROW(classify(Measure::Bip, u"SA", u"53", {}), base::RuntimeError);
    EXPECT_LABEL(classified(Measure::Bip, u"22", u"32767"), calm(QStringLiteral("> 97 ème Percentile")));
}

TEST(Classify, OfTheOrbitOnlyBlanksBelowWeek13) {
    EXPECT_LABEL(classify(Measure::Orb, u"12", u"20", alarm(kBefore)), alarm(QString()));
    EXPECT_LABEL(classify(Measure::Orb, u"13", u"20", alarm(kBefore)), alarm(kBefore));
    EXPECT_LABEL(classify(Measure::Orb, u"22", u"", alarm(kBefore)), alarm(kBefore));
    EXPECT_LABEL(classify(Measure::Orb, u"", u"20", alarm(kBefore)), alarm(kBefore));
}

TEST(ClearsRatios, HoldsForEveryMeasureButTheHumerus) {
    for (const Measure measure : kClassified) {
        EXPECT_EQ(clearsRatios(measure), measure != Measure::Hum);
    }
    EXPECT_TRUE(clearsRatios(Measure::Orb));
}

}  // namespace
