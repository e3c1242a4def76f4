
#include "practice/sample.h"

namespace {

int measure(const Row& exam, const QString& field) {
    return exam[field].text().toInt();
}

void expectBetween(int value, int least, int most) {
    EXPECT_GE(value, least);
    EXPECT_LE(value, most);
}

/// A measure that rises from exam to exam wherever it was taken.
void expectRise(const QList<Row>& exams, const QString& field) {
    int before = 0;
    for (const Row& exam : exams) {
        const int value = measure(exam, field);
        if (value > 0) {
            EXPECT_GT(value, before) << field.toStdString();
            before = value;
        }
    }
    EXPECT_GT(before, 0) << field.toStdString();
}

}  // namespace

using SampleStories = Sample;

// The ranges below are those of the abdominal circumference at the week of the exam.

TEST_F(SampleStories, AFetusOnTheMedianStaysThere) {
    expectBetween(measure(exam(2, 2), u"CA"_qs), 172, 174);  // week 22, 50th
    expectBetween(measure(exam(2, 3), u"CA"_qs), 271, 275);  // week 32, 50th
}

TEST_F(SampleStories, AFetusSmallForDatesFallsThroughThePercentiles) {
    expectBetween(measure(exam(3, 2), u"CA"_qs), 160, 171);  // week 22, 10th to 50th
    expectBetween(measure(exam(3, 3), u"CA"_qs), 198, 213);  // week 26, 10th to 50th
    expectBetween(measure(exam(3, 4), u"CA"_qs), 216, 225);  // week 29, 3rd to 10th
    EXPECT_LE(measure(exam(3, 5), u"CA"_qs), 239);           // week 32, below the 3rd
    EXPECT_LE(measure(exam(3, 6), u"CA"_qs), 262);           // 34 weeks 4 days: week 35, below the 3rd
}

TEST_F(SampleStories, ItsHeadIsSparedAndItsDopplersChange) {
    expectBetween(measure(exam(3, 5), u"CC"_qs), 269, 282);  // week 32, 10th to 50th
    EXPECT_EQ(exam(3, 2)[u"ARTO"_qs].text(), u"0,71"_qs);
    EXPECT_EQ(exam(3, 6)[u"ARTO"_qs].text(), u"0,81"_qs);
    EXPECT_EQ(exam(3, 6)[u"ARTC"_qs].text(), u"0,63"_qs);
}

TEST_F(SampleStories, ALargeFetusPassesTheHighestPercentile) {
    EXPECT_GE(measure(exam(8, 3), u"CA"_qs), 306);  // 32 weeks 4 days: week 33 begins at 316, week 32 at 306
    EXPECT_GE(measure(exam(8, 4), u"CA"_qs), 345);  // week 36, above the 97th
}

TEST_F(SampleStories, OneTwinFallsBehindTheOther) {
    const Row early = exam(6, 2), late = exam(6, 5);
    expectBetween(measure(early, u"CA"_qs), 128, 130);   // week 18, 50th
    expectBetween(measure(early, u"CA2"_qs), 119, 127);  // week 18, 10th to 50th
    expectBetween(measure(late, u"CA"_qs), 238, 253);    // week 28, 50th to 90th
    EXPECT_LE(measure(late, u"CA2"_qs), 205);            // week 28, below the 3rd
}

TEST_F(SampleStories, ABreechStaysABreech) {
    EXPECT_TRUE(exam(4, 3)[u"NUQUE"_qs].text().startsWith(u"Siège"));
    EXPECT_TRUE(exam(4, 4)[u"NUQUE"_qs].text().startsWith(u"Siège"));
}

TEST_F(SampleStories, TwinsAndTripletsAreFollowedFromTheFirstTrimesterOn) {
    for (const int number : {1, 2, 3, 4}) {
        EXPECT_EQ(measure(exam(5, number), u"NBRE"_qs), 2) << number;
        EXPECT_EQ(measure(exam(7, number), u"NBRE"_qs), 3) << number;
        EXPECT_GT(measure(exam(7, number), u"BIP3"_qs), 0) << number;
    }
    EXPECT_EQ(measure(exam(5, 1), u"TYPECHO"_qs), 1);
    EXPECT_TRUE(exam(7, 2)[u"CONCLU1"_qs].text().startsWith(
        u"Grossesse triple évolutive de 22 semaines et 2 jours d'aménorrhée."));
}

TEST_F(SampleStories, EveryFetusGrows) {
    const QList<QPair<int, int>> followed{{2, 3}, {3, 6}, {4, 4}, {5, 4}, {6, 6}, {7, 4}, {8, 4}, {15, 4}};
    for (const auto& [dossier, last] : followed) {
        QList<Row> exams;
        for (int number = 2; number <= last; ++number) {
            exams << exam(dossier, number);
        }
        const int fetuses = measure(exams.first(), u"NBRE"_qs);
        for (int fetus = 1; fetus <= fetuses; ++fetus) {
            const QString ending = fetus == 1 ? QString() : QString::number(fetus);
            for (const QString& field : {u"BIP"_qs, u"CC"_qs, u"DAT"_qs, u"CA"_qs, u"FEM"_qs, u"PIED"_qs, u"HUM"_qs}) {
                expectRise(exams, field + ending);
            }
        }
    }
}

TEST_F(SampleStories, GynaecologyHasPelvicExamsMonitoringAndBothInOne) {
    int pelvicOnly = 0, monitoringOnly = 0, both = 0;
    for (const Row& exam : gynaecology()) {
        const bool pelvicPage = !exam[u"LONGUEUR"_qs].text().isEmpty();
        const bool monitoring = !exam[u"JSTIM"_qs].text().isEmpty();
        pelvicOnly += pelvicPage && !monitoring ? 1 : 0;
        monitoringOnly += monitoring && !pelvicPage ? 1 : 0;
        both += pelvicPage && monitoring ? 1 : 0;
    }
    EXPECT_GE(pelvicOnly, 10);
    EXPECT_GE(monitoringOnly, 8);
    EXPECT_EQ(both, 1);
}

TEST_F(SampleStories, AMonitoredFollicleGrowsUntilItIsReleased) {
    const auto largest = [](int number) { return pelvic(29, number)[u"DIMFOLD"_qs].text().section(u' ', 0, 0); };
    EXPECT_EQ(largest(1), u"11"_qs);
    EXPECT_EQ(largest(2), u"14"_qs);
    EXPECT_EQ(largest(3), u"16"_qs);
    EXPECT_EQ(largest(4), u"20"_qs);
    EXPECT_EQ(largest(5), QString());
    EXPECT_EQ(pelvic(29, 4)[u"JSTIM"_qs].text(), u"14"_qs);
}

TEST_F(SampleStories, AsManyFolliclesAreMeasuredAsCounted) {
    for (const Row& exam : gynaecology()) {
        for (const auto& [count, sizes] : {std::pair(u"NBRFOLD"_qs, u"DIMFOLD"_qs), {u"NBRFOLG"_qs, u"DIMFOLG"_qs}}) {
            EXPECT_EQ(exam[sizes].text().split(u' ', Qt::SkipEmptyParts).size(), exam[count].text().toInt())
                << exam[u"NUMERO"_qs].text().toStdString();
        }
    }
}
