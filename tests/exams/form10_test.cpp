#include "exams/form10.h"

#include <QFile>

#include "exams/exam_windows.h"

namespace exams {
namespace {

class LaterViewingWindow : public ExamWindows {
protected:
    /// Two of each family in one sequence: 1 first, 2 later, 3 first, 4 later.
    void mixedDossier() {
        addExam(2, 1, "10/01/2002", {{"TYPECHO", "1"}, {"NBRE", "1"}, {"CONCLU1", "un"}});
        addLater(2, 2, "11/02/2002", {{"NBRE", "1"}, {"CONCLU1", "deux"}});
        addExam(2, 3, "12/03/2002", {{"TYPECHO", "1"}, {"NBRE", "1"}, {"CONCLU1", "trois"}});
        addLater(2, 4, "13/04/2002", {{"NBRE", "1"}, {"CONCLU1", "quatre"}});
    }
};

TEST_F(LaterViewingWindow, ShowsEachFieldOfTheRecord) {
    addLater(2, 4, "12/03/2002",
             {{"MACHINE", "m"},  {"DATECIRC", "dc"}, {"BMI", "b"},     {"AGESTA", "22,3"},  {"OPERATEUR", "o"},
              {"MODEXAM", "mo"}, {"INDI", "i"},      {"UTERUS", "ut"}, {"ANNEXES", "a"},    {"DOUGLAS", "do"},
              {"NBRE", "2"},     {"LA", "l"},        {"PL", "p"},      {"DDR", "r"},        {"DG", "g"},
              {"DGUS", "u"},     {"UTD", "ud"},      {"UTG", "ug"},    {"CONDITIONS", "c"}, {"CONCLU1", "co"}});
    const Form10& form = viewLastLater();
    const std::vector<std::pair<const char*, const char*>> expected{{"LblNom", "DUPONT"},
                                                                    {"LblPrenom", "Marie"},
                                                                    {"LblNumInt", "2"},
                                                                    {"LblNumEcho", "4"},
                                                                    {"TxtTypecho", "0"},
                                                                    {"LblMachine", "m"},
                                                                    {"LblDateCirc", "dc"},
                                                                    {"LblIMC", "b"},
                                                                    {"LblDatExam", "12/03/2002"},
                                                                    {"LblDatExamb", "12/03/2002"},
                                                                    {"LblDDR", "r"},
                                                                    {"LblDG", "g"},
                                                                    {"LblDGUS", "u"},
                                                                    {"LblAgeGesta", "22,3 Sem. A."},
                                                                    {"Sem_Entier", "22,3"},
                                                                    {"TxtIndic", "i"},
                                                                    {"TxtUterus", "ut"},
                                                                    {"TxtAnnexes", "a"},
                                                                    {"TxtDouglas", "do"},
                                                                    {"LblConditions", "c"},
                                                                    {"LblOperateur", "o"},
                                                                    {"LblModalites", "mo"},
                                                                    {"TxtNbrE", "2"},
                                                                    {"TxtUtD", "ud"},
                                                                    {"TxtUtG", "ug"},
                                                                    {"TxtConclu1", "co"}};
    for (const auto& [control, text] : expected) {
        EXPECT_EQ(form.find(QString(control))->text(), text) << control;
    }
    EXPECT_EQ(form.Txt1T(5).text(), "l");
    EXPECT_EQ(form.Txt1T(6).text(), "p");
    EXPECT_TRUE(shown("Form10"));
    EXPECT_FALSE(shown("Form6"));
}

TEST_F(LaterViewingWindow, ShowsTheFieldsOfEachFetus) {
    // The control and the field of the first fetus, and what the others' fields end in.
    const std::vector<std::tuple<const char*, const char*, const char*, const char*>> fields{
        {"TxtPres", "NUQUE", "NUQUE2", "NUQUE3"},
        {"CmbMa", "MA", "MA2", "MA3"},
        {"TxtAC", "AC", "AC2", "AC3"},
        {"TxtBip", "BIP", "BIP2", "BIP3"},
        {"TxtCc", "CC", "CC2", "CC3"},
        {"TxtCerv", "CERV", "CERV2", "CERV3"},
        {"TxtDio", "DIO", "DIO2", "DIO3"},
        {"TxtDat", "DAT", "DAT2", "DAT3"},
        {"TxtCa", "CA", "CA2", "CA3"},
        {"TxtFem", "FEM", "FEM2", "FEM3"},
        {"TxtPied", "PIED", "PIED2", "PIED3"},
        {"TxtTibia", "TIBIA", "TIBIA2", "TIBIA3"},
        {"TxtHum", "HUM", "HUM2", "HUM3"},
        {"TxtNez", "OSNEZ", "OSNEZ2", "OSNEZ3"},
        {"TxtArtO", "ARTO", "ARTO2", "ARTO3"},
        {"TxtArtC", "ARTC", "ARTC2", "ARTC3"}};
    fakes::Fields record;
    for (const auto& [control, first, second, third] : fields) {
        for (const char* field : {first, second, third}) {
            record << std::pair(QString(field), store::Value(QString("~%1").arg(field)));
        }
    }
    addLater(2, 1, "12/03/2002", record);
    const Form10& form = viewLastLater();
    for (const auto& [control, first, second, third] : fields) {
        EXPECT_EQ(form.find(QString(control), 0)->text(), QString("~") + first);
        EXPECT_EQ(form.find(QString(control), 1)->text(), QString("~") + second);
        EXPECT_EQ(form.find(QString(control), 2)->text(), QString("~") + third);
    }
}

TEST_F(LaterViewingWindow, KeepsTheMorphologiesInAnOrderOfTheirOwn) {
    addLater(2, 1, "12/03/2002", {{"MORPHO", "premier"}, {"MORPHO2", "second"}, {"MORPHO3", "troisième"}});
    Form10& form = viewLastLater();
    EXPECT_EQ(form.Txt1T(4).text(), "premier");
    EXPECT_EQ(form.Txt1T(0).text(), "second");
    EXPECT_EQ(form.Txt1T(1).text(), "troisième");
    EXPECT_EQ(form.Txt1T(4).holder(), &form.FrameJ1);
    EXPECT_EQ(form.Txt1T(0).holder(), &form.FrameJ2);
    EXPECT_EQ(form.Txt1T(1).holder(), &form.FrameJ3);
}

TEST_F(LaterViewingWindow, ItsFramesHaveTheirNumbers) {
    addLater(2, 1, "12/03/2002");
    const Form10& form = viewLastLater();
    EXPECT_EQ(form.find(u"FrameJ1", 0), &form.FrameJ1);
    EXPECT_EQ(form.find(u"FrameJ2", 1), &form.FrameJ2);
    EXPECT_EQ(form.find(u"FrameJ3", 1), &form.FrameJ3);
    EXPECT_EQ(form.find(u"Frame5", 3), &form.Frame5);
}

TEST_F(LaterViewingWindow, ItsControlsHaveTheirCaptions) {
    addLater(2, 1, "12/03/2002");
    const std::vector<std::pair<const char*, const char*>> captions{{"CmdBiometrie", "&Biometrie"},
                                                                    {"Command1", "&Cpt Rendu"},
                                                                    {"Command2", "&Photos"},
                                                                    {"Frame12", "Voir les autres Echos "},
                                                                    {"CmdPrem", "1&er"},
                                                                    {"CmdRec", "&<"},
                                                                    {"CmdAv", "&>"},
                                                                    {"CmdDer", "De&r"},
                                                                    {"Ter1", "1 er Ter"},
                                                                    {"Ter2", "2 - 3 ème Ter"},
                                                                    {"CptrD", "Compte Rendu détaillé"},
                                                                    {"CptrM", "Compte Rendu Minimum"},
                                                                    {"Intro", "Avec Introduction"},
                                                                    {"Frame5", "G Multiple"},
                                                                    {"CmdJ1", "J1"},
                                                                    {"CmdJ2", "J2"},
                                                                    {"CmdJ3", "J3"}};
    const Form10& form = viewLastLater();
    for (const auto& [control, caption] : captions) {
        EXPECT_EQ(form.find(QString(control))->text(), caption) << control;
    }
    for (const forms::Menu* entry : {&form.CptrD, &form.CptrM, &form.Intro}) {
        EXPECT_EQ(entry->holder(), &form.TypeCptR);
    }
}

TEST_F(LaterViewingWindow, ThePresentationTheFootAndTheNumberAloneCanBeOvertyped) {
    addLater(2, 1, "12/03/2002");
    const QStringList open{"TxtPied", "TxtPres", "TxtNbrE"};
    for (const forms::Control* control : viewLastLater().controls()) {
        if (control->kind() == forms::Kind::TextBox) {
            EXPECT_EQ(static_cast<const forms::TextBox*>(control)->locked(), !open.contains(control->name()))
                << control->label().toStdString();
        } else if (control->kind() == forms::Kind::ComboBox) {
            EXPECT_TRUE(static_cast<const forms::ComboBox*>(control)->locked()) << control->label().toStdString();
        }
    }
}

TEST_F(LaterViewingWindow, WhatIsOvertypedIsLostAtTheNextDisplay) {
    addLater(2, 1, "12/03/2002", {{"NBRE", "1"}, {"Pied", "40"}});
    Form10& form = viewLastLater();
    write(form.TxtPied(0), "99");
    write(form.TxtNbrE, "3");
    EXPECT_EQ(form.TxtNbrE.text(), "3");
    press(form.CmdDer);
    EXPECT_EQ(form.TxtPied(0).text(), "40");
    EXPECT_EQ(form.TxtNbrE.text(), "1");
    EXPECT_EQ(stored(2, "Pied"), QStringList({"40"}));
}

TEST_F(LaterViewingWindow, TheKindOfExamNamesIt) {
    int number = 0;
    for (const char* kind : {"0", "2", "3", "7"}) {
        addExam(2, ++number, "12/03/2002", {{"TYPECHO", kind}});
    }
    Form10& form = viewLastLater();
    // Of an unknown kind: the heading is left as it stood.
    EXPECT_EQ(form.Label1.text(), "Echographie du  3éme  Trimestre");
    press(form.CmdPrem);
    EXPECT_EQ(form.Label1.text(), "Echographie Obstétricale");
    press(form.CmdAv);
    EXPECT_EQ(form.Label1.text(), "Echographie du 2ème Trimestre");
    press(form.CmdAv);
    EXPECT_EQ(form.Label1.text(), "Echographie du 3ème Trimestre");
    press(form.CmdAv);
    EXPECT_EQ(form.LblNumEcho.text(), "4");
    EXPECT_EQ(form.Label1.text(), "Echographie du 3ème Trimestre");
}

TEST_F(LaterViewingWindow, NamesAnExamOfTheFirstTrimesterThatReachedItByOtherMeans) {
    addExam(2, 1, "12/03/2002", {{"TYPECHO", "1"}});
    dossierOf("DUPONT");
    state_.Rs = state_.DbEcho.openRecordset("SELECT*FROM 1TER WHERE NUMERO=2 ORDER BY NUMECHO");
    laterView().display();
    EXPECT_EQ(laterView().Label1.text(), "Echographie du 1er Trimestre");
}

TEST_F(LaterViewingWindow, OpensForEachKindButOne) {
    int number = 0;
    for (const store::Value& kind : {store::Value("0"), store::Value("2"), store::Value("3"), store::Value("9"),
                                     store::Value(""), store::Value(), store::Value("x")}) {
        addExam(2, ++number, "12/03/2002", {{"TYPECHO", kind}});
        viewLastLater();
        EXPECT_TRUE(shown("Form10")) << number;
        EXPECT_FALSE(shown("Form6")) << number;
    }
    addExam(2, ++number, "12/03/2002", {{"TYPECHO", "1"}});
    viewLast();
    EXPECT_TRUE(shown("Form6"));
    EXPECT_FALSE(shown("Form10"));
}

TEST_F(LaterViewingWindow, TheNumberOfFetusesSetsTheButtons) {
    int number = 0;
    for (const char* count : {"1", "2", "3", "4", "0", "", "deux"}) {
        addLater(2, ++number, "10/01/2002", {{"NBRE", count}});
    }
    Form10& form = viewLastLater();
    press(form.CmdPrem);
    EXPECT_FALSE(form.Frame5.visible());
    press(form.CmdAv);
    EXPECT_TRUE(form.Frame5.visible() && form.CmdJ1.visible() && form.CmdJ2.visible() && !form.CmdJ3.visible());
    press(form.CmdAv);
    EXPECT_TRUE(form.Frame5.visible() && form.CmdJ3.visible());
    press(form.CmdAv);
    EXPECT_TRUE(form.Frame5.visible() && form.CmdJ3.visible());
    for (int i = 0; i < 3; ++i) {
        press(form.CmdAv);
        EXPECT_FALSE(form.Frame5.visible()) << form.TxtNbrE.text().toStdString();
    }
}

TEST_F(LaterViewingWindow, SteppingCrossesBetweenTheFamilies) {
    mixedDossier();
    addLater(3, 9, "13/04/2002");
    viewLastLater();
    EXPECT_TRUE(shown("Form10"));
    EXPECT_EQ(laterView().TxtConclu1.text(), "quatre");
    press(laterView().CmdRec);
    EXPECT_TRUE(shown("Form6"));
    EXPECT_FALSE(shown("Form10"));
    EXPECT_EQ(view().TxtConclu1.text(), "trois");
    press(view().CmdRec);
    EXPECT_TRUE(shown("Form10"));
    EXPECT_FALSE(shown("Form6"));
    EXPECT_EQ(laterView().TxtConclu1.text(), "deux");
    press(laterView().CmdPrem);
    EXPECT_TRUE(shown("Form6"));
    EXPECT_EQ(view().TxtConclu1.text(), "un");
    press(view().CmdAv);
    EXPECT_EQ(laterView().TxtConclu1.text(), "deux");
    press(laterView().CmdAv);
    EXPECT_EQ(view().TxtConclu1.text(), "trois");
    press(view().CmdDer);
    EXPECT_TRUE(shown("Form10"));
    EXPECT_EQ(laterView().TxtConclu1.text(), "quatre");
    EXPECT_TRUE(world_.boxes.said.isEmpty());
    EXPECT_TRUE(world_.boxes.reported.isEmpty());
}

TEST_F(LaterViewingWindow, SteppingStopsAtTheEnds) {
    addLater(2, 1, "10/01/2002", {{"CONCLU1", "un"}});
    addLater(2, 2, "10/01/2002", {{"CONCLU1", "deux"}});
    Form10& form = viewLastLater();
    press(form.CmdAv);
    EXPECT_EQ(form.TxtConclu1.text(), "deux");
    press(form.CmdRec);
    press(form.CmdRec);
    EXPECT_EQ(form.TxtConclu1.text(), "un");
    EXPECT_TRUE(world_.boxes.said.isEmpty());
}

TEST_F(LaterViewingWindow, ADoubleClickOnADateOfTheListShowsTheLaterOfTwo) {
    addExam(2, 1, "10/01/2002", {{"TYPECHO", "1"}});
    addLater(2, 2, "10/01/2002", {{"CONCLU1", "second"}});
    auto& dossier = dossierOf("DUPONT");
    press(dossier.HlbCptDate);
    ASSERT_EQ(dossier.List1.items(), QStringList({"10/01/2002", "10/01/2002"}));
    dossier.List1.setRow(0);
    desk().act([&] { dossier.List1.doubleClick(); });
    EXPECT_TRUE(shown("Form10"));
    EXPECT_EQ(laterView().TxtConclu1.text(), "second");
}

TEST_F(LaterViewingWindow, ADeletionLeavesTheDossierWindowOnThePatients) {
    mixedDossier();
    viewLastLater();
    world_.boxes.answers = {true, true};
    press(laterView().Supprim);
    EXPECT_EQ(stored(2, "NUMECHO"), QStringList({"1", "2", "3"}));
    EXPECT_EQ(desk().peek("Form10"), nullptr);
    EXPECT_TRUE(shown("Form4"));
    EXPECT_FALSE(shown("Form1"));
    EXPECT_EQ(desk().at<dossier::Form4>().NomLbl.text(), "");
    EXPECT_EQ(state_.SqlNom, "SELECT*FROM FICHEPATIENT ORDER BY NOM");
    EXPECT_EQ(state_.Rs.text("Nom"), "DOSSIER MODELE");
}

TEST_F(LaterViewingWindow, EachExitUnloadsTheWindowsAndBringsAFreshDossierWindow) {
    mixedDossier();
    const std::vector<std::function<void()>> exits{[this] { press(laterView().CmdQuitter); },
                                                   [this] { press(laterView().fermer); },
                                                   [this] { desk().act([this] { laterView().close(); }); }};
    for (const auto& leave : exits) {
        viewLastLater();
        press(laterView().CmdRec);
        press(view().CmdAv);
        leave();
        for (const char* gone : {"Form10", "Form6", "Form5"}) {
            EXPECT_EQ(desk().peek(gone), nullptr) << gone;
        }
        EXPECT_TRUE(shown("Form4"));
        EXPECT_FALSE(shown("Form1"));
        EXPECT_EQ(desk().at<dossier::Form4>().NomLbl.text(), "");
        EXPECT_EQ(state_.Rs.text("Nom"), "DOSSIER MODELE");
    }
    EXPECT_TRUE(world_.boxes.reported.isEmpty());
}

TEST_F(LaterViewingWindow, LeavingTheFirstFamilysWindowTakesItAlong) {
    mixedDossier();
    viewLastLater();
    press(laterView().CmdRec);
    press(view().CmdQuitter);
    EXPECT_EQ(desk().peek("Form10"), nullptr);
    EXPECT_EQ(desk().peek("Form6"), nullptr);
    EXPECT_TRUE(shown("Form4"));
    EXPECT_TRUE(world_.boxes.reported.isEmpty());
}

TEST_F(LaterViewingWindow, ClosingKeepsTheMarksInTheFile) {
    addLater(2, 1, "10/01/2002");
    press(viewLastLater().CptrM);
    press(laterView().Intro);
    press(laterView().CmdQuitter);
    EXPECT_EQ(settings(), "\"Vrai\",\"Faux\",\"Faux\",\"Vrai\",\"Vrai\",\"Faux\",\"Faux\"\r\n");
    EXPECT_TRUE(viewLastLater().CptrM.checked());
    EXPECT_FALSE(laterView().Intro.checked());
}

TEST_F(LaterViewingWindow, TheMenuEntriesThatCloseLeaveTheFileAloneWhicheverWindowsGoAlong) {
    mixedDossier();
    viewLastLater();
    press(laterView().CmdRec);
    press(view().CptrM);
    press(view().CmdAv);
    press(laterView().CptrM);
    press(laterView().fermer);
    EXPECT_FALSE(QFile::exists(world_.folder.filePath("Settings")));
    viewLastLater();
    press(laterView().CptrM);
    press(laterView().CmdRec);
    press(view().Quitte);
    EXPECT_FALSE(QFile::exists(world_.folder.filePath("Settings")));
}

TEST_F(LaterViewingWindow, LeavingAWritingWindowHidesTheSteppingOfBothUntilAnEndIsAskedFor) {
    mixedDossier();
    viewLastLater();
    press(laterView().Hlb1T);
    press(desk().at<Form5>().CmdQuitter);
    for (const ObstetricView* form :
         {static_cast<ObstetricView*>(&view()), static_cast<ObstetricView*>(&laterView())}) {
        EXPECT_FALSE(form->CmdRec.visible());
        EXPECT_FALSE(form->CmdAv.visible());
        EXPECT_TRUE(form->CmdPrem.visible() && form->CmdDer.visible());
    }
    press(laterView().CmdPrem);
    for (const ObstetricView* form :
         {static_cast<ObstetricView*>(&view()), static_cast<ObstetricView*>(&laterView())}) {
        EXPECT_TRUE(form->CmdRec.visible() && form->CmdAv.visible());
    }
}

TEST_F(LaterViewingWindow, LeadsToItsBiometry) {
    addLater(2, 1, "10/01/2002");
    addBare("Form12");
    Form10& form = viewLastLater();
    for (const auto& lead : std::initializer_list<std::function<void()>>{[&] { press(form.CmdBiometrie); },
                                                                         [&] { press(form.Biometrie); }}) {
        lead();
        EXPECT_TRUE(shown("Form12"));
        desk().unload("Form12");
    }
}

TEST_F(LaterViewingWindow, SteppingClosesItsBiometryAndCurvesAndACorrectionDoesNot) {
    mixedDossier();
    const std::array names{"Form12", "Form13"};
    for (const char* name : names) {
        addBare(name);
    }
    const auto open = [&] {
        viewLastLater();
        for (const char* name : names) {
            desk().act([&] { desk().show(name); });
        }
    };
    const auto gone = [&] { return !loaded("Form12") && !loaded("Form13"); };
    for (forms::Button ObstetricView::*step :
         {&ObstetricView::CmdPrem, &ObstetricView::CmdRec, &ObstetricView::CmdAv, &ObstetricView::CmdDer}) {
        open();
        press(laterView().*step);
        EXPECT_TRUE(gone());
    }
    open();
    press(laterView().CmdModifs);
    world_.boxes.answers = {true};
    press(desk().at<Form11>().CmdModifs);
    EXPECT_TRUE(loaded("Form12") && loaded("Form13"));
    press(laterView().CmdQuitter);
    EXPECT_TRUE(gone());
}

TEST_F(LaterViewingWindow, AWritingWindowClosesTheBiometryAsItGoes) {
    mixedDossier();
    addBare("Form12");
    addBare("Form13");
    viewLastLater();
    press(laterView().Ter2);
    desk().act([&] { desk().show("Form12"); });
    desk().act([&] { desk().show("Form13"); });
    press(desk().at<Form8>().CmdQuitter);
    EXPECT_FALSE(loaded("Form12") || loaded("Form13"));
    EXPECT_TRUE(shown("Form10"));
}

}  // namespace
}  // namespace exams
