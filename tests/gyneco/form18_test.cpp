#include "gyneco/form18.h"

#include "gyneco/gynaecology_windows.h"

namespace gyneco {
namespace {

using GynaecologyView = GynaecologyWindows;

constexpr forms::Color kBlueGreen = 0xC0FFFF;

TEST_F(GynaecologyView, ShowsEachFieldInItsOwnPlace) {
    addExam(2, 3, "11/02/2002", namedFields());
    const Form18& form = viewLast();
    const std::vector<std::pair<const forms::Control*, QString>> expected{
        {&form.LblNom, "DUPONT"},
        {&form.LblPrenom, "Marie"},
        {&form.LblNumInt, "2"},
        {&form.TxtNumEcho, "3"},
        {&form.LblMachine, "MACHINE"},
        {&form.LblDateCirc, "DATECIRC"},
        {&form.CmbMedecin, "OPERATEUR"},
        {&form.TxtDdr, "DDR"},
        {&form.CmbModExam, "MODEXAM"},
        {&form.TxtDate, "11/02/2002"},
        {&form.LblDatExamb, "11/02/2002"},
        {&form.CmbCondExam, "CONDITIONS"},
        {&form.TxtGyneco(0), "INDI"},
        {&form.TxtGyneco(1), "SITUATION"},
        {&form.TxtGyneco(2), "LONGUEUR"},
        {&form.TxtGyneco(3), "LARG"},
        {&form.TxtGyneco(4), "EPAIS"},
        {&form.TxtGyneco(5), "STRUCTURE"},
        {&form.TxtGyneco(6), "CAVITE"},
        {&form.TxtGyneco(7), "ENDO"},
        {&form.TxtGyneco(8), "EENDO"},
        {&form.TxtGyneco(9), "DIU"},
        {&form.TxtGyneco(10), "MASSE"},
        {&form.TxtGyneco(11), "OVD"},
        {&form.TxtGyneco(12), "OVG"},
        {&form.TxtGyneco(13), "TD"},
        {&form.TxtGyneco(14), "TG"},
        {&form.TxtGyneco(15), "DOUGLAS"},
        {&form.TxtGyneco(16), "SITUA"},
        {&form.TxtGyneco(17), "DIMENSIONS"},
        {&form.TxtGyneco(18), "STRUCT"},
        {&form.TxtGyneco(19), "NAT"},
        {&form.TxtGyneco(20), "ORIGINE"},
        {&form.TxtGyneco(21), "CONCLU"},
        {&form.TxtJStim, "JSTIM"},
        {&form.TxtDimD, "DIMOVD"},
        {&form.TxtNbrFolD, "NBRFOLD"},
        {&form.TxtTFolD, "DIMFOLD"},
        {&form.TxtDimG, "DIMOVG"},
        {&form.TxtNbrFolG, "NBRFOLG"},
        {&form.TxtTFolG, "DIMFOLG"},
        {&form.TxtEndom, "ENDOMETRE"},
        {&form.Text1, "DOP1"},
        {&form.Text2, "DOP2"},
    };
    for (const auto& [control, text] : expected) {
        EXPECT_EQ(control->text(), text) << control->label().toStdString();
    }
}

TEST_F(GynaecologyView, ItsControlsHaveTheirCaptions) {
    const std::vector<std::pair<const char*, const char*>> captions{
        {"Label1", "Echographie Pelvienne"},
        {"CmdPrem", "1&er"},
        {"CmdRec", "&<"},
        {"CmdAv", "&>"},
        {"CmdDer", "De&r"},
        {"CmdModifs", "&Modifier"},
        {"CmdSupprime", "&Supprimer"},
        {"Command2", "M. &Ovulation"},
        {"Command3", "Echo. &Pelv."},
        {"CmdCptGyn", "&Cpt Rendu"},
        {"CmdCptStim", "Cpt &Rendu"},
        {"Command1", "Pho&tos"},
        {"CreeEcho", "&Créer Echo"},
        {"Frame3", "Utérus"},
        {"Frame4", "Annexes"},
        {"Frame5", "Douglas"},
        {"Frame6", "Masse"},
        {"Frame7", "Conclusion"},
    };
    addExam(2, 1, "11/02/2002");
    const Form18& form = viewLast();
    for (const auto& [control, caption] : captions) {
        EXPECT_EQ(form.find(QString(control))->text(), caption) << control;
    }
}

TEST_F(GynaecologyView, NoFieldTakesAKey) {
    addExam(2, 1, "11/02/2002");
    for (const forms::Control* control : viewLast().controls()) {
        if (control->kind() == forms::Kind::TextBox) {
            EXPECT_TRUE(static_cast<const forms::TextBox*>(control)->locked()) << control->label().toStdString();
        } else if (control->kind() == forms::Kind::ComboBox) {
            EXPECT_TRUE(static_cast<const forms::ComboBox*>(control)->locked()) << control->label().toStdString();
        }
    }
}

TEST_F(GynaecologyView, TheLastExamIsTheOneWithTheHighestNumber) {
    addExam(2, 2, "11/02/2002", {{"CONCLU", "Deux"}});
    addExam(2, 1, "10/01/2002", {{"CONCLU", "Une"}});
    EXPECT_EQ(viewLast().TxtGyneco(21).text(), "Deux");
}

TEST_F(GynaecologyView, ADossierWithoutSuchAnExamSaysSo) {
    fakes::addExam(world_, "1TER", 2, 1, "11/02/2002");
    press(dossierOf("DUPONT").Command5);
    EXPECT_EQ(world_.boxes.said, QStringList({"Pas d'échographie  dans ce dossier"}));
    EXPECT_FALSE(loaded("Form18"));
    EXPECT_TRUE(state_.Rs.standsOn("FICHEPATIENT"));
}

TEST_F(GynaecologyView, TheListOfTheDossierShowsTheDatesAndADoubleClickTheExam) {
    addExam(2, 1, "10/01/2002", {{"CONCLU", "Une"}});
    addExam(2, 2, "11/02/2002", {{"CONCLU", "Deux"}});
    addExam(2, 3, "11/02/2002", {{"CONCLU", "Trois"}});
    auto& window = dossierOf("DUPONT");
    press(window.Command6);
    EXPECT_EQ(window.List2.items(), QStringList({"10/01/2002", "11/02/2002", "11/02/2002"}));
    twice(window.List2, "10/01/2002");
    EXPECT_EQ(view().TxtGyneco(21).text(), "Une");
    EXPECT_EQ(view().LblNom.text(), "DUPONT");
    // Two exams of one day are one target: the later one.
    twice(window.List2, "11/02/2002");
    EXPECT_EQ(view().TxtGyneco(21).text(), "Trois");
}

TEST_F(GynaecologyView, ADateThatIsNoLongerThereIsReported) {
    addExam(2, 1, "10/01/2002");
    auto& window = dossierOf("DUPONT");
    press(window.Command6);
    query("SELECT*FROM GYNECO WHERE NUMERO=2And NUMECHO=1").remove();
    twice(window.List2, "10/01/2002");
    EXPECT_EQ(world_.boxes.said, QStringList({"Pas d'échographie Pelvienne dans ce dossier"}));
    EXPECT_FALSE(loaded("Form18"));
}

TEST_F(GynaecologyView, StepsThroughTheDossierAndStopsAtItsEdges) {
    addExams({"10/01/2002", "11/02/2002", "12/03/2002"});
    addExam(3, 4, "01/04/2002");
    Form18& form = viewLast();
    const auto step = [&](forms::Button& button) {
        press(button);
        return form.TxtNumEcho.text() + ' ' + form.TxtDate.text();
    };
    EXPECT_EQ(step(form.CmdAv), "3 12/03/2002");
    EXPECT_EQ(step(form.CmdRec), "2 11/02/2002");
    EXPECT_EQ(step(form.CmdRec), "1 10/01/2002");
    EXPECT_EQ(step(form.CmdRec), "1 10/01/2002");
    EXPECT_EQ(step(form.CmdDer), "3 12/03/2002");
    EXPECT_EQ(step(form.CmdPrem), "1 10/01/2002");
    EXPECT_EQ(step(form.CmdAv), "2 11/02/2002");
    EXPECT_TRUE(world_.boxes.said.isEmpty());
}

TEST_F(GynaecologyView, StepsAlsoWhenTheCursorStandsElsewhere) {
    addExams({"10/01/2002", "11/02/2002"});
    Form18& form = viewLast();
    desk().at<dossier::Form4>().reopenPatients();
    press(form.CmdRec);
    EXPECT_EQ(form.TxtNumEcho.text(), "1");
    desk().at<dossier::Form4>().reopenPatients();
    press(form.CmdAv);
    EXPECT_EQ(form.TxtNumEcho.text(), "2");
}

void expectPelvicFrames(const Form18& form, bool visible) {
    const Pages& pages = form.pages;
    for (const forms::Frame* frame : {&pages.Frame3, &pages.Frame4, &pages.Frame5, &pages.Frame6, &pages.Frame7}) {
        EXPECT_EQ(frame->visible(), visible) << frame->name().toStdString();
    }
}

void expectPelvic(const Form18& form) {
    EXPECT_EQ(form.pages.Label1.text(), "Echographie Pelvienne");
    EXPECT_EQ(form.pages.Label1.back(), std::nullopt);
    EXPECT_TRUE(form.CmdCptGyn.visible());
    EXPECT_FALSE(form.CmdCptStim.visible());
    EXPECT_TRUE(form.Command2.visible());
    EXPECT_FALSE(form.Command3.visible());
    EXPECT_FALSE(form.pages.Frame8.visible());
    expectPelvicFrames(form, true);
}

void expectMonitoring(const Form18& form) {
    EXPECT_EQ(form.pages.Label1.text(), "Monitorage de l'ovulation");
    EXPECT_EQ(form.pages.Label1.back(), kBlueGreen);
    EXPECT_EQ(form.pages.Frame2.back(), kBlueGreen);
    EXPECT_FALSE(form.CmdCptGyn.visible());
    EXPECT_TRUE(form.CmdCptStim.visible());
    EXPECT_TRUE(form.Command3.visible());
    EXPECT_TRUE(form.pages.Frame8.visible());
    expectPelvicFrames(form, false);
}

TEST_F(GynaecologyView, TheButtonsTurnThePage) {
    addExam(2, 1, "10/01/2002", {{"JSTIM", "9"}});
    Form18& form = viewLast();
    expectPelvic(form);
    EXPECT_EQ(form.pages.Frame2.back(), std::nullopt);
    press(form.Command2);
    expectMonitoring(form);
    EXPECT_FALSE(form.Command2.visible());
    press(form.Command3);
    expectPelvic(form);
    // Only the way there paints the common frame.
    EXPECT_EQ(form.pages.Frame2.back(), kBlueGreen);
}

TEST_F(GynaecologyView, TheMenuTurnsThePageAndLeavesTheButtonThere) {
    addExam(2, 1, "10/01/2002");
    Form18& form = viewLast();
    press(form.MonOv);
    expectMonitoring(form);
    EXPECT_TRUE(form.Command2.visible());
    press(form.EchoPelv);
    expectPelvic(form);
}

TEST_F(GynaecologyView, ThePageStaysInViewFromExamToExam) {
    addExams({"10/01/2002", "11/02/2002"});
    Form18& form = viewLast();
    press(form.Command2);
    press(form.CmdRec);
    EXPECT_EQ(form.TxtNumEcho.text(), "1");
    expectMonitoring(form);
}

TEST_F(GynaecologyView, EachReportHasItsButtonAndItsMenuEntry) {
    addExam(2, 1, "10/01/2002");
    Form18& form = viewLast();
    const auto title = [&](auto& control) {
        press(control);
        const QString found = desk().at<reports::RicheT>().title();
        desk().unload("RicheT");
        return found;
    };
    EXPECT_EQ(title(form.CmdCptGyn), "Impression Echo Pelvienne");
    EXPECT_EQ(title(form.EchoP), "Impression Echo Pelvienne");
    EXPECT_EQ(title(form.CmdCptStim), "Impression Monitorage Ovulation");
    EXPECT_EQ(title(form.Monito), "Impression Monitorage Ovulation");
}

TEST_F(GynaecologyView, ThePelvicReportTellsTheExamOnShow) {
    for (const auto& [rubric, text] : {std::pair{19, "Clinique"}, {20, "Docteur"}, {21, "Rue"}, {22, "Ville"}}) {
        store(rubric, text);
    }
    addExam(2, 3, "11/02/2002", namedFields());
    press(viewLast().CmdCptGyn);
    EXPECT_TRUE(shown("RicheT"));
    EXPECT_TRUE(shown("Form18"));
    const QString text = desk().at<reports::RicheT>().RichTextBox1.text();
    EXPECT_TRUE(text.startsWith("Clinique\r\nDocteur\r\nRue\r\nVille\r\n\r\n\r\nECHOGRAPHIE PELVIENNE\r\n"));
    const QStringList expected{"Appareil: MACHINE",
                               "1ère mise en service le DATECIRC",
                               "Marie DUPONT",
                               "Date de l'examen : 11/02/2002",
                               "          Indication : INDI",
                               "          Modalités : MODEXAM",
                               "          Conditions : CONDITIONS",
                               "          Situation : SITUATION",
                               "          Longueur : LONGUEUR mm.",
                               "          Largeur : LARG mm.",
                               "          Epaisseur : EPAIS mm.",
                               "          Echostructure : STRUCTURE",
                               "          Cavité : CAVITE",
                               "          Endomètre : ENDO",
                               "          Epaisseur de l'endomètre : EENDO mm.",
                               "          Dispositif intra utérin : DIU",
                               "          Masse : MASSE",
                               "          Ovaire Droit : OVD",
                               "          Ovaire Gauche : OVG",
                               "          Trompe Droite : TD",
                               "          Trompe Gauche : TG",
                               "CUL DE SAC DE DOUGLAS :\r\n          DOUGLAS",
                               "          SITUA\r\n          DIMENSIONS\r\n          STRUCT\r\n          NAT\r\n"
                               "          ORIGINE",
                               "CONCLUSION\r\n          CONCLU"};
    qsizetype from = 0;
    for (const QString& line : expected) {
        const qsizetype found = text.indexOf(line + "\r\n", from);
        EXPECT_GE(found, from) << line.toStdString();
        from = found;
    }
    EXPECT_TRUE(text.endsWith("OPERATEUR le 11/02/2002"));
}

TEST_F(GynaecologyView, TheMonitoringReportTellsTheExamOnShow) {
    addExam(2, 3, "11/02/2002", namedFields());
    press(viewLast().CmdCptStim);
    EXPECT_TRUE(desk().at<reports::RicheT>().RichTextBox1.text().endsWith(
        "Date de l'examen : 11/02/2002\r\nJour de la stimulation : JJSTIM.\r\n\r\n\r\n"
        "          OVAIRE DROIT :\r\n                    Dimensions : DIMOVD\r\n"
        "                    Nombre de follicules : NBRFOLD\r\n"
        "                    Taille des follicules : DIMFOLD mm.\r\n\r\n"
        "          OVAIRE GAUCHE :\r\n                    Dimensions : DIMOVG\r\n"
        "                    Nombre de follicules : NBRFOLG\r\n"
        "                    Taille des follicules : DIMFOLG mm.\r\n\r\n"
        "          ENDOMETRE :\r\n                    Epaisseur : ENDOMETRE mm.\r\n\r\n\r\n\r\n"
        "OPERATEUR le 11/02/2002"));
}

TEST_F(GynaecologyView, AReportOfTheOtherPageIsOfferedByTheMenuWhateverIsInView) {
    addExam(2, 1, "10/01/2002", namedFields());
    Form18& form = viewLast();
    press(form.Command2);
    press(form.EchoP);
    EXPECT_TRUE(desk().at<reports::RicheT>().RichTextBox1.text().contains("ECHOGRAPHIE PELVIENNE"));
    expectMonitoring(form);
}

TEST_F(GynaecologyView, ANewExamIsOpenedFromItToo) {
    addExam(2, 4, "10/01/2002");
    Form18& form = viewLast();
    press(form.CreeEcho);
    EXPECT_TRUE(shown("Form16"));
    EXPECT_EQ(desk().at<Form16>().sheet.TxtNumEcho.text(), "5");
    press(desk().at<Form16>().CmdQuitter);
    press(form.HlbGyn);
    EXPECT_EQ(desk().at<Form16>().sheet.LblNom.text(), "DUPONT");
}

TEST_F(GynaecologyView, TheMenuEntriesCorrectAndDeleteAsTheButtonsDo) {
    addExam(2, 1, "10/01/2002");
    Form18& form = viewLast();
    press(form.Modifie);
    EXPECT_TRUE(shown("Form17"));
    press(desk().at<Form17>().CmdQuitter);
    world_.boxes.answers = {true, true};
    press(form.Supprime);
    EXPECT_TRUE(stored(2, "NUMECHO").isEmpty());
}

const QString kFirstQuestion = QStringLiteral("Voulez vous vraiment SUPPRIMER cette Echographie ?");
const QString kSecondQuestion = QStringLiteral("ATTENTION cette Echographie a être supprimée. CONTINUER ?");

TEST_F(GynaecologyView, DeletesTheExamInViewAfterTwoQuestions) {
    addExams({"10/01/2002", "11/02/2002", "12/03/2002"});
    fakes::addExam(world_, "1TER", 2, 2, "11/02/2002");
    press(viewLast().CmdRec);
    world_.boxes.answers = {true, true};
    press(view().CmdSupprime);
    EXPECT_EQ(world_.boxes.asked, QStringList({kFirstQuestion, kSecondQuestion}));
    EXPECT_EQ(stored(2, "NUMECHO"), QStringList({"1", "3"}));
    EXPECT_EQ(query("SELECT*FROM 1TER WHERE NUMERO=2 ORDER BY NUMECHO").recordCount(), 1);
    EXPECT_FALSE(loaded("Form18"));
    EXPECT_TRUE(shown("Form4"));
    EXPECT_TRUE(state_.Rs.standsOn("FICHEPATIENT"));
}

TEST_F(GynaecologyView, ANoToEitherQuestionDeletesNothing) {
    addExam(2, 1, "10/01/2002");
    viewLast();
    press(view().CmdSupprime);
    EXPECT_EQ(world_.boxes.asked, QStringList({kFirstQuestion}));
    world_.boxes.answers = {true, false};
    press(view().CmdSupprime);
    EXPECT_EQ(stored(2, "NUMECHO"), QStringList({"1"}));
    EXPECT_TRUE(shown("Form18"));
}

TEST_F(GynaecologyView, DeletingTheLastExamLeavesAnEmptyListAndFreesItsNumber) {
    addExam(2, 1, "10/01/2002");
    viewLast();
    world_.boxes.answers = {true, true};
    press(view().CmdSupprime);
    auto& window = dossierOf("DUPONT");
    EXPECT_TRUE(window.List2.items().isEmpty());
    press(window.Command6);
    EXPECT_TRUE(window.List2.items().isEmpty());
    EXPECT_EQ(newExam().sheet.TxtNumEcho.text(), "1");
}

TEST_F(GynaecologyView, ARefusingDiskKeepsTheExamInView) {
    addExam(2, 1, "10/01/2002");
    viewLast();
    const fakes::RefusingFile refusing(fakes::pathOf(world_, store::FileKind::Echo), "DELETE", "GYNECO");
    world_.boxes.answers = {true, true};
    press(view().CmdSupprime);
    EXPECT_EQ(world_.boxes.reported.size(), 1);
    EXPECT_TRUE(shown("Form18"));
    EXPECT_EQ(view().TxtNumEcho.text(), "1");
}

TEST_F(GynaecologyView, LeavingItBringsAFreshDossierWindow) {
    addExam(2, 1, "10/01/2002");
    const std::vector<std::function<void(Form18&)>> ways{
        [this](Form18& form) { press(form.CmdQuitter); },
        [this](Form18& form) { press(form.Quitte); },
        [this](Form18& form) { desk().act([&] { form.close(); }); },
    };
    for (const auto& leave : ways) {
        Form18& form = viewLast();
        press(form.CreeEcho);
        leave(form);
        EXPECT_FALSE(loaded("Form18"));
        EXPECT_FALSE(loaded("Form16"));
        EXPECT_TRUE(shown("Form4"));
        EXPECT_FALSE(shown("Form1"));
        EXPECT_EQ(desk().at<dossier::Form4>().NomLbl.text(), "");
        EXPECT_TRUE(state_.Rs.standsOn("FICHEPATIENT"));
    }
}

TEST_F(GynaecologyView, HelpAndTheAboutWindowStandInTheMenu) {
    addExam(2, 1, "10/01/2002");
    Form18& form = viewLast();
    press(form.Aide);
    EXPECT_EQ(world_.help.shown, QStringList({world_.folder.path() + "/VERANOX.HLP"}));
    press(form.APropos);
    EXPECT_TRUE(shown("Form14"));
}

}  // namespace
}  // namespace gyneco
