#include <gtest/gtest.h>

#include "readable.h"
#include "sample_exams.h"

namespace reports {
namespace {

TEST(PelvicReport, HasThePatientWithoutBlanksBeforeHer) {
    EXPECT_TRUE(plain(CptRenduGyneco(gynaecologyExam()))
                    .startsWith("Clinique des Tilleuls\r\nDocteur Hélène MARCHAND\r\n12, rue du Vieux Pont\r\n"
                                "67000 STRASBOURG\r\nTél. 03 88 00 00 00\r\n\r\nECHOGRAPHIE PELVIENNE\r\n"
                                "Appareil: Echographe A\r\n1ère mise en service le 15/01/2001\r\n\r\n\r\n"
                                "Mme Zoé D'ALMEIDA\r\n\r\nDate de l'examen : 05/04/2002\r\n\r\nEXAMEN\r\n"));
}

TEST(PelvicReport, TellsEachFieldUnderItsCaption) {
    EXPECT_TRUE(plain(CptRenduGyneco(gynaecologyExam()))
                    .endsWith("EXAMEN\r\n          Indication : Douleurs\r\n          Modalités : Voie vaginale\r\n"
                              "          Conditions : Bonnes\r\n\r\n"
                              "UTERUS :\r\n          Situation : Antéversé\r\n          Longueur : 72 mm.\r\n"
                              "          Largeur : 41 mm.\r\n          Epaisseur : 38 mm.\r\n"
                              "          Echostructure : Homogène\r\n          Cavité : Vide\r\n"
                              "          Endomètre : Régulier\r\n          Epaisseur de l'endomètre : 7 mm.\r\n"
                              "          Dispositif intra utérin : En place\r\n          Masse : Myome fundique\r\n\r\n"
                              "OVAIRES :\r\n          Ovaire Droit : Normal\r\n          Ovaire Gauche : Kyste\r\n\r\n"
                              "TROMPES :\r\n          Trompe Droite : Non vue\r\n          Trompe Gauche : Fine\r\n\r\n"
                              "CUL DE SAC DE DOUGLAS :\r\n          Libre\r\n\r\n"
                              "MASSE PELVIENNE :\r\n          Latérale droite\r\n          4 5\r\n"
                              "          Liquidienne\r\n          Bénigne\r\n          Ovarienne\r\n\r\n"
                              "CONCLUSION\r\n          Kyste fonctionnel.\r\n\r\nDr MARCHAND le 05/04/2002"));
}

TEST(PelvicReport, WithoutAMassGoesFromTheDouglasToTheConclusion) {
    GynaecologyExam exam = gynaecologyExam();
    std::fill_n(exam.TxtGyneco.begin() + 16, 5, QString());
    EXPECT_TRUE(plain(CptRenduGyneco(exam)).contains("          Libre\r\n\r\nCONCLUSION\r\n"));
}

TEST(PelvicReport, TellsAllFiveLinesOfAMassForOneThatIsFilled) {
    for (std::size_t filled = 16; filled <= 20; ++filled) {
        GynaecologyExam exam = gynaecologyExam();
        std::fill_n(exam.TxtGyneco.begin() + 16, 5, QString());
        exam.TxtGyneco.at(filled) = "vue";
        QString expected = "MASSE PELVIENNE :\r\n";
        for (std::size_t line = 16; line <= 20; ++line) {
            expected += QString("          ") + (line == filled ? "vue" : "") + "\r\n";
        }
        EXPECT_TRUE(plain(CptRenduGyneco(exam)).contains(expected + "\r\nCONCLUSION")) << filled;
    }
}

TEST(PelvicReport, TakesABlankForAMass) {
    GynaecologyExam exam;
    exam.TxtGyneco[18] = " ";
    EXPECT_TRUE(plain(CptRenduGyneco(exam)).contains("MASSE PELVIENNE :"));
}

TEST(PelvicReport, KeepsCaptionAndUnitOfAnEmptyField) {
    EXPECT_TRUE(plain(CptRenduGyneco({})).contains("          Longueur :  mm.\r\n          Largeur :  mm.\r\n"));
}

TEST(PelvicReport, SaysNothingOfTheMonitoring) {
    const QString text = plain(CptRenduGyneco(gynaecologyExam()));
    EXPECT_FALSE(text.contains("follicules"));
    EXPECT_FALSE(text.contains("17 12 9"));
}

TEST(OvulationReport, TellsBothOvariesAndTheEndometrium) {
    EXPECT_EQ(plain(CptRenduOvulation(gynaecologyExam())),
              "Clinique des Tilleuls\r\nDocteur Hélène MARCHAND\r\n12, rue du Vieux Pont\r\n"
              "67000 STRASBOURG\r\nTél. 03 88 00 00 00\r\n\r\nMONITORAGE ECHOGRAPHIQUE DE L'OVULATION\r\n"
              "Appareil: Echographe A\r\n1ère mise en service le 15/01/2001\r\n\r\n\r\n\r\n\r\n"
              "Mme Zoé D'ALMEIDA\r\n\r\n\r\n\r\nDate de l'examen : 05/04/2002\r\n"
              "Jour de la stimulation : J9.\r\n\r\n\r\n"
              "          OVAIRE DROIT :\r\n                    Dimensions : 32\r\n"
              "                    Nombre de follicules : 3\r\n"
              "                    Taille des follicules : 17 12 9 mm.\r\n\r\n"
              "          OVAIRE GAUCHE :\r\n                    Dimensions : 28\r\n"
              "                    Nombre de follicules : 2\r\n"
              "                    Taille des follicules : 14 8 mm.\r\n\r\n"
              "          ENDOMETRE :\r\n                    Epaisseur : 10 mm.\r\n\r\n\r\n\r\n"
              "Dr MARCHAND le 05/04/2002");
}

TEST(OvulationReport, LeavesNothingBetweenTheJAndTheStopOfAnEmptyDay) {
    EXPECT_TRUE(plain(CptRenduOvulation({})).contains("Jour de la stimulation : J.\r\n"));
}

TEST(GynaecologyReports, AreTypedByTheseOperations) {
    const auto attributes = [](const Report& report) {
        QStringList found;
        for (const Operation& operation : report.operations) {
            if (const auto* alignment = std::get_if<SelAlignment>(&operation)) {
                found << QString("align %1").arg(static_cast<int>(alignment->value));
            } else if (const auto* size = std::get_if<SelFontSize>(&operation)) {
                found << QString("size %1").arg(size->points);
            } else if (const auto* bold = std::get_if<SelBold>(&operation)) {
                found << (bold->value ? "bold" : "normal");
            } else if (const auto* start = std::get_if<SelStart>(&operation)) {
                found << QString("start %1").arg(start->position);
            }
        }
        return found;
    };
    const QStringList head{"align 2", "size 14", "bold",    "size 12", "normal",  "size 14",
                           "size 10", "align 0", "size 14", "bold",    "size 12", "normal"};
    const QStringList end{"align 2", "start 0"};
    QStringList pelvic = head;
    for (int i = 0; i < 7; ++i) {
        pelvic << "bold"
               << "normal";
    }
    QStringList ovulation = head;
    for (int i = 0; i < 3; ++i) {
        ovulation << "bold"
                  << "normal";
    }
    EXPECT_EQ(attributes(CptRenduGyneco(gynaecologyExam())), pelvic + end);
    EXPECT_EQ(attributes(CptRenduOvulation(gynaecologyExam())), ovulation + end);
}

}  // namespace
}  // namespace reports
