#include <QHash>
#include <QSet>
#include <algorithm>

#include "practice/sample.h"

namespace {

const QDate kLastDay(2002, 6, 14);

// The days on which no French practice works, between 2000 and 2002.
const QSet<QDate> kHolidays{{2000, 11, 1}, {2000, 12, 25}, {2001, 1, 1},  {2001, 4, 16}, {2001, 5, 1},   {2001, 5, 8},
                            {2001, 5, 24}, {2001, 6, 4},   {2001, 8, 15}, {2001, 11, 1}, {2001, 12, 25}, {2002, 1, 1},
                            {2002, 4, 1},  {2002, 5, 1},   {2002, 5, 8},  {2002, 5, 9},  {2002, 5, 20}};

QString text(const Row& row, const QString& field) {
    return row[field].text();
}

QDate date(const Row& row, const QString& field) {
    return dateOf(text(row, field));
}

bool isFirstTrimester(const Row& exam) {
    return text(exam, u"TYPECHO"_qs) == u"1";
}

/// "12,3" for 87 days of amenorrhoea.
QString written(qint64 days) {
    const QString weeks = QString::number(days / 7);
    return days % 7 == 0 ? weeks : weeks + u',' + QString::number(days % 7);
}

/// Days of amenorrhoea behind an age text.
int daysOf(const QString& age) {
    const QStringList parts = age.split(u',');
    return parts[0].toInt() * 7 + parts.value(1).toInt();
}

void expectWorkingDay(const Row& exam) {
    const QDate day = date(exam, u"DATEXAM"_qs);
    ASSERT_TRUE(day.isValid()) << text(exam, u"DATEXAM"_qs).toStdString();
    EXPECT_LE(day.dayOfWeek(), 5) << text(exam, u"DATEXAM"_qs).toStdString();
    EXPECT_FALSE(kHolidays.contains(day)) << text(exam, u"DATEXAM"_qs).toStdString();
    EXPECT_LE(day, kLastDay);
}

QHash<qint64, QList<qint64>> numbersByDossier(const QList<Row>& exams) {
    QHash<qint64, QList<qint64>> numbers;
    for (const Row& exam : exams) {
        numbers[exam[u"NUMERO"_qs].number()] << exam[u"NUMECHO"_qs].number();
    }
    for (QList<qint64>& list : numbers) {
        std::ranges::sort(list);
    }
    return numbers;
}

}  // namespace

using SampleExams = Sample;

TEST_F(SampleExams, BelongToPatientsOfTheSample) {
    for (const QList<Row>& exams : {obstetric(), gynaecology()}) {
        for (const Row& exam : exams) {
            const qint64 dossier = exam[u"NUMERO"_qs].number();
            EXPECT_TRUE(dossier >= 2 && dossier <= 41) << dossier;
        }
    }
}

TEST_F(SampleExams, AreNumberedFromOneWithoutRepeats) {
    for (const QList<Row>& exams : {obstetric(), gynaecology()}) {
        const auto dossiers = numbersByDossier(exams);
        for (auto numbers = dossiers.begin(); numbers != dossiers.end(); ++numbers) {
            EXPECT_EQ(numbers->first(), 1) << numbers.key();
            EXPECT_EQ(std::ranges::adjacent_find(*numbers), numbers->end()) << numbers.key();
        }
    }
}

TEST_F(SampleExams, KeepTheGapsThatDeletionsLeft) {
    EXPECT_EQ(numbersByDossier(obstetric())[18], QList<qint64>({1, 3, 4}));
    EXPECT_EQ(numbersByDossier(obstetric())[19], QList<qint64>({1, 2, 4}));
    EXPECT_EQ(numbersByDossier(gynaecology())[25], QList<qint64>({1, 3}));
}

TEST_F(SampleExams, StandTwiceOnOneDateInThreeDossiers) {
    EXPECT_EQ(text(exam(16, 3), u"DATEXAM"_qs), text(exam(16, 4), u"DATEXAM"_qs));
    EXPECT_EQ(text(exam(24, 2), u"DATEXAM"_qs), text(exam(24, 3), u"DATEXAM"_qs));
    EXPECT_EQ(text(pelvic(39, 1), u"DATEXAM"_qs), text(pelvic(39, 2), u"DATEXAM"_qs));
}

