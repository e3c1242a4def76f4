#include <gtest/gtest.h>

#include "readable.h"
#include "sample_exams.h"

namespace reports {
namespace {

constexpr auto kFull = Detail::Full;
constexpr auto kMinimum = Detail::Minimum;

QString fullText(const LaterExam& exam) {
    return plain(CptRendu2T(exam, kFull, std::nullopt));
}

/// An exam of one fetus of whom nothing was measured.
LaterExam unmeasured() {
    LaterExam exam = laterExam("1");
    exam.fetuses[0] = {};
    return exam;
}

TEST(LaterReport, CarriesItsOwnTitleBetweenLetterheadAndPatient) {
    const QString text = fullText(laterExam("1"));
    EXPECT_TRUE(
        text.startsWith("Clinique des Tilleuls\r\nDocteur Hélène MARCHAND\r\n12, rue du Vieux Pont\r\n"
                        "67000 STRASBOURG\r\nTél. 03 88 00 00 00\r\n\r\nECHOGRAPHIE du 2°- 3° Ter\r\n"
                        "Appareil: Echographe A\r\n1ère mise en service le 15/01/2001\r\n\r\n\r\n"
                        "               Mme Zoé D'ALMEIDA\r\n\r\nBMI : 22,4\r\n"));
}

TEST(LaterReport, TellsTheDatesInTheirOrder) {
    EXPECT_TRUE(fullText(laterExam("1"))
                    .contains("BMI : 22,4\r\nDate de l'examen : 05/04/2002\r\n"
                              "Date des dernières règles : 01/11/2001\r\n"
                              "Début présumé de la grossesse : 15/11/2001\r\n"
                              "Début de grossesse (US) : 16/11/2001\r\nAge gestationnel : 22,0 Sem. A.\r\n\r\n"
                              "EXAMEN\r\n          Indication : Morphologie\r\n"
                              "          Modalités : Voie abdominale\r\n          Conditions : Bonnes\r\n\r\nPELVIS"));
}

TEST(LaterReport, PutsTheIntroductionBeforeThePatient) {
    const QString with = plain(CptRendu2T(laterExam("1"), kFull, QString("Bonjour.")));
    EXPECT_TRUE(with.contains("15/01/2001\r\n\r\n\r\nBonjour.\r\n\r\n\r\n               Mme"));
    const QString missing = plain(CptRendu2T(laterExam("1"), kFull, QString()));
    EXPECT_TRUE(missing.contains("15/01/2001\r\n\r\n\r\n\r\n\r\n\r\n               Mme"));
}

TEST(LaterReport, SetsItsHeadingsInBoldWithTheBlanksBehindThem) {
    const Report report = CptRendu2T(laterExam("4"), kFull, std::nullopt);
    QStringList bold;
    bool on = false;
    for (const Operation& operation : report.operations) {
        if (const auto* weight = std::get_if<SelBold>(&operation)) {
            on = weight->value;
        } else if (const auto* piece = std::get_if<SelText>(&operation); piece && on) {
            bold << piece->text;
        }
    }
    const QString ten(10, ' '), fifteen(15, ' ');
    const QStringList expected{"Clinique des Tilleuls\r\nDocteur Hélène MARCHAND\r\n",
                               "12, rue du Vieux Pont\r\n67000 STRASBOURG\r\n",
                               fifteen + "Mme Zoé D'ALMEIDA\r\n\r\n",
                               "EXAMEN\r\n",
                               "PELVIS\r\n",
                               "DOPPLER ART. UTERINES\r\n",
                               "FOETUS\r\n" + ten,
                               "LIQUIDE AMNIOTIQUE\r\n" + fifteen,
                               "PLACENTA\r\n" + fifteen,
                               "CONCLUSION\r\n" + fifteen};
    EXPECT_EQ(bold, expected);
}

TEST(LaterReport, EndsByTheCentredSignatureAndTheCaretAtTheStart) {
    const Operations all = CptRendu2T(laterExam("1"), kFull, std::nullopt).operations;
    EXPECT_EQ(all.back(), Operation(SelStart{0}));
    EXPECT_EQ(all[all.size() - 2], Operation(SelText{"Dr MARCHAND le 05/04/2002"}));
    EXPECT_EQ(all[all.size() - 3], Operation(SelAlignment{forms::Alignment::Centre}));
    EXPECT_EQ(std::count(all.begin(), all.end(), Operation(SelAlignment{forms::Alignment::Left})), 1);
}

TEST(LaterReport, WritesTwelvePointsFromTheDatesOn) {
    const Operations all = CptRendu2T(laterExam("1"), kFull, std::nullopt).operations;
    const auto dates = std::find(all.begin(), all.end(), Operation(SelText{"BMI : 22,4\r\n"}));
    ASSERT_NE(dates, all.end());
    EXPECT_EQ(*(dates - 1), Operation(SelBold{false}));
    EXPECT_EQ(*(dates - 2), Operation(SelFontSize{12}));
    EXPECT_TRUE(std::none_of(
        dates, all.end(), [](const Operation& operation) { return std::holds_alternative<SelFontSize>(operation); }));
}

TEST(LoneFetus, HasEachMeasureWithItsUnitAndItsPercentileWord) {
    EXPECT_TRUE(fullText(laterExam("1"))
                    .contains("Nombre : 1\r\n          PRESENTATION : \r\n               Céphalique\r\n"
                              "          BIOMETRIE\r\n"
                              "               Bi-Pariétal : 54 mm. (50ème p).\r\n"
                              "               Distance inter orbitaire : 15 mm.\r\n"
                              "               Cervelet : 23 mm. (cervelet normal).\r\n"
                              "               Circonférence céphalique : 198 mm. (60ème p).\r\n"
                              "               Diamètre abdominal transverse : 50 mm. (40ème p).\r\n"
                              "               Circonférence abdominale : 172 mm. (30ème p).\r\n"
                              "               Pied : 38 mm. (pied court).\r\n"
                              "               Fémur: 37 mm. (70ème p).\r\n"
                              "               Tibia : 33 mm.\r\n"
                              "               Humerus : 36 mm\r\n\r\n"
                              "          ACTIVITE\r\n               Rythme cardiaque: 148 bat/mn\r\n"
                              "               Mouvements actifs: Présents\r\n\r\n"
                              "          MORPHOLOGIE\r\n\r\n               Crâne et face sans anomalie.\r\n\r\n"
                              "          DOPPLER\r\n               Artère Ombilicale : IR 0,70\r\n"
                              "               Art. Cérebrale Ant. : IR 0,80\r\n\r\n\r\n\r\nLIQUIDE AMNIOTIQUE\r\n"));
}

// Each measure alone: the line that stands between the heading and the empty line behind it.
struct MeasureCase {
    QString Fetus::*field;
    const char* line;
};

TEST(LoneFetus, HasOneLineAloneWhereOneMeasureIsFilled) {
    const std::vector<MeasureCase> cases{
        {&Fetus::TxtBip, "Bi-Pariétal : 7 mm. (50ème p)."},
        {&Fetus::TxtDio, "Distance inter orbitaire : 7 mm."},
        {&Fetus::TxtCerv, "Cervelet : 7 mm. (cervelet normal)."},
        {&Fetus::TxtCc, "Circonférence céphalique : 7 mm. (60ème p)."},
        {&Fetus::TxtDat, "Diamètre abdominal transverse : 7 mm. (40ème p)."},
        {&Fetus::TxtCa, "Circonférence abdominale : 7 mm. (30ème p)."},
        {&Fetus::TxtPied, "Pied : 7 mm. (pied court)."},
        {&Fetus::TxtFem, "Fémur: 7 mm. (70ème p)."},
        {&Fetus::TxtTibia, "Tibia : 7 mm."},
        {&Fetus::TxtHum, "Humerus : 7 mm"},
    };
    for (const MeasureCase& measure : cases) {
        LaterExam exam = unmeasured();
        exam.fetuses[0].*measure.field = "7";
        EXPECT_TRUE(fullText(exam).contains("          BIOMETRIE\r\n               " + QString(measure.line) +
                                            "\r\n\r\n          ACTIVITE\r\n"))
            << measure.line;
    }
}

TEST(LoneFetus, WithoutMeasuresGoesFromTheHeadingToTheActivity) {
    EXPECT_TRUE(fullText(unmeasured())
                    .contains("PRESENTATION : \r\n               \r\n          BIOMETRIE\r\n\r\n          ACTIVITE\r\n"
                              "               Rythme cardiaque:  bat/mn\r\n"
                              "               Mouvements actifs: \r\n\r\n          MORPHOLOGIE\r\n\r\n"
                              "               \r\n\r\n\r\n\r\nLIQUIDE AMNIOTIQUE"));
}

TEST(LoneFetus, KeepsABlankMeasureAndAnEmptyPercentileWord) {
    LaterExam exam = unmeasured();
    exam.fetuses[0].TxtBip = " ";
    exam.percentiles.LblCBip = QString();
    EXPECT_TRUE(fullText(exam).contains("BIOMETRIE\r\n               Bi-Pariétal :   mm. ().\r\n\r\n"));
}

TEST(LoneFetus, HasBothDopplerLinesWhereOneSideIsFilled) {
    LaterExam exam = unmeasured();
    exam.fetuses[0].TxtArtC = "IR 0,80";
    EXPECT_TRUE(
        fullText(exam).contains("          DOPPLER\r\n               Artère Ombilicale : \r\n"
                                "               Art. Cérebrale Ant. : IR 0,80\r\n\r\n\r\n\r\nLIQUIDE"));
    exam.fetuses[0].TxtArtC = QString();
    EXPECT_FALSE(fullText(exam).contains("DOPPLER\r\n"));
    exam.fetuses[0].TxtArtO = "IR 0,70";
    EXPECT_TRUE(fullText(exam).contains("Artère Ombilicale : IR 0,70\r\n               Art. Cérebrale Ant. : \r\n"));
}

TEST(UterineArteries, BringBothLinesForOneSideAndNoneForNone) {
    LaterExam exam = laterExam("1");
    exam.TxtUtD = QString();
    EXPECT_TRUE(
        fullText(exam).contains("Douglas : Libre\r\n\r\nDOPPLER ART. UTERINES\r\n"
                                "          Art. utérine droite : \r\n"
                                "          Art. utérine gauche : IR 0,60\r\n\r\nFOETUS\r\n"));
    exam.TxtUtG = QString();
    EXPECT_TRUE(fullText(exam).contains("Douglas : Libre\r\n\r\nFOETUS\r\n"));
    exam.TxtUtD = "IR 0,55";
    EXPECT_TRUE(fullText(exam).contains("droite : IR 0,55\r\n          Art. utérine gauche : \r\n\r\nFOETUS"));
}

TEST(SeveralFetuses, TellEveryMeasureWithoutPercentileWord) {
    LaterExam exam = laterExam("2");
    exam.fetuses[1].TxtDio = QString();
    const QString text = fullText(exam);
    EXPECT_TRUE(
        text.contains("Nombre : 2\r\nJUMEAU N°1 :\r\n          PRESENTATION : \r\n"
                      "               Céphalique\r\n\r\n          BIOMETRIE J1\r\n"
                      "               Bi-Pariétal : 54 mm\r\n"
                      "               Distance inter orbitaire : 15 mm\r\n"
                      "               Cervelet : 23 mm\r\n"
                      "               Circonférence céphalique : 198 mm\r\n"
                      "               Diamètre abdominal transverse : 50 mm\r\n"
                      "               Circonférence abdominale : 172 mm\r\n"
                      "               Pied : 38 mm\r\n               Fémur: 37 mm\r\n"
                      "               Tibia : 33 mm\r\n               Humerus : 36 mm\r\n\r\n"
                      "          ACTIVITE J1\r\n               Rythme cardiaque: 148 bat/mn\r\n"
                      "               Mouvements actifs: Présents\r\n\r\n"
                      "          MORPHOLOGIE J1\r\n               Crâne et face sans anomalie.\r\n\r\n"
                      "          DOPPLER\r\n               Artère Ombilicale : IR 0,70\r\n"
                      "               Art. Cérebrale Ant. : IR 0,80\r\n\r\nJUMEAU N°2 :\r\n"
                      "          PRESENTATION : \r\n               Siège\r\n\r\n          BIOMETRIE J2\r\n"
                      "               Bi-Pariétal : 53 mm\r\n"
                      "               Distance inter orbitaire :  mm\r\n"));
    EXPECT_TRUE(
        text.contains("Art. Cérebrale Ant. : IR 0,82\r\n\r\nLIQUIDE AMNIOTIQUE\r\n"
                      "               Quantité normale\r\n\r\nPLACENTA\r\n               Fundique\r\n\r\n"
                      "CONCLUSION\r\n               Croissance harmonieuse.\r\n\r\n\r\n\r\nDr MARCHAND le"));
    EXPECT_FALSE(text.contains("50ème p"));
    EXPECT_FALSE(text.contains("Transverse"));
}

TEST(SeveralFetuses, OfThreeCarryTheMarksOfTheirNumber) {
    const QString text = fullText(laterExam("3"));
    for (const int k : {1, 2, 3}) {
        for (const char* group :
             {"BIOMETRIE T%1\r\n", "ACTIVITE T%1\r\n", "MORPHOLOGIE T%1\r\n", "TRIPLE N°%1 :\r\n"}) {
            EXPECT_EQ(text.count(QString(group).arg(k)), 1) << group << k;
        }
    }
    EXPECT_TRUE(text.contains("Nombre : 3\r\nTRIPLE N°1 :\r\n          PRESENTATION"));
    EXPECT_TRUE(text.contains("IR 0,82\r\n\r\nTRIPLE N°3 :\r\n          PRESENTATION : \r\n               Transverse"));
    EXPECT_TRUE(text.contains("MORPHOLOGIE T3\r\n               Rachis vu.\r\n\r\n"));
}

TEST(SeveralFetuses, KeepTheirDopplerEmptyToo) {
    LaterExam exam = laterExam("2");
    exam.fetuses[0].TxtArtO = exam.fetuses[0].TxtArtC = QString();
    EXPECT_TRUE(
        fullText(exam).contains("DOPPLER\r\n               Artère Ombilicale : \r\n"
                                "               Art. Cérebrale Ant. : \r\n\r\nJUMEAU N°2 :"));
}

TEST(LaterReport, InItsMinimumFormSaysTheFixedSentenceOfEveryFetus) {
    for (const int count : {1, 2, 3}) {
        const QString text = plain(CptRendu2T(laterExam(QString::number(count)), kMinimum, std::nullopt));
        EXPECT_EQ(text.count("Ont été examinés : la tête et ses structures, l'abdomen et ses organes, le thorax, le "
                             "rachis et les membres. Il n'a pas été mis en évidence d'anomalie compte tenu des limites "
                             "actuelles de l'échographie, de la position foetale, des conditions maternelles et des "
                             "circonstances de l'examen."),
                  count);
        EXPECT_FALSE(text.contains("Crâne"));
        EXPECT_EQ(text.count("Artère Ombilicale : IR"), count);
    }
}

TEST(LaterReport, ReadsTheCountAsAWholeNumber) {
    const auto fetuses = [](const char* count) { return fullText(laterExam(count)).count("PRESENTATION"); };
    EXPECT_EQ(fetuses("-1"), 0);
    EXPECT_EQ(fetuses("0"), 0);
    EXPECT_EQ(fetuses("0,5"), 0);
    EXPECT_EQ(fetuses("1"), 1);
    EXPECT_EQ(fetuses("1,5"), 2);
    EXPECT_EQ(fetuses("2,5"), 2);
    EXPECT_EQ(fetuses(" 3 "), 3);
    EXPECT_EQ(fetuses("3,5"), 0);
    EXPECT_EQ(fetuses("12"), 0);
}

TEST(LaterReport, GoesStraightToTheLiquidAfterAnUnusualCount) {
    for (const char* count : {"0", "4"}) {
        EXPECT_TRUE(fullText(laterExam(count))
                        .contains("FOETUS\r\n          LIQUIDE AMNIOTIQUE\r\n               Quantité normale\r\n\r\n"))
            << count;
    }
}

TEST(LaterReport, FailsOnACountThatIsNoNumber) {
    for (const char* count : {"", "deux"}) {
        const Report report = CptRendu2T(laterExam(count), kFull, std::nullopt);
        EXPECT_EQ(report.failure, base::ErrorNumber::TypeMismatch) << count;
        EXPECT_TRUE(plain(report).endsWith("FOETUS\r\n          ")) << count;
    }
    EXPECT_EQ(CptRendu2T(laterExam("40000"), kFull, std::nullopt).failure, base::ErrorNumber::Overflow);
}

}  // namespace
}  // namespace reports
