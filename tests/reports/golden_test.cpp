#include <gtest/gtest.h>

#include <QFile>

#include "readable.h"
#include "sample_exams.h"

namespace reports {
namespace {

constexpr auto kFull = Detail::Full;
constexpr auto kMinimum = Detail::Minimum;

QString goldenPath(const QString& name) {
    return QString(TEST_DATA_DIR "/golden/%1.txt").arg(name);
}

QString read(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

// With VERANOX_REWRITE_GOLDEN set the file is written instead of compared (script/golden).
void compareWithGolden(const QString& name, const Report& report) {
    if (qEnvironmentVariableIsSet("VERANOX_REWRITE_GOLDEN")) {
        QFile file(goldenPath(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(readable(report).toUtf8());
        GTEST_SKIP() << "rewritten: " << qPrintable(name);
    }
    const QString expected = read(goldenPath(name));
    ASSERT_FALSE(expected.isEmpty()) << "no such file: " << qPrintable(goldenPath(name));
    EXPECT_EQ(readable(report).toStdString(), expected.toStdString()) << qPrintable(name);
}

TEST(GoldenReport, OfOneEmbryoDetailedWithIntroduction) {
    compareWithGolden("un-embryon-detaille-introduction", CptRendu1T(sampleExam("1"), kFull, kIntroduction));
}

TEST(GoldenReport, OfOneEmbryoDetailedWithoutIntroduction) {
    compareWithGolden("un-embryon-detaille", CptRendu1T(sampleExam("1"), kFull, std::nullopt));
}

TEST(GoldenReport, OfOneEmbryoMinimumWithIntroduction) {
    compareWithGolden("un-embryon-minimum-introduction", CptRendu1T(sampleExam("1"), kMinimum, kIntroduction));
}

TEST(GoldenReport, OfTwinsDetailed) {
    compareWithGolden("jumeaux-detaille", CptRendu1T(sampleExam("2"), kFull, std::nullopt));
}

TEST(GoldenReport, OfTwinsMinimum) {
    compareWithGolden("jumeaux-minimum", CptRendu1T(sampleExam("2"), kMinimum, std::nullopt));
}

TEST(GoldenReport, OfTripletsDetailed) {
    compareWithGolden("triples-detaille", CptRendu1T(sampleExam("3"), kFull, std::nullopt));
}

TEST(GoldenReport, OfTripletsMinimum) {
    compareWithGolden("triples-minimum", CptRendu1T(sampleExam("3"), kMinimum, std::nullopt));
}

TEST(GoldenReport, OfACountOfZeroIsTheSingleOne) {
    compareWithGolden("aucun-embryon", CptRendu1T(sampleExam("0"), kFull, std::nullopt));
}

TEST(GoldenReport, OfACountOfFourHasNoTextOnTheEmbryos) {
    compareWithGolden("quatre-embryons", CptRendu1T(sampleExam("4"), kFull, std::nullopt));
}

TEST(GoldenReport, OfAnEmptyExamKeepsEveryLine) {
    FirstTrimesterExam exam;
    exam.LblNbrE = "1";
    compareWithGolden("exam-vide", CptRendu1T(exam, kFull, QString()));
}

TEST(GoldenReport, WithoutACountStopsBehindItsHeading) {
    compareWithGolden("nombre-illisible", CptRendu1T(sampleExam(""), kFull, std::nullopt));
}

TEST(GoldenReport, OfADating) {
    compareWithGolden("datation", CptRenduDat(sampleExam("2")));
}

TEST(GoldenReport, OfAnEmptyDatingKeepsEveryLine) {
    compareWithGolden("datation-vide", CptRenduDat({}));
}

TEST(GoldenReport, OfALoneFetusWithAllMeasures) {
    compareWithGolden("foetus-toutes-mesures", CptRendu2T(laterExam("1"), kFull, kIntroduction));
}

TEST(GoldenReport, OfALoneFetusWithSomeMeasures) {
    LaterExam exam = laterExam("1");
    for (QString Fetus::*measure : {&Fetus::TxtBip, &Fetus::TxtDio, &Fetus::TxtDat, &Fetus::TxtTibia}) {
        exam.fetuses[0].*measure = QString();
    }
    exam.percentiles.LblCCer = QString();
    exam.TxtUtD = QString();
    exam.fetuses[0].TxtArtC = QString();
    compareWithGolden("foetus-quelques-mesures", CptRendu2T(exam, kFull, std::nullopt));
}

TEST(GoldenReport, OfALoneFetusWithoutMeasures) {
    LaterExam exam = laterExam("1");
    exam.fetuses[0] = {};
    exam.TxtUtD = exam.TxtUtG = QString();
    compareWithGolden("foetus-sans-mesure", CptRendu2T(exam, kFull, std::nullopt));
}

TEST(GoldenReport, OfALoneFetusMinimum) {
    compareWithGolden("foetus-minimum", CptRendu2T(laterExam("1"), kMinimum, std::nullopt));
}

TEST(GoldenReport, OfTwinFetusesDetailed) {
    LaterExam exam = laterExam("2");
    exam.fetuses[1].TxtDio = QString();
    compareWithGolden("foetus-jumeaux-detaille", CptRendu2T(exam, kFull, std::nullopt));
}

TEST(GoldenReport, OfTwinFetusesMinimum) {
    compareWithGolden("foetus-jumeaux-minimum", CptRendu2T(laterExam("2"), kMinimum, kIntroduction));
}

TEST(GoldenReport, OfTripletFetusesDetailed) {
    compareWithGolden("foetus-triples-detaille", CptRendu2T(laterExam("3"), kFull, std::nullopt));
}

TEST(GoldenReport, OfTripletFetusesMinimum) {
    compareWithGolden("foetus-triples-minimum", CptRendu2T(laterExam("3"), kMinimum, std::nullopt));
}

TEST(GoldenReport, OfACountOfNoFetusHasNoTextOnThem) {
    compareWithGolden("foetus-aucun", CptRendu2T(laterExam("0"), kFull, std::nullopt));
}

TEST(GoldenReport, OfACountOfFourFetusesHasNoTextOnThem) {
    compareWithGolden("foetus-quatre", CptRendu2T(laterExam("4"), kFull, std::nullopt));
}

TEST(GoldenReport, WithoutACountOfFetusesStopsBehindItsHeading) {
    compareWithGolden("foetus-nombre-illisible", CptRendu2T(laterExam(""), kFull, std::nullopt));
}

TEST(GoldenReport, OfAPelvicExam) {
    compareWithGolden("pelvis", CptRenduGyneco(gynaecologyExam()));
}

TEST(GoldenReport, OfAPelvicExamWithoutMass) {
    GynaecologyExam exam = gynaecologyExam();
    std::fill_n(exam.TxtGyneco.begin() + 16, 5, QString());
    compareWithGolden("pelvis-sans-masse", CptRenduGyneco(exam));
}

TEST(GoldenReport, OfAnEmptyPelvicExamKeepsEveryLine) {
    compareWithGolden("pelvis-vide", CptRenduGyneco({}));
}

TEST(GoldenReport, OfAMonitoringOfOvulation) {
    compareWithGolden("ovulation", CptRenduOvulation(gynaecologyExam()));
}

TEST(GoldenReport, OfAnEmptyMonitoringKeepsEveryLine) {
    compareWithGolden("ovulation-vide", CptRenduOvulation({}));
}

}  // namespace
}  // namespace reports
