#include <QHash>
#include <QSet>

#include "practice/sample.h"

namespace {

using Rubrics = QHash<int, QList<Row>>;

Rubrics rubricsOf(const practice::Paths& files) {
    Rubrics rubrics;
    for (const Row& row : rowsOf(files, u"OPTIONS"_qs)) {
        rubrics[static_cast<int>(row[u"NUMEROS"_qs].number())] << row;
    }
    return rubrics;
}

QString onlyText(const Rubrics& rubrics, int number) {
    EXPECT_EQ(rubrics[number].size(), 1) << number;
    return rubrics[number].value(0)[u"TEXTE"_qs].text();
}

}  // namespace

using SamplePhrases = Sample;

TEST_F(SamplePhrases, FillEveryRubricAndNoOther) {
    // All numbers from 1 to 55 but the ten that are not used.
    const QSet<int> unused{24, 43, 44, 46, 47, 48, 49, 52, 53, 54};
    const Rubrics rubrics = rubricsOf(files());
    for (int number = 0; number <= 60; ++number) {
        const bool used = number >= 1 && number <= 55 && !unused.contains(number);
        EXPECT_EQ(rubrics.contains(number), used) << number;
    }
}

TEST_F(SamplePhrases, AreThreeToTwelveInEachRubricOfPhrases) {
    const QSet<int> oneRow{14, 15, 19, 20, 21, 22, 23};
    const Rubrics rubrics = rubricsOf(files());
    for (auto rubric = rubrics.begin(); rubric != rubrics.end(); ++rubric) {
        if (oneRow.contains(rubric.key())) {
            EXPECT_EQ(rubric->size(), 1) << rubric.key();
        } else {
            EXPECT_GE(rubric->size(), 3) << rubric.key();
            EXPECT_LE(rubric->size(), 12) << rubric.key();
        }
    }
}

TEST_F(SamplePhrases, SayWhatFollowsThemAndAreNeverEmptyNorTwiceInOneRubric) {
    QSet<QString> endings;
    const Rubrics rubrics = rubricsOf(files());
    for (auto rubric = rubrics.begin(); rubric != rubrics.end(); ++rubric) {
        QSet<QString> texts;
        for (const Row& row : *rubric) {
            endings.insert(row[u"TERMINAIS"_qs].text());
            texts.insert(row[u"TEXTE"_qs].text().trimmed());
        }
        EXPECT_FALSE(texts.contains(QString())) << rubric.key();
        EXPECT_EQ(texts.size(), rubric->size()) << rubric.key();
    }
    EXPECT_EQ(endings, QSet<QString>({u"A"_qs, u"B"_qs, u"C"_qs}));
}

TEST_F(SamplePhrases, HoldSomeTextsOfSeveralLines) {
    int lines = 0;
    for (const Row& row : rowsOf(files(), u"OPTIONS"_qs)) {
        lines += row[u"TEXTE"_qs].text().contains(u"\r\n"_qs) ? 1 : 0;
    }
    EXPECT_GE(lines, 3);
}

TEST_F(SamplePhrases, HoldTheLetterheadAndTheDevice) {
    const Rubrics rubrics = rubricsOf(files());
    EXPECT_EQ(onlyText(rubrics, 19), u"CABINET D'ÉCHOGRAPHIE DES TILLEULS"_qs);
    EXPECT_EQ(onlyText(rubrics, 20), u"Docteur Hélène VAUCLAIR"_qs);
    EXPECT_EQ(onlyText(rubrics, 22), u"99310 BELVAUDE-SUR-ORLE"_qs);
    EXPECT_EQ(onlyText(rubrics, 23), u"05 36 49 10 10"_qs);
    EXPECT_EQ(onlyText(rubrics, 14), u"ORIVANNE 3500"_qs);
    EXPECT_TRUE(dateOf(onlyText(rubrics, 15)).isValid());
}

TEST_F(SamplePhrases, StandInTheirOrderInsideARubric) {
    const Rubrics rubrics = rubricsOf(files());
    QStringList texts;
    for (const Row& row : rubrics[25]) {
        texts << row[u"TEXTE"_qs].text();
    }
    EXPECT_EQ(texts.value(0), u"Céphalique."_qs);
    EXPECT_EQ(texts.value(3), u"Siège décomplété."_qs);
    EXPECT_EQ(texts.last(), u"Variable à ce terme."_qs);
}

TEST_F(SamplePhrases, AreWhatTheUsualTextsOfTheExamsAreMadeOf) {
    EXPECT_EQ(exam(2, 1)[u"UTERUS"_qs].text(), u"Gravide, de contours réguliers, sans anomalie myométriale."_qs);
    // Four phrases in a row; the fourth closes the rubric.
    EXPECT_EQ(exam(2, 1)[u"MORPHO"_qs].text(),
              u"Pôle céphalique de contour régulier, avec ligne médiane. Quatre membres à trois segments. "
              u"Paroi abdominale fermée, estomac visible. Vessie visible, de taille normale."_qs);
}