TEST_F(SampleExams, TakePlaceOnWorkingDaysInTheOrderOfTheirNumbers) {
    for (const QList<Row>& exams : {obstetric(), gynaecology()}) {
        for (const Row& one : exams) {
            expectWorkingDay(one);
            for (const Row& other : exams) {
                if (one[u"NUMERO"_qs] == other[u"NUMERO"_qs] &&
                    one[u"NUMECHO"_qs].number() < other[u"NUMECHO"_qs].number()) {
                    EXPECT_LE(date(one, u"DATEXAM"_qs), date(other, u"DATEXAM"_qs))
                        << text(one, u"NUMERO"_qs).toStdString();
                }
            }
        }
    }
}

TEST_F(SampleExams, HaveAllFourKinds) {
    QHash<QString, int> kinds;
    for (const Row& exam : obstetric()) {
        ++kinds[text(exam, u"TYPECHO"_qs)];
    }
    EXPECT_EQ(QSet<QString>(kinds.keyBegin(), kinds.keyEnd()), QSet<QString>({u"0"_qs, u"1"_qs, u"2"_qs, u"3"_qs}));
    for (const int count : kinds) {
        EXPECT_GE(count, 8);
    }
}

TEST_F(SampleExams, StartTheoreticallyTwoWeeksAfterTheLastPeriod) {
    int dated = 0;
    for (const Row& exam : obstetric()) {
        if (text(exam, u"DDR"_qs).isEmpty()) {
            EXPECT_EQ(text(exam, u"DG"_qs), QString());
        } else {
            EXPECT_EQ(date(exam, u"DDR"_qs).daysTo(date(exam, u"DG"_qs)), 14);
            ++dated;
        }
    }
    EXPECT_GE(dated, 60);
}

TEST_F(SampleExams, CarryTheAgeThatTheirDatesGive) {
    for (const Row& exam : obstetric()) {
        const bool byUltrasound = !text(exam, u"DGUS"_qs).isEmpty();
        const QDate start = date(exam, byUltrasound ? u"DGUS"_qs : u"DG"_qs);
        ASSERT_TRUE(start.isValid());
        EXPECT_EQ(text(exam, u"AGESTA"_qs), written(start.daysTo(date(exam, u"DATEXAM"_qs)) + 14));
    }
}

TEST_F(SampleExams, CarryAgesWorkedOutByHand) {
    // From 6 November 2001 to 17 January 2002 are 72 days: 10 weeks 2 days, and two weeks more.
    EXPECT_EQ(text(exam(2, 1), u"DGUS"_qs), u"06/11/2001"_qs);
    EXPECT_EQ(text(exam(2, 1), u"DATEXAM"_qs), u"17/01/2002"_qs);
    EXPECT_EQ(text(exam(2, 1), u"AGESTA"_qs), u"12,2"_qs);
    // From 12 September to 21 November 2001 are 70 days: no days behind the comma, and no comma.
    EXPECT_EQ(text(exam(4, 1), u"AGESTA"_qs), u"12"_qs);
    // No start by ultrasound: 31 December 2001 to 23 May 2002 are 143 days, 20 weeks 3 days.
    EXPECT_EQ(text(exam(13, 1), u"DGUS"_qs), QString());
    EXPECT_EQ(text(exam(13, 1), u"AGESTA"_qs), u"22,3"_qs);
    EXPECT_TRUE(text(exam(13, 1), u"CONCLU1"_qs)
                    .startsWith(u"Grossesse unique évolutive de 22 semaines et 3 jours d'aménorrhée."));
}

TEST_F(SampleExams, AgreeInTheirStartWithTheCrownRumpLength) {
    // Crown-rump length in millimetres to days of amenorrhoea.
    const QHash<int, int> days{{10, 49}, {17, 58}, {40, 76}, {49, 81}, {53, 83}, {54, 84}, {55, 84},
                               {56, 85}, {57, 85}, {58, 86}, {59, 86}, {60, 87}, {61, 88}, {62, 88},
                               {63, 89}, {64, 89}, {65, 90}, {66, 91}, {67, 91}};
    int compared = 0;
    for (const Row& exam : obstetric()) {
        const int length = text(exam, u"LCC"_qs).toInt();
        if (length > 0 && !text(exam, u"DGUS"_qs).isEmpty()) {
            ASSERT_TRUE(days.contains(length)) << length;
            EXPECT_EQ(daysOf(text(exam, u"AGESTA"_qs)), days[length]) << text(exam, u"NUMERO"_qs).toStdString();
            ++compared;
        }
    }
    EXPECT_GE(compared, 20);
}

