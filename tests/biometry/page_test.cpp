#include <gtest/gtest.h>

#include "base/errors.h"
#include "biometry/page.h"
#include "biometry/sample_exam.h"

namespace {

using namespace biometry;

const QDate kToday(2002, 6, 14);

Page pageOf(const Exam& exam, int fetus = 0) {
    return page(exam, fetus, kToday);
}

std::string word(const Page& page, Measure measure) {
    return page.percentile(measure).toStdString();
}

TEST(FetusInView, IsALoneOneWhenTheCountIsNotAboveOne) {
    Exam exam = sampleExam();
    for (const char* count : {"1", "0", "", "deux"}) {
        exam.fetusCount = count;
        EXPECT_EQ(fetusInView(exam), 0) << count;
    }
}

TEST(FetusInView, IsTheFirstOfSeveralWhenItsPanelShows) {
    Exam exam = sampleExam();
    for (const char* count : {"2", "3", "1,5"}) {
        exam.fetusCount = count;
        EXPECT_EQ(fetusInView(exam), 1) << count;
    }
    exam.panels = {};
    EXPECT_EQ(fetusInView(exam), 0);
}

TEST(FetusInView, IsTheLastWhosePanelShowsWhateverTheCount) {
    Exam exam = sampleExam();
    exam.panels = {true, true, false};
    EXPECT_EQ(fetusInView(exam), 2);
    exam.panels = {true, true, true};
    EXPECT_EQ(fetusInView(exam), 3);
    exam.fetusCount = "";
    exam.panels = {false, true, false};
    EXPECT_EQ(fetusInView(exam), 2);
}

TEST(BiometryPage, TellsWhoseItIsAndWhen) {
    const Page page = pageOf(sampleExam());
    EXPECT_EQ(page.patient, "Madame  DUPONT  Marie");
    EXPECT_EQ(page.start, "01/01/2002");
    EXPECT_EQ(page.examDate, "21/05/2002");
    EXPECT_EQ(page.week, "22");
}

TEST(BiometryPage, NamesTheFetus) {
    const Exam exam = sampleExam();
    EXPECT_EQ(pageOf(exam, 0).fetusLine, "Foetus ");
    EXPECT_EQ(pageOf(exam, 1).fetusLine, "G. Multiple Foetus N°1");
    EXPECT_EQ(pageOf(exam, 2).fetusLine, "G. Multiple Foetus N°2");
    EXPECT_EQ(pageOf(exam, 3).fetusLine, "G. Multiple Foetus N°3");
}

TEST(BiometryPage, TakesTheMeasuresOfItsFetus) {
    const Exam exam = sampleExam();
    EXPECT_EQ(pageOf(exam, 0).measures, exam.fetuses[0]);
    EXPECT_EQ(pageOf(exam, 1).measures, exam.fetuses[0]);
    EXPECT_EQ(pageOf(exam, 2).measures, exam.fetuses[1]);
    EXPECT_EQ(pageOf(exam, 3).measures, exam.fetuses[2]);
    EXPECT_EQ(pageOf(exam, 3).fetus, 3);
}

TEST(BiometryPage, ClassifiesEachMeasureAtItsWeek) {
    const Page first = pageOf(sampleExam());
    for (const Measure measure : {Measure::Bip, Measure::Cc, Measure::Dat, Measure::Ca, Measure::Fem, Measure::Pied,
                                  Measure::Hum, Measure::Cer}) {
        EXPECT_EQ(word(first, measure), "50 ème Percentile") << static_cast<int>(measure);
    }
    const Page second = pageOf(sampleExam(), 2);
    EXPECT_EQ(word(second, Measure::Bip), "< 3 ème Percentile");
    EXPECT_EQ(word(second, Measure::Cc), "> 97 ème Percentile");
    EXPECT_EQ(word(second, Measure::Dat), "90 ème à 97 ème Percentile");
    EXPECT_EQ(word(second, Measure::Ca), "10 ème à 50 ème Percentile");
    EXPECT_EQ(word(second, Measure::Fem), "3 ème à 10 ème Percentile");
    EXPECT_EQ(word(second, Measure::Pied), "< 50 ème Percentile");
    EXPECT_EQ(word(second, Measure::Hum), "> 97,5 ème Percentile");
    EXPECT_EQ(word(second, Measure::Cer), "50 ème à 90 ème Percentile");
}

TEST(BiometryPage, KeepsTheColourAndSizeOfAnAlarm) {
    const Page second = pageOf(sampleExam(), 2);
    EXPECT_EQ(second.labels[indexOf(Measure::Bip)], (PercentileLabel{"< 3 ème Percentile", 0xFF0000, 10}));
    EXPECT_EQ(second.labels[indexOf(Measure::Cc)], (PercentileLabel{"> 97 ème Percentile", 0x0000FF, 8}));
}

TEST(BiometryPage, LeavesTheOrbitAndMissingMeasuresWithoutAWord) {
    EXPECT_EQ(word(pageOf(sampleExam()), Measure::Orb), "");
    EXPECT_EQ(word(pageOf(sampleExam(), 3), Measure::Fem), "");
}

TEST(BiometryPage, DividesFootByFemurAndOrbitByBip) {
    const Page page = pageOf(sampleExam());
    EXPECT_EQ(page.footToFemur, "1,00");  // 38 / 38
    EXPECT_EQ(page.orbitToBip, "0,45");   // 24 / 53 = 0.4528
}

TEST(BiometryPage, HasABlankForTheFootRatioAndNothingForTheOrbitRatioWhenOneIsMissing) {
    Exam exam = sampleExam();
    exam.fetuses[0][indexOf(Measure::Pied)].clear();
    exam.fetuses[0][indexOf(Measure::Orb)].clear();
    EXPECT_EQ(pageOf(exam).footToFemur, " ");
    EXPECT_EQ(pageOf(exam).orbitToBip, "");
    exam = sampleExam();
    exam.fetuses[0][indexOf(Measure::Fem)].clear();
    exam.fetuses[0][indexOf(Measure::Bip)].clear();
    EXPECT_EQ(pageOf(exam).footToFemur, " ");
    EXPECT_EQ(pageOf(exam).orbitToBip, "");
}

TEST(BiometryPage, LeavesTheRatioOfAMeasureOfZeroBlank) {
    Exam exam = sampleExam();
    exam.fetuses[0][indexOf(Measure::Fem)] = "0";
    exam.fetuses[0][indexOf(Measure::Bip)] = "0";
    EXPECT_EQ(pageOf(exam).footToFemur, " ");
    EXPECT_EQ(pageOf(exam).orbitToBip, "");
}

TEST(BiometryPage, EstimatesTheWeight) {
    // (196² x 0.053 x 38 + 173² x 0.32 x 38) / 1000 = 441.3; the medians of the week are the same.
    EXPECT_EQ(pageOf(sampleExam()).weight, "441 g");
    EXPECT_EQ(pageOf(sampleExam()).theoreticalWeight, "441 g");
    // (217² x 0.053 x 33 + 160² x 0.32 x 33) / 1000 = 82.36 + 270.34
    EXPECT_EQ(pageOf(sampleExam(), 2).weight, "353 g");
}

TEST(BiometryPage, HasNoWeightWithoutHeadAbdomenAndFemur) {
    for (const Measure missing : {Measure::Cc, Measure::Ca, Measure::Fem}) {
        Exam exam = sampleExam();
        exam.fetuses[0][indexOf(missing)].clear();
        EXPECT_EQ(pageOf(exam).weight, "") << static_cast<int>(missing);
    }
}

TEST(BiometryPage, WithoutAStartHasNoWeekAndNoWordButTheWeight) {
    Exam exam = sampleExam();
    exam.start.clear();
    const Page page = pageOf(exam);
    EXPECT_EQ(page.week, "");
    EXPECT_EQ(word(page, Measure::Bip), "");
    EXPECT_EQ(page.theoreticalWeight, "");
    EXPECT_EQ(page.weight, "441 g");
}

TEST(BiometryPage, RoundsThreeDaysDownAndFourUp) {
    Exam exam = sampleExam();
    exam.examDate = "24/05/2002";
    EXPECT_EQ(pageOf(exam).week, "22");
    exam.examDate = "25/05/2002";
    EXPECT_EQ(pageOf(exam).week, "23");
}

TEST(BiometryPage, CountsToTodayWhereTheExamHasNoDate) {
    Exam exam = sampleExam();
    // 164 days to the 14th of June: 23 weeks and 3 days, and two weeks.
    for (const char* date : {"", "au printemps"}) {
        exam.examDate = date;
        EXPECT_EQ(pageOf(exam).week, "25") << date;
    }
}

TEST(BiometryPage, HasNoTheoreticalWeightBefore16WeeksAndAfter41) {
    Exam exam = sampleExam();
    exam.examDate = "02/04/2002";  // 91 days: week 15
    EXPECT_EQ(pageOf(exam).theoreticalWeight, "");
    exam.examDate = "09/04/2002";  // week 16
    EXPECT_EQ(pageOf(exam).theoreticalWeight, "88 g");
    exam.examDate = "01/10/2002";  // 273 days: week 41
    EXPECT_EQ(pageOf(exam).theoreticalWeight, "3342 g");
    exam.examDate = "08/10/2002";
    EXPECT_EQ(pageOf(exam).theoreticalWeight, "");
}

TEST(BiometryPage, FailsForAMeasureAndForDaysBeyond16Bits) {
    Exam exam = sampleExam();
    exam.fetuses[0][indexOf(Measure::Bip)] = "40000";
    EXPECT_THROW(pageOf(exam), base::RuntimeError);
    exam = sampleExam();
    exam.start = "01/01/1902";
    EXPECT_THROW(pageOf(exam), base::RuntimeError);
}

}  // namespace
