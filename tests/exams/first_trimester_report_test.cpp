#include <QDir>
#include <QFile>

#include "exams/exam_windows.h"

namespace exams {
namespace {

/// An exam of triplets; each field holds its own name, so that none can stand for another.
const fakes::Fields kNamed{{"TYPECHO", "1"},
                           {"MACHINE", "machine"},
                           {"DATECIRC", "circ"},
                           {"BMI", "imc"},
                           {"AGESTA", "12,3"},
                           {"OPERATEUR", "qui"},
                           {"MODEXAM", "modalites"},
                           {"CONDITIONS", "conditions"},
                           {"INDI", "indic"},
                           {"UTERUS", "uterus"},
                           {"ANNEXES", "annexes"},
                           {"DOUGLAS", "douglas"},
                           {"DDR", "ddr"},
                           {"DG", "dg"},
                           {"DGUS", "dgus"},
                           {"NBRS", "7"},
                           {"SITUATION", "sac"},
                           {"ASPECT", "aspect"},
                           {"Dim", "30"},
                           {"NBRE", "3"},
                           {"LA", "liquide"},
                           {"PL", "placenta"},
                           {"CONCLU1", "conclusion"},
                           {"MA", "mouvements1"},
                           {"MA2", "mouvements2"},
                           {"MA3", "mouvements3"},
                           {"AC", "coeur1"},
                           {"AC2", "coeur2"},
                           {"AC3", "coeur3"},
                           {"LCC", "lcc1"},
                           {"LCC2", "lcc2"},
                           {"LCC3", "lcc3"},
                           {"Bip", "bip1"},
                           {"Bip2", "bip2"},
                           {"Bip3", "bip3"},
                           {"Fem", "fem1"},
                           {"FEM2", "fem2"},
                           {"FEM3", "fem3"},
                           {"NUQUE", "nuque1"},
                           {"NUQUE2", "nuque2"},
                           {"NUQUE3", "nuque3"},
                           {"OSNEZ", "opn1"},
                           {"OSNEZ2", "opn2"},
                           {"OSNEZ3", "opn3"},
                           {"MORPHO", "morphologie1"},
                           {"MORPHO2", "morphologie2"},
                           {"MORPHO3", "morphologie3"}};

class FirstTrimesterReportOnShow : public ExamWindows {
protected:
    reports::RicheT& editor() { return desk().at<reports::RicheT>(); }
    Form6& showNamed(const fakes::Fields& more = {}) {
        fakes::addPatient(world_, 4, "ROUX", "Lise", {{"CIVILITEE", "Madame"}});
        addExam(4, 1, "05/04/2002", kNamed + more);
        return viewLast("ROUX");
    }
    /// The report that a button types into an editor of its own.
    QString reportOf(forms::Button& button) {
        press(button);
        const QString text = editor().RichTextBox1.text();
        desk().unload("RicheT");
        return text;
    }
    QString introductionPath() const { return world_.folder.filePath("intro"); }
    void writeIntroduction(const QByteArray& text) {
        QFile file(introductionPath());
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(text);
    }
    bool nothingSaid() const { return world_.boxes.said.isEmpty() && world_.boxes.reported.isEmpty(); }
};

TEST_F(FirstTrimesterReportOnShow, TellsEachFieldOfTripletsInItsPlace) {
    for (const auto& [rubric, text] : {std::pair{19, "Clinique"}, {20, "Docteur"}, {21, "Rue"}, {22, "Ville"}}) {
        store(rubric, text);
    }
    const QString text = reportOf(showNamed().Command1);
    EXPECT_TRUE(text.startsWith("Clinique\r\nDocteur\r\nRue\r\nVille\r\n"));
    QString expected =
        "ECHOGRAPHIE du 1° Ter\r\nAppareil: machine\r\n1ère mise en service le circ\r\n\r\n\r\n"
        "\r\n\r\n\r\n"
        "               Madame Lise ROUX\r\n\r\n"
        "BMI : imc\r\nDate de l'examen : 05/04/2002\r\nDate des dernières règles : ddr\r\n"
        "Début présumé de la grossesse : dg\r\nDébut de grossesse (datation échographique) : dgus\r\n\r\n"
        "EXAMEN\r\n          Indication : indic\r\n          Modalités : modalites\r\n"
        "          Conditions : conditions\r\n\r\n"
        "PELVIS\r\n          Utérus : uterus\r\n          Annexes : annexes\r\n          Douglas : douglas\r\n\r\n"
        "EMBRYON\r\n          Nombre : 3\r\n\r\n";
    for (const char* k : {"1", "2", "3"}) {
        expected += QString(
                        "TRIPLE N°%1 :\r\n          BIOMETRIE\r\n"
                        "               Longueur cranio-caudale: lcc%1 mm\r\n"
                        "               Bi Pariétal: bip%1 mm\r\n               Fémur: fem%1 mm\r\n"
                        "               OPN: opn%1\r\n               Clarté nucale: nuque%1 mm\r\n"
                        "          ACTIVITE\r\n               Rythme cardiaque: coeur%1 bat/mn\r\n"
                        "               Mouvements actifs: mouvements%1\r\n"
                        "          MORPHOLOGIE\r\n               morphologie%1\r\n\r\n")
                        .arg(k);
    }
    expected +=
        "LIQUIDE AMNIOTIQUE\r\n          liquide\r\n\r\nTROPHOBLASTE ou PLACENTA\r\n          placenta\r\n\r\n"
        "CONCLUSION\r\n          conclusion\r\n"
        "          Age gestationnel estimé par échographie: 12,3 Sem. A.\r\n"
        "          Début de grossesse estimé par échographie: dgus\r\n\r\n\r\n\r\n"
        "qui le 05/04/2002";
    EXPECT_EQ(text.mid(text.indexOf("ECHOGRAPHIE")).toStdString(), expected.toStdString());
}

TEST_F(FirstTrimesterReportOnShow, OfADatingTellsEachFieldInItsPlace) {
    const QString text = reportOf(showNamed().Command2);
    EXPECT_EQ(text.mid(text.indexOf("ECHOGRAPHIE")).toStdString(),
              "ECHOGRAPHIE du 1° Ter\r\nAppareil: machine\r\n1ère mise en service le circ\r\n\r\n\r\n"
              "               Madame Lise ROUX\r\n\r\n"
              "BMI : imc\r\nDate de l'examen : 05/04/2002\r\nDate des dernières règles : ddr\r\n"
              "Début présumé de la grossesse : dg\r\nAge gestationnel présumé : A determiner.\r\n\r\n"
              "EXAMEN\r\n          Indication : indic\r\n          Modalités : modalites\r\n"
              "          Conditions : conditions\r\n\r\n"
              "SAC GESTATIONNEL :\r\n          Situation : sac\r\n          Nombre : 3\r\n"
              "          Aspect : aspect\r\n          Dimensions : 30 mm.\r\n\r\n"
              "EMBRYON :\r\n          Nombre : 3\r\n          LCC : lcc1 mm.\r\n"
              "          Activité cardiaque : coeur1\r\n          Mouvements actifs : mouvements1\r\n"
              "          Diamètre Bipariétal : bip1 mm.\r\n          Fémur : fem1 mm.\r\n\r\n"
              "TROPHOBLASTE ou PLACENTA :\r\n          placenta\r\n\r\n"
              "CONCLUSION\r\n          Age gestationnel estimé par échographie : 12,3 Sem. A.\r\n"
              "          Début de grossesse estimé par échographie : Le dgus\r\n"
              "          conclusion\r\n\r\n\r\n\r\nqui le 05/04/2002");
}

TEST_F(FirstTrimesterReportOnShow, HasATitleOfItsOwnForEachKind) {
    Form6& form = showNamed();
    const auto titleOf = [&](auto& control) {
        press(control);
        EXPECT_TRUE(shown("RicheT"));
        EXPECT_TRUE(shown("Form6"));
        return editor().title();
    };
    EXPECT_EQ(titleOf(form.Command1), "Impression Echo 1er Trimestre");
    EXPECT_EQ(titleOf(form.Command2), "Impression Echo de datation");
    EXPECT_EQ(titleOf(form.Cptrendu), "Impression Echo 1er Trimestre");
    EXPECT_EQ(titleOf(form.Datation), "Impression Echo de datation");
}

TEST_F(FirstTrimesterReportOnShow, OfADatingIsTheSameWhateverTheMarksOfTheMenu) {
    writeIntroduction("\"Bonjour.\"\r\n");
    Form6& form = showNamed();
    const QString full = reportOf(form.Command2);
    EXPECT_FALSE(full.contains("Bonjour."));
    press(form.CptrM);
    EXPECT_EQ(reportOf(form.Command2), full);
    press(form.Intro);
    EXPECT_EQ(reportOf(form.Command2), full);
}

TEST_F(FirstTrimesterReportOnShow, TakesTheLastItemOfTheIntroductionFile) {
    writeIntroduction("\"Avant.\"\r\n\"Bonjour, Madame.\"\r\n");
    const QString text = reportOf(showNamed().Command1);
    EXPECT_TRUE(text.contains("service le circ\r\n\r\n\r\nBonjour, Madame.\r\n\r\n\r\n               Madame"));
    EXPECT_FALSE(text.contains("Avant."));
}

TEST_F(FirstTrimesterReportOnShow, HasTheLineEndsAloneOfAnIntroductionThatIsMissingOrCantBeRead) {
    Form6& form = showNamed();
    const QString lineEndsAlone = "service le circ\r\n\r\n\r\n\r\n\r\n\r\n               Madame";
    EXPECT_TRUE(reportOf(form.Command1).contains(lineEndsAlone));
    ASSERT_TRUE(QDir().mkdir(introductionPath()));
    EXPECT_TRUE(reportOf(form.Command1).contains(lineEndsAlone));
    EXPECT_TRUE(nothingSaid());
}

TEST_F(FirstTrimesterReportOnShow, WithoutTheMarkHasNothingOfTheIntroduction) {
    writeIntroduction("\"Bonjour.\"\r\n");
    Form6& form = showNamed();
    press(form.Intro);
    EXPECT_TRUE(reportOf(form.Command1).contains("service le circ\r\n\r\n\r\n               Madame"));
}

TEST_F(FirstTrimesterReportOnShow, WithoutACountIsComposedTwiceAndReported) {
    press(showNamed({{"NBRE", ""}}).Command1);
    EXPECT_EQ(world_.boxes.reported, QList<int>({13}));
    EXPECT_EQ(editor().RichTextBox1.text().count("ECHOGRAPHIE du 1° Ter"), 2);
    EXPECT_TRUE(editor().RichTextBox1.text().endsWith("EMBRYON\r\n          "));
}

}  // namespace
}  // namespace exams