TEST_F(SampleExams, CarryTheBodyMassOfTheMother) {
    // 61 / 1.68² = 21.61; 49 / 1.58² = 19.63; 58 / 1.66² = 21.05.
    EXPECT_EQ(text(exam(2, 1), u"BMI"_qs), u"21,6"_qs);
    EXPECT_EQ(text(exam(3, 1), u"BMI"_qs), u"19,6"_qs);
    EXPECT_EQ(text(exam(6, 1), u"BMI"_qs), u"21"_qs);
}

TEST_F(SampleExams, NameTheDeviceAndAPractitionerOfTheStoredResponses) {
    const QSet<QString> practitioners{u"Docteur Hélène VAUCLAIR"_qs, u"Docteur Marc-Antoine SERVAL"_qs,
                                      u"Docteur Noëlle BERTHOUX, remplaçante"_qs};
    for (const QList<Row>& exams : {obstetric(), gynaecology()}) {
        for (const Row& exam : exams) {
            EXPECT_EQ(text(exam, u"MACHINE"_qs), u"ORIVANNE 3500"_qs);
            EXPECT_EQ(text(exam, u"DATECIRC"_qs), u"04/09/2000"_qs);
            EXPECT_TRUE(practitioners.contains(text(exam, u"OPERATEUR"_qs)));
        }
    }
}

TEST_F(SampleExams, WriteTheFieldsOfTheirFamilyAndLeaveTheOthersNull) {
    for (const Row& exam : obstetric()) {
        EXPECT_EQ(exam[u"LCC"_qs].isNull(), !isFirstTrimester(exam));
        EXPECT_EQ(exam[u"NBRS"_qs].isNull(), !isFirstTrimester(exam));
        EXPECT_EQ(exam[u"CC"_qs].isNull(), isFirstTrimester(exam));
        EXPECT_EQ(exam[u"UTD"_qs].isNull(), isFirstTrimester(exam));
        EXPECT_FALSE(exam[u"CA3"_qs].isNull());
        EXPECT_FALSE(exam[u"CONCLU1"_qs].isNull());
    }
}

TEST_F(SampleExams, FillTheFieldsOfAsManyFetusesAsTheyCount) {
    for (const Row& exam : obstetric()) {
        const int count = text(exam, u"NBRE"_qs).toInt();
        ASSERT_GT(count, 0);
        ASSERT_LE(count, 3);
        for (const int fetus : {2, 3}) {
            for (const QString& field : {u"AC"_qs, u"MORPHO"_qs, u"MA"_qs}) {
                EXPECT_EQ(text(exam, field + QString::number(fetus)).isEmpty(), fetus > count) << field.toStdString();
            }
        }
    }
}

TEST_F(SampleExams, TellAStoppedPregnancyWithoutCallingItLive) {
    const Row stopped = exam(11, 1);
    EXPECT_EQ(text(stopped, u"AC"_qs), u"0"_qs);
    EXPECT_EQ(text(stopped, u"LCC"_qs), u"16"_qs);
    EXPECT_TRUE(text(stopped, u"CONCLU1"_qs).startsWith(u"Grossesse arrêtée"));
}

TEST_F(SampleExams, ShareTheirStartThroughoutAPregnancy) {
    for (const int number : {1, 2, 3, 4, 5, 6}) {
        EXPECT_EQ(text(exam(3, number), u"DGUS"_qs), u"24/09/2001"_qs) << number;
    }
    // Two pregnancies of one patient go on in one numbering.
    EXPECT_EQ(text(exam(14, 3), u"DGUS"_qs), u"03/07/2000"_qs);
    EXPECT_EQ(text(exam(14, 4), u"DGUS"_qs), u"30/01/2002"_qs);
}
