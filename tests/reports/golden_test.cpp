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

}  // namespace
}  // namespace reports
