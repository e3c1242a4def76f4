#include <gtest/gtest.h>

#include "base/dates.h"
#include "biometry/body_mass.h"
#include "biometry/dating.h"
#include "biometry/texts.h"

namespace {

using namespace biometry;

const QDate kToday(2002, 4, 5);

std::string start(QStringView ddr, QDate today = kToday) {
    return told(theoreticalStart(ddr, today));
}

std::string age(QStringView from, QStringView exam, QDate today = kToday) {
    return told(ageText(from, exam, today));
}

std::string rounded(QStringView dgus, QStringView exam) {
    return told(roundedAge(dgus, exam, kToday));
}

std::string week(QStringView from, QStringView day) {
    return told(wholeWeek(from, day, kToday));
}

std::string fromLcc(QStringView lcc, QDate today = kToday) {
    return told(startFromCrownRump(lcc, today));
}

// The start of a pregnancy of so many days at 05/04/2002.
QString before(int days) {
    return base::shortDate(kToday.addDays(-days));
}

constexpr QStringView kExam = u"05/04/2002";

TEST(TheoreticalStart, LiesTwoWeeksBehindTheLastPeriod) {
    EXPECT_EQ(start(u"01/03/2002"), "15/03/2002");
    EXPECT_EQ(start(u"20/12/2001"), "03/01/2002");
    EXPECT_EQ(start(u"15/02/2000"), "29/02/2000");
    EXPECT_EQ(start(u"1er mars 02"), "15/03/2002");
}

TEST(TheoreticalStart, LeavesTheFieldWhileTheTextIsNoDate) {
    EXPECT_EQ(start(u""), "[leave]");
    EXPECT_EQ(start(u"vers mars"), "[leave]");
    EXPECT_EQ(start(u"31/02/2002"), "[leave]");
}

TEST(TheoreticalStart, MovesWithEachShorterFormThatReadsAsADate) {
    EXPECT_EQ(start(u"01/0"), "[leave]");
    EXPECT_EQ(start(u"01/03"), "15/03/2002");
    EXPECT_EQ(start(u"01/03/"), "[leave]");
    EXPECT_EQ(start(u"01/03/2"), "[leave]");
    EXPECT_EQ(start(u"01/03/20"), "15/03/2020");
    EXPECT_EQ(start(u"01/03/200"), "[leave]");
    EXPECT_EQ(start(u"01/03/2002"), "15/03/2002");
}

TEST(TheoreticalStart, FailsWhenItLeavesTheCalendar) {
    EXPECT_EQ(start(u"17/12/9999"), "31/12/9999");
    EXPECT_EQ(start(u"18/12/9999"), "[error 5]");
}

TEST(AgeText, OfALastPeriodOn1MarchIs5WeeksOn5April) {
    const Outcome dg = theoreticalStart(u"01/03/2002", kToday);
    EXPECT_EQ(age(dg.text(), kExam), "5");
    EXPECT_EQ(age(dg.text(), u"08/04/2002"), "5,3");
}

TEST(AgeText, CarriesTheDaysBehindTheComma) {
    EXPECT_EQ(age(u"01/03/2002", kExam), "7");
    EXPECT_EQ(age(u"01/03/2002", u"08/04/2002"), "7,3");
    EXPECT_EQ(age(before(70), kExam), "12");
    EXPECT_EQ(age(before(73), kExam), "12,3");
    EXPECT_EQ(age(before(76), kExam), "12,6");
}

TEST(AgeText, IsLowOrNegativeForAStartAfterTheExam) {
    EXPECT_EQ(age(before(0), kExam), "2");
    EXPECT_EQ(age(before(-1), kExam), "1,6");
    EXPECT_EQ(age(before(-7), kExam), "1");
    EXPECT_EQ(age(before(-14), kExam), "0");
    EXPECT_EQ(age(before(-15), kExam), "-0,4");  // w is -3, r is 6
    EXPECT_EQ(age(before(-20), kExam), "-0,9");  // w is -3, r is 1
    EXPECT_EQ(age(before(-21), kExam), "-1");
}

TEST(AgeText, IsEmptyForAStartThatIsNoDateWhateverTheExam) {
    EXPECT_EQ(age(u"", kExam), "");
    EXPECT_EQ(age(u"01/03/200", kExam), "");
    EXPECT_EQ(age(u"", u"hier"), "");
}

TEST(AgeText, FailsForAnExamDateThatIsNone) {
    EXPECT_EQ(age(u"01/03/2002", u""), "[error 13]");
    EXPECT_EQ(age(u"01/03/2002", u"hier"), "[error 13]");
}

// 32767 days are 4681 weeks, -32768 days are -4682 weeks and 6 days.
TEST(AgeText, FailsWhenTheDaysLeave16Bits) {
    EXPECT_EQ(age(before(32767), kExam), "4683");
    EXPECT_EQ(age(before(32768), kExam), "[error 6]");
    EXPECT_EQ(age(before(-32768), kExam), "-4679,4");
    EXPECT_EQ(age(before(-32769), kExam), "[error 6]");
}

TEST(AgeText, TakesTheYearOfADateWithoutOneFromToday) {
    EXPECT_EQ(age(u"01/03", u"05/04", QDate(2010, 1, 1)), "7");
}

TEST(RoundedAge, SendsFiveDaysToTheEvenWeek) {
    EXPECT_EQ(rounded(before(8 * 7 + 5), kExam), "10");
    EXPECT_EQ(rounded(before(9 * 7 + 5), kExam), "12");
}

TEST(RoundedAge, StaysUpToFourDaysAndGoesOnAtSix) {
    EXPECT_EQ(rounded(before(70), kExam), "12");
    EXPECT_EQ(rounded(before(74), kExam), "12");
    EXPECT_EQ(rounded(before(76), kExam), "13");
    EXPECT_EQ(rounded(before(-15), kExam), "0");
    EXPECT_EQ(rounded(before(-20), kExam), "-1");
}

TEST(RoundedAge, IsEmptyForAStartThatIsNoDate) {
    EXPECT_EQ(rounded(u"", kExam), "");
    EXPECT_EQ(rounded(u"début mars", kExam), "");
}

TEST(RoundedAge, TellsItsFailuresAndThrowsThemOnDemand) {
    EXPECT_EQ(rounded(u"01/03/2002", u""), "[error 13]");
    EXPECT_EQ(rounded(before(32768), kExam), "[error 6]");
    EXPECT_THROW(roundedAge(u"01/03/2002", u"", kToday).orThrow(), base::RuntimeError);
    EXPECT_EQ(roundedAge(before(70), kExam, kToday).orThrow().text().toStdString(), "12");
}

TEST(WholeWeek, RoundsThreeDaysDownAndFourUp) {
    EXPECT_EQ(week(u"15/03/2002", u"05/04/2002"), "5");
    EXPECT_EQ(week(u"15/03/2002", u"08/04/2002"), "5");
    EXPECT_EQ(week(u"15/03/2002", u"09/04/2002"), "6");
    EXPECT_EQ(week(u"15/03/2002", u"11/04/2002"), "6");
    EXPECT_EQ(week(u"15/03/2002", u"12/04/2002"), "6");
}

TEST(WholeWeek, OfADayBeforeTheStartFloorsTheWeeks) {
    EXPECT_EQ(week(before(-1), kExam), "2");  // w is -1, r is 6
    EXPECT_EQ(week(before(-4), kExam), "1");  // w is -1, r is 3
}

TEST(WholeWeek, LeavesTheFieldUnlessBothAreDates) {
    EXPECT_EQ(week(u"", u"05/04/2002"), "[leave]");
    EXPECT_EQ(week(u"15/03/2002", u""), "[leave]");
    EXPECT_EQ(week(u"15/03/200", u"05/04/2002"), "[leave]");
}

TEST(WholeWeek, FailsWhenTheDaysLeave16Bits) {
    EXPECT_EQ(week(before(32767), kExam), "4683");
    EXPECT_EQ(week(before(32768), kExam), "[error 6]");
}

// Today less the days of the table, plus 14 days.
TEST(StartFromCrownRump, CountsBackFromToday) {
    EXPECT_EQ(fromLcc(u"85"), "07/01/2002");  // 102 days: 88 days back
    EXPECT_EQ(fromLcc(u"1"), "18/03/2002");   // 32 days: 18 days back
    EXPECT_EQ(fromLcc(u"45"), "30/01/2002");  // 79 days: 65 days back
    EXPECT_EQ(fromLcc(u"045"), "30/01/2002");
    EXPECT_EQ(fromLcc(u"45", QDate(2002, 4, 6)), "31/01/2002");  // whenever the exam was
}

TEST(StartFromCrownRump, CountsNoDaysForALengthWithoutARow) {
    EXPECT_EQ(fromLcc(u"74"), "19/04/2002");
    EXPECT_EQ(fromLcc(u"0"), "19/04/2002");
    EXPECT_EQ(fromLcc(u"-3"), "19/04/2002");
}

TEST(StartFromCrownRump, RefusesALengthAbove85AndOneBeyond16Bits) {
    const std::string refusal =
        "[refuse] Valeur de LCC trop élevée, Calculez l 'âge gestationnel à l'aide du Fémur et du Bip";
    EXPECT_EQ(fromLcc(u"86"), refusal);
    EXPECT_EQ(fromLcc(u"32767"), refusal);
    EXPECT_EQ(fromLcc(u"32768"), refusal);
    EXPECT_EQ(fromLcc(u"99999999999999999999"), refusal);
    EXPECT_EQ(fromLcc(u"-32769"), refusal);
}

TEST(StartFromCrownRump, RoundsALengthThatIsNotWholeAndFailsForNone) {
    EXPECT_EQ(fromLcc(u"85,4"), "07/01/2002");
    EXPECT_EQ(fromLcc(u"abc"), "[error 13]");
}

TEST(StartFromCrownRump, DoesNothingWithoutALength) {
    EXPECT_EQ(fromLcc(u""), "[leave]");
}

TEST(Messages, AreThoseOfThePractice) {
    EXPECT_EQ(kDateFormatMessage.toUtf8().toStdString(), "Veuillez saisir les dates selon le format JJ/MM/AA");
}

TEST(BodyMass, IsRoundedToOneDecimal) {
    EXPECT_EQ(told(bodyMass(u"65", u"165")), "23,9");  // 65 / 2.7225 is 23.875
    EXPECT_EQ(told(bodyMass(u"60", u"170")), "20,8");  // 60 / 2.89 is 20.76
    EXPECT_EQ(told(bodyMass(u"50", u"100")), "50");
    EXPECT_EQ(told(bodyMass(u"62,5", u"168,5")), "22");  // 62.5 / 2.839225 is 22.01
    EXPECT_EQ(told(bodyMass(u"62.5", u"168.5")), "22");
}

TEST(BodyMass, SendsTiesToTheEvenTenth) {
    EXPECT_EQ(told(bodyMass(u"48", u"160")), "18,8");  // 48 / 2.56 is 18.75
    EXPECT_EQ(told(bodyMass(u"80", u"160")), "31,2");  // 80 / 2.56 is 31.25
    EXPECT_EQ(told(bodyMass(u"61,25", u"100")), "61,2");
    EXPECT_EQ(told(bodyMass(u"61,35", u"100")), "61,4");
}

TEST(BodyMass, IsEmptyUnlessBothAreNumeric) {
    EXPECT_EQ(told(bodyMass(u"", u"165")), "");
    EXPECT_EQ(told(bodyMass(u"65", u"")), "");
    EXPECT_EQ(told(bodyMass(u"65 kg", u"165")), "");
    EXPECT_EQ(told(bodyMass(u"65", u"1m65")), "");
}

TEST(BodyMass, FailsForNoHeight) {
    EXPECT_EQ(told(bodyMass(u"65", u"0")), "[error 11]");
}

}  // namespace
