#include "exams/form6.h"

#include <QFile>

#include "exams/exam_windows.h"

namespace exams {
namespace {

class ViewingWindow : public ExamWindows {
protected:
    void threeExams() {
        addExam(2, 1, "10/01/2002", {{"TYPECHO", "1"}, {"NBRE", "1"}, {"LCC", "20"}});
        addExam(2, 2, "11/02/2002", {{"TYPECHO", "1"}, {"NBRE", "1"}, {"LCC", "45"}});
        addExam(2, 3, "12/03/2002", {{"TYPECHO", "1"}, {"NBRE", "1"}, {"LCC", "65"}});
    }
};

TEST_F(ViewingWindow, ShowsEachFieldOfTheRecord) {
    addExam(2, 4, "12/03/2002",
            {{"TYPECHO", "1"},   {"MACHINE", "m"},    {"DATECIRC", "dc"}, {"BMI", "b"},      {"AGESTA", "12,3"},
             {"OPERATEUR", "o"}, {"MODEXAM", "mo"},   {"INDI", "i"},      {"ANNEXES", "a"},  {"NBRS", "1"},
             {"Dim", "30"},      {"NBRE", "2"},       {"PL", "p"},        {"DDR", "r"},      {"DG", "g"},
             {"DGUS", "u"},      {"CONDITIONS", "c"}, {"UTERUS", "ut"},   {"DOUGLAS", "do"}, {"SITUATION", "s"},
             {"ASPECT", "as"},   {"LA", "l"},         {"CONCLU1", "co"},  {"MA", "ma"},      {"MA2", "ma2"},
             {"MA3", "ma3"},     {"AC", "ac"},        {"AC2", "ac2"},     {"AC3", "ac3"},    {"LCC", "lc"},
             {"LCC2", "lc2"},    {"LCC3", "lc3"},     {"Bip", "bi"},      {"Bip2", "bi2"},   {"Bip3", "bi3"},
             {"Fem", "fe"},      {"FEM2", "fe2"},     {"FEM3", "fe3"},    {"NUQUE", "nu"},   {"NUQUE2", "nu2"},
             {"NUQUE3", "nu3"},  {"OSNEZ", "os"},     {"OSNEZ2", "os2"},  {"OSNEZ3", "os3"}, {"MORPHO", "mp"},
             {"MORPHO2", "mp2"}, {"MORPHO3", "mp3"}});
    const Form6& form = viewLast();
    const std::vector<std::pair<const char*, const char*>> expected{{"LblMachine", "m"},
                                                                    {"LblDateCirc", "dc"},
                                                                    {"LblIMC", "b"},
                                                                    {"LblAgeGesta", "12,3 Sem. A."},
                                                                    {"LblOperateur", "o"},
                                                                    {"LblModalites", "mo"},
                                                                    {"TxtIndic", "i"},
                                                                    {"TxtAnnexes", "a"},
                                                                    {"LblNbr", "1"},
                                                                    {"LblDim", "30"},
                                                                    {"LblNbrE", "2"},
                                                                    {"TxtPl", "p"},
                                                                    {"LblNumEcho", "4"},
                                                                    {"LblDatExam", "12/03/2002"},
                                                                    {"LblDatExamb", "12/03/2002"},
                                                                    {"LblDDR", "r"},
                                                                    {"LblDG", "g"},
                                                                    {"LblDGUS", "u"},
                                                                    {"LblConditions", "c"},
                                                                    {"TxtUterus", "ut"},
                                                                    {"TxtDouglas", "do"},
                                                                    {"LblSituation", "s"},
                                                                    {"LblAspect", "as"},
                                                                    {"TxtLA", "l"},
                                                                    {"TxtConclu1", "co"},
                                                                    {"LblNom", "DUPONT"},
                                                                    {"LblPrenom", "Marie"},
                                                                    {"LblNumInt", "2"}};
    for (const auto& [control, text] : expected) {
        EXPECT_EQ(form.find(QString(control))->text(), text) << control;
    }
    const std::vector<std::pair<const char*, const char*>> arrays{
        {"LblMA", "ma"},  {"LblAC", "ac"},    {"LblLCC", "lc"}, {"LblBip", "bi"},
        {"LblFem", "fe"}, {"LblNuque", "nu"}, {"LblOPN", "os"}, {"TxtMorpho", "mp"}};
    for (const auto& [control, text] : arrays) {
        EXPECT_EQ(form.find(QString(control), 0)->text(), text) << control;
        EXPECT_EQ(form.find(QString(control), 1)->text(), QString(text) + "2") << control;
        EXPECT_EQ(form.find(QString(control), 2)->text(), QString(text) + "3") << control;
    }
}

TEST_F(ViewingWindow, ItsControlsHaveTheirCaptionsAndTheirNumbers) {
    const std::vector<std::pair<const char*, const char*>> captions{{"Command1", "&Cpt Rendu 1T"},
                                                                    {"Command2", "Cpt &Datation"},
                                                                    {"Command3", "&Photos"},
                                                                    {"CptrD", "Compte Rendu Détaillé"},
                                                                    {"CptrM", "Compte Rendu Minimum"},
                                                                    {"Intro", "Avec Introduction"},
                                                                    {"Cptrendu", "Compte Rendu"},
                                                                    {"Datation", "Datation"},
                                                                    {"Echo1T", "Echo 1er Ter"},
                                                                    {"Echo2T", "Echo 2 - 3 ème Ter"},
                                                                    {"Frame12", "Voir les autres Echos "},
                                                                    {"CmdPrem", "1&er"},
                                                                    {"CmdRec", "&<"},
                                                                    {"CmdAv", "&>"},
                                                                    {"CmdDer", "De&r"},
                                                                    {"Frame5", "G Multiple"},
                                                                    {"CmdJ1", "J1"},
                                                                    {"CmdJ2", "J2"},
                                                                    {"CmdJ3", "J3"}};
    addExam(2, 1, "10/01/2002");
    const Form6& form = viewLast();
    for (const auto& [control, caption] : captions) {
        EXPECT_EQ(form.find(QString(control))->text(), caption) << control;
    }
    EXPECT_EQ(form.find(u"FrameJ1", 0), &form.FrameJ1);
    EXPECT_EQ(form.find(u"FrameJ2", 1), &form.FrameJ2);
    EXPECT_EQ(form.find(u"FrameJ3", 2), &form.FrameJ3);
    EXPECT_EQ(form.find(u"Frame5", 3), &form.Frame5);
}

TEST_F(ViewingWindow, CanBeReadButNotWritten) {
    threeExams();
    for (const forms::Control* control : viewLast().controls()) {
        if (control->kind() == forms::Kind::TextBox) {
            EXPECT_TRUE(static_cast<const forms::TextBox*>(control)->locked()) << control->label().toStdString();
        }
    }
}

TEST_F(ViewingWindow, FillsWithoutTheWordsBehindTheAge) {
    addExam(2, 1, "10/01/2002", {{"TYPECHO", "1"}, {"AGESTA", "12,3"}});
    Form6& form = viewLast();
    form.AFFICHEVOIR();
    EXPECT_EQ(form.LblAgeGesta.text(), "12,3");
}

TEST_F(ViewingWindow, ClosingKeepsTheMarksInTheFileAndTheMenuEntryDoesNot) {
    addExam(2, 1, "10/01/2002");
    press(viewLast().CptrM);
    press(view().Quitte);
    EXPECT_FALSE(QFile::exists(world_.folder.filePath("Settings")));
    press(viewLast().CptrM);
    press(view().CmdQuitter);
    EXPECT_TRUE(viewLast().CptrM.checked());
}

TEST_F(ViewingWindow, TheNumberOfEmbryosSetsTheButtons) {
    addExam(2, 1, "10/01/2002", {{"TYPECHO", "1"}, {"NBRE", "1"}});
    addExam(2, 2, "10/01/2002", {{"TYPECHO", "1"}, {"NBRE", "2"}});
    addExam(2, 3, "10/01/2002", {{"TYPECHO", "1"}, {"NBRE", "3"}});
    addExam(2, 4, "10/01/2002", {{"TYPECHO", "1"}, {"NBRE", "0"}});
    addExam(2, 5, "10/01/2002", {{"TYPECHO", "1"}, {"NBRE", ""}});
    viewLast();
    Form6& form = view();
    press(form.CmdPrem);
    EXPECT_FALSE(form.Frame5.visible());
    press(form.CmdAv);
    EXPECT_TRUE(form.Frame5.visible() && form.CmdJ1.visible() && form.CmdJ2.visible() && !form.CmdJ3.visible());
    press(form.CmdAv);
    EXPECT_TRUE(form.Frame5.visible() && form.CmdJ3.visible());
    press(form.CmdAv);
    EXPECT_TRUE(form.Frame5.visible());
    press(form.CmdAv);
    EXPECT_FALSE(form.Frame5.visible());
}

TEST_F(ViewingWindow, StepsThroughTheDossierAndStopsAtItsEnds) {
    threeExams();
    addExam(3, 9, "10/01/2002");
    viewLast();
    Form6& form = view();
    EXPECT_EQ(form.LblNumEcho.text(), "3");
    press(form.CmdAv);
    EXPECT_EQ(form.LblNumEcho.text(), "3");
    press(form.CmdRec);
    EXPECT_EQ(form.LblNumEcho.text(), "2");
    EXPECT_EQ(form.LblLCC(0).text(), "45");
    press(form.CmdPrem);
    press(form.CmdRec);
    EXPECT_EQ(form.LblNumEcho.text(), "1");
    press(form.CmdDer);
    EXPECT_EQ(form.LblNumEcho.text(), "3");
    EXPECT_TRUE(world_.boxes.said.isEmpty());
}

TEST_F(ViewingWindow, ADeletionLeavesTheDossierWindowOnThePatients) {
    threeExams();
    viewLast();
    press(view().CmdRec);
    Form5& writing = newExam();
    writing.sheet.Txt1Ter(26).setText("reste");
    press(viewLast().CmdRec);
    world_.boxes.answers = {true, true};
    press(view().Supprim);
    EXPECT_EQ(stored(2, "NUMECHO"), QStringList({"1", "3"}));
    EXPECT_EQ(desk().peek("Form6"), nullptr);
    EXPECT_EQ(desk().peek("Form5"), nullptr);
    EXPECT_TRUE(shown("Form4"));
    EXPECT_FALSE(shown("Form1"));
    EXPECT_EQ(desk().at<dossier::Form4>().NomLbl.text(), "");
    EXPECT_EQ(state_.SqlNom, "SELECT*FROM FICHEPATIENT ORDER BY NOM");
    EXPECT_EQ(state_.Rs.text("Nom"), "DOSSIER MODELE");
}

TEST_F(ViewingWindow, OfDuplicatesTheFirstInsertedRowIsDeleted) {
    addExam(2, 1, "10/01/2002", {{"TYPECHO", "1"}, {"CONCLU1", "premier"}});
    addExam(2, 1, "11/01/2002", {{"TYPECHO", "1"}, {"CONCLU1", "second"}});
    viewLast();
    world_.boxes.answers = {true, true};
    press(view().CmdSupprime);
    EXPECT_EQ(stored(2, "CONCLU1"), QStringList({"second"}));
}

TEST_F(ViewingWindow, EachExitUnloadsTheWindowsAndBringsAFreshDossierWindow) {
    threeExams();
    const std::vector<std::function<void()>> exits{[this] { press(view().CmdQuitter); },
                                                   [this] { press(view().Quitte); },
                                                   [this] { desk().act([this] { view().close(); }); }};
    for (const auto& leave : exits) {
        newExam();
        viewLast();
        leave();
        EXPECT_EQ(desk().peek("Form6"), nullptr);
        EXPECT_EQ(desk().peek("Form5"), nullptr);
        EXPECT_TRUE(shown("Form4"));
        EXPECT_FALSE(shown("Form1"));
        EXPECT_EQ(desk().at<dossier::Form4>().NomLbl.text(), "");
        EXPECT_TRUE(desk().at<dossier::Form4>().Command3.visible());
        EXPECT_EQ(state_.Rs.text("Nom"), "DOSSIER MODELE");
    }
    EXPECT_TRUE(world_.boxes.reported.isEmpty());
}

}  // namespace
}  // namespace exams
