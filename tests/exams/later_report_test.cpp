#include <QDir>
#include <QFile>

#include "exams/exam_windows.h"

namespace exams {
namespace {

/// An exam of 22 weeks, whose measures lie in classes of their own each.
const fakes::Fields kMeasured{
    {"DATEXAM", "05/04/2002"},
    {"DDR", "01/11/2001"},
    {"DG", "15/11/2001"},
    {"DGUS", "16/11/2001"},
    {"AGESTA", "22,0"},
    {"BMI", "22,4"},
    {"NBRE", "1"},
    {"NUQUE", "Céphalique"},
    {"Bip", "54"},
    {"DIO", "15"},
    {"CERV", "25"},
    {"Cc", "176"},
    {"Dat", "45"},
    {"Ca", "196"},
    {"Pied", "40"},
    {"Fem", "36"},
    {"TIBIA", "33"},
    {"Hum", "35"},
    {"OSNEZ", "7"},
    {"AC", "148"},
    {"MA", "Présents"},
    {"MORPHO", "Crâne"},
    {"MORPHO2", "Tête"},
    {"MORPHO3", "Face"},
    {"LA", "Normal"},
    {"PL", "Fundique"},
    {"CONCLU1", "Bonne"},
    {"OPERATEUR", "Dr MARCHAND"},
};

class LaterReportOnShow : public ExamWindows {
protected:
    reports::RicheT& editor() { return desk().at<reports::RicheT>(); }
    QString report() { return editor().RichTextBox1.text(); }
    Form10& showMeasured(const fakes::Fields& more = {}) {
        addLater(2, 1, "05/04/2002", kMeasured + more);
        return viewLastLater();
    }
    void writeIntroduction(const QString& text) {
        QFile file(world_.folder.filePath("intro"));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(('"' + text + "\"\r\n").toUtf8());
    }
};

TEST_F(LaterReportOnShow, IsTypedFromTheButtonAndFromTheMenu) {
    Form10& form = showMeasured();
    for (int way = 0; way < 2; ++way) {
        way == 0 ? press(form.Command1) : press(form.imprimer);
        EXPECT_TRUE(shown("RicheT"));
        EXPECT_TRUE(shown("Form10"));
        EXPECT_EQ(editor().title(), "Impression Echo 2ème 3ème trimestre");
        EXPECT_TRUE(report().contains("ECHOGRAPHIE du 2°- 3° Ter\r\n"));
        desk().unload("RicheT");
    }
}

TEST_F(LaterReportOnShow, TellsTheExamWithTheWordsOfItsWeek) {
    press(showMeasured().Command1);
    EXPECT_TRUE(
        report().contains("BMI : 22,4\r\nDate de l'examen : 05/04/2002\r\n"
                          "Date des dernières règles : 01/11/2001\r\n"
                          "Début présumé de la grossesse : 15/11/2001\r\n"
                          "Début de grossesse (US) : 16/11/2001\r\nAge gestationnel : 22,0 Sem. A.\r\n\r\n"));
    EXPECT_TRUE(
        report().contains("Nombre : 1\r\n          PRESENTATION : \r\n               Céphalique\r\n"
                          "          BIOMETRIE\r\n"
                          "               Bi-Pariétal : 54 mm. (50 ème Percentile).\r\n"
                          "               Distance inter orbitaire : 15 mm.\r\n"
                          "               Cervelet : 25 mm. (90 ème à 97 ème Percentile).\r\n"
                          "               Circonférence céphalique : 176 mm. ().\r\n"
                          "               Diamètre abdominal transverse : 45 mm. (3 ème à 10 ème Percentile).\r\n"
                          "               Circonférence abdominale : 196 mm. (> 97 ème Percentile).\r\n"
                          "               Pied : 40 mm. (> 50 ème Percentile).\r\n"
                          "               Fémur: 36 mm. (10 ème à 50 ème Percentile).\r\n"
                          "               Tibia : 33 mm.\r\n               Humerus : 35 mm\r\n\r\n"
                          "          ACTIVITE\r\n               Rythme cardiaque: 148 bat/mn\r\n"
                          "               Mouvements actifs: Présents\r\n\r\n"
                          "          MORPHOLOGIE\r\n\r\n               Crâne\r\n\r\n\r\n\r\n"
                          "LIQUIDE AMNIOTIQUE\r\n               Normal\r\n\r\n"
                          "PLACENTA\r\n               Fundique\r\n\r\n"
                          "CONCLUSION\r\n               Bonne\r\n\r\n\r\n\r\nDr MARCHAND le 05/04/2002"));
    EXPECT_FALSE(report().contains("7 mm"));
}

TEST_F(LaterReportOnShow, HasNoWordsWithoutAStartByUltrasound) {
    press(showMeasured({{"DGUS", ""}}).Command1);
    EXPECT_TRUE(report().contains("Bi-Pariétal : 54 mm. ().\r\n"));
}

TEST_F(LaterReportOnShow, HasTheWordsOfTheExamThatIsSteppedTo) {
    showMeasured();
    addLater(2, 2, "05/04/2002", kMeasured + fakes::Fields{{"Bip", "47"}});
    press(viewLastLater().Command1);
    EXPECT_TRUE(report().contains("Bi-Pariétal : 47 mm. (< 3 ème Percentile).\r\n"));
    desk().unload("RicheT");
    press(laterView().CmdRec);
    press(laterView().Command1);
    EXPECT_TRUE(report().contains("Bi-Pariétal : 54 mm. (50 ème Percentile).\r\n"));
}

TEST_F(LaterReportOnShow, ReadsWhatStandsInTheWindowNotTheRecord) {
    Form10& form = showMeasured();
    write(form.TxtPied(0), "39");
    press(form.Command1);
    EXPECT_TRUE(report().contains("Pied : 39 mm. (50 ème Percentile).\r\n"));
}

TEST_F(LaterReportOnShow, HasTheWordsOfTheFirstFetusWhicheverIsInView) {
    Form10& form = showMeasured({{"NBRE", "2"}, {"Bip2", "60"}});
    press(form.CmdJ2);
    write(form.TxtNbrE, "1");
    press(form.Command1);
    EXPECT_TRUE(report().contains("Bi-Pariétal : 54 mm. (50 ème Percentile).\r\n"));
}

TEST_F(LaterReportOnShow, TellsEachOfThreeFetusesWithItsMorphology) {
    press(
        showMeasured({{"NBRE", "3"}, {"NUQUE3", "Siège"}, {"FEM3", "31"}, {"ARTO2", "0,7"}, {"MA2", "Vifs"}}).Command1);
    EXPECT_TRUE(report().contains("MORPHOLOGIE T1\r\n               Crâne\r\n"));
    EXPECT_TRUE(
        report().contains("MORPHOLOGIE T2\r\n               Tête\r\n\r\n          DOPPLER\r\n"
                          "               Artère Ombilicale : 0,7\r\n"));
    EXPECT_TRUE(report().contains("MORPHOLOGIE T3\r\n               Face\r\n"));
    EXPECT_TRUE(report().contains("TRIPLE N°3 :\r\n          PRESENTATION : \r\n               Siège\r\n"));
    EXPECT_TRUE(report().contains("Mouvements actifs: Vifs\r\n"));
    EXPECT_TRUE(report().contains("Fémur: 31 mm\r\n"));
}

TEST_F(LaterReportOnShow, TellsTheFieldsOfTheExamInTheirPlaces) {
    press(showMeasured({{"MACHINE", "machine"},
                        {"DATECIRC", "circ"},
                        {"INDI", "indic"},
                        {"MODEXAM", "modalites"},
                        {"CONDITIONS", "conditions"},
                        {"UTERUS", "uterus"},
                        {"ANNEXES", "annexes"},
                        {"DOUGLAS", "douglas"},
                        {"UTD", "droite"},
                        {"UTG", "gauche"},
                        {"ARTO", "ombilicale"},
                        {"ARTC", "cerebrale"}})
              .Command1);
    EXPECT_TRUE(report().contains("Appareil: machine\r\n1ère mise en service le circ\r\n\r\n\r\n"));
    EXPECT_TRUE(
        report().contains("EXAMEN\r\n          Indication : indic\r\n          Modalités : modalites\r\n"
                          "          Conditions : conditions\r\n\r\n"
                          "PELVIS\r\n          Utérus : uterus\r\n          Annexes : annexes\r\n"
                          "          Douglas : douglas\r\n\r\n"
                          "DOPPLER ART. UTERINES\r\n          Art. utérine droite : droite\r\n"
                          "          Art. utérine gauche : gauche\r\n\r\nFOETUS\r\n"));
    EXPECT_TRUE(
        report().contains("          DOPPLER\r\n               Artère Ombilicale : ombilicale\r\n"
                          "               Art. Cérebrale Ant. : cerebrale\r\n\r\n"));
}

TEST_F(LaterReportOnShow, HasTheLineEndsAloneOfAnIntroductionThatIsMissingOrCantBeRead) {
    Form10& form = showMeasured({{"DATECIRC", "circ"}});
    const QString lineEndsAlone = "service le circ\r\n\r\n\r\n\r\n\r\n\r\n               ";
    press(form.Command1);
    EXPECT_TRUE(report().contains(lineEndsAlone));
    desk().unload("RicheT");
    ASSERT_TRUE(QDir().mkdir(world_.folder.filePath("intro")));
    press(form.Command1);
    EXPECT_TRUE(report().contains(lineEndsAlone));
    EXPECT_EQ(world_.boxes.said, QStringList());
    EXPECT_EQ(world_.boxes.reported, QList<int>());
}

TEST_F(LaterReportOnShow, FollowsTheMarksOfTheMenu) {
    writeIntroduction("Bonjour.");
    Form10& form = showMeasured();
    press(form.Command1);
    EXPECT_TRUE(report().contains("Bonjour.\r\n\r\n\r\n"));
    EXPECT_TRUE(report().contains("Crâne"));
    desk().unload("RicheT");
    press(form.CptrM);
    press(form.Intro);
    press(form.Command1);
    EXPECT_FALSE(report().contains("Bonjour."));
    EXPECT_FALSE(report().contains("Crâne"));
    EXPECT_TRUE(report().contains("Ont été examinés : la tête"));
}

TEST_F(LaterReportOnShow, WithoutACountIsComposedTwiceAndReported) {
    press(showMeasured({{"NBRE", ""}}).Command1);
    EXPECT_EQ(world_.boxes.reported, QList<int>({13}));
    EXPECT_EQ(report().count("ECHOGRAPHIE du 2°- 3° Ter"), 2);
    EXPECT_TRUE(report().endsWith("FOETUS\r\n          "));
}

// The words come first: without them the editor doesn't open.
TEST_F(LaterReportOnShow, AMeasureBeyondAllBoundsIsReportedBeforeTheEditorOpens) {
    press(showMeasured({{"Bip", "99999"}}).Command1);
    EXPECT_EQ(world_.boxes.reported, QList<int>({6}));
    EXPECT_FALSE(shown("RicheT"));
}

class Biometry final : public forms::Form {
public:
    explicit Biometry(forms::Desk& desk) : Form(desk, "Form12", "Form12") {}
    forms::Label LblCBip{*this, "LblCBip"};
};

TEST_F(LaterReportOnShow, LeavesTheBiometryWindowAsItIs) {
    desk().add("Form12", [this] { return std::make_unique<Biometry>(desk()); });
    Form10& form = showMeasured();
    press(form.Command1);
    EXPECT_FALSE(desk().peek("Form12"));
    desk().unload("RicheT");
    desk().show("Form12");
    auto& biometry = static_cast<Biometry&>(*desk().peek("Form12"));
    biometry.LblCBip.setText("d'une autre");
    press(form.Command1);
    EXPECT_TRUE(shown("Form12"));
    EXPECT_EQ(biometry.LblCBip.text(), "d'une autre");
    EXPECT_TRUE(report().contains("Bi-Pariétal : 54 mm. (50 ème Percentile).\r\n"));
}

}  // namespace
}  // namespace exams
