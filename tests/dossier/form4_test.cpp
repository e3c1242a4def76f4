#include "dossier/form4.h"

#include <gtest/gtest.h>

#include <QFile>

#include "dossier/dossier_window.h"

namespace dossier {
namespace {

TEST_F(DossierWindow, ShowsNoPatientAtLoadAndStandsOnThemAllBySurname) {
    Form4& form = open();
    EXPECT_EQ(form.NomLbl.text(), "");
    EXPECT_EQ(form.LstCiv.count(), 0);
    EXPECT_EQ(state_.SqlNom, "SELECT*FROM FICHEPATIENT ORDER BY NOM");
    EXPECT_EQ(state_.Rs.text("Nom"), "ALBERT");
    EXPECT_FALSE(form.Command3.enabled());
    EXPECT_FALSE(form.Command4.enabled());
    EXPECT_FALSE(form.CmdEnregATCD.enabled());
}

TEST_F(DossierWindow, CarriesItsTitleAndCaptions) {
    const Form4& form = open();
    EXPECT_EQ(form.title(), "VERANOX 3.11");
    EXPECT_EQ(form.Frame5.text(), "Rechercher  Un Dossier");
    EXPECT_EQ(form.Command1.text(), "&Debut");
    EXPECT_EQ(form.Command2.text(), "&Fin");
    EXPECT_EQ(form.Command3.text(), "&<");
    EXPECT_EQ(form.Command4.text(), "&>");
    EXPECT_EQ(form.Frame2.text(), "Nouvelle Echographie");
    EXPECT_EQ(form.Cmd1Ter.text(), "&1 er Ter");
    EXPECT_EQ(form.Cmd2Ter.text(), "&2 -3 ème Ter");
    EXPECT_EQ(form.CmdGyneco.text(), "&Gyneco");
    EXPECT_EQ(form.Frame3.text(), "Revoir un Compte Rendu Obstétrical");
    EXPECT_EQ(form.Frame6.text(), "Revoir un Compte Rendu Gynéco");
    EXPECT_EQ(form.CmdCreeDossier.text(), "&Nouveau");
    EXPECT_EQ(form.CmdModifie.text(), "&Modifier");
    EXPECT_EQ(form.CmdSupprime.text(), "&Supprimer");
    EXPECT_EQ(form.CmdATCD.text(), "Informations");
    EXPECT_EQ(form.CmdEnregATCD.text(), "Enregistrer les Informations");
    EXPECT_EQ(form.CmdQuitter.text(), "&Quitter");
    EXPECT_EQ(form.Menu.text(), "Menu");
}

TEST_F(DossierWindow, HoldsItsControlsInTheirFrames) {
    const Form4& form = open();
    const QList<std::pair<const forms::Frame*, QStringList>> frames{
        {&form.Frame5, {"Text1", "Text2"}},
        {&form.Frame2, {"Cmd1Ter", "Cmd2Ter", "CmdGyneco"}},
        {&form.Frame3, {"HlbCptDate", "HlbCptDer", "List1"}},
        {&form.Frame6, {"Command6", "Command5", "List2"}},
        {&form.Frame4, {"TxtEta", "TxtNom", "TxtAdress", "TxtVille", "TxtTel"}}};
    for (const auto& [frame, names] : frames) {
        for (const QString& name : names) {
            EXPECT_EQ(form.find(name)->holder(), frame) << name.toStdString();
        }
    }
}

TEST_F(DossierWindow, ReadsThePathsFromTheSettings) {
    open();
    EXPECT_EQ(state_.PathEcho, world_.folder.filePath("ECHO.MDB"));
    EXPECT_EQ(state_.PathNom, world_.folder.filePath("NOM.MDB"));
    EXPECT_EQ(state_.PathAtcd, world_.folder.filePath("ATCD.MDB"));
    EXPECT_EQ(state_.PathEchotek, world_.folder.filePath("ECHOTEK.MDB"));
    EXPECT_EQ(state_.WorkEcho, state_.PathEcho);
    EXPECT_EQ(state_.WorkNom, state_.PathNom);
    EXPECT_EQ(state_.WorkAtcd, state_.PathAtcd);
}

TEST_F(DossierWindow, ReadsTheLetterheadAndTheLastRowWins) {
    letterhead(19, "Centre d'échographie");
    letterhead(20, "Dr Un");
    letterhead(20, "Dr Deux");
    letterhead(21, "3, rue des Lilas");
    letterhead(22, "Villefranche");
    letterhead(23, "04 00 00 00 00");
    Form4& form = open();
    EXPECT_EQ(form.TxtEta.text(), "Centre d'échographie");
    EXPECT_EQ(form.TxtNom.text(), "Dr Deux");
    EXPECT_EQ(form.TxtAdress.text(), "3, rue des Lilas");
    EXPECT_EQ(form.TxtVille.text(), "Villefranche");
    EXPECT_EQ(form.TxtTel.text(), "Tél :   04 00 00 00 00");
}

TEST_F(DossierWindow, AMissingBaseFailsTheLoadAndMakesNoFile) {
    QFile::remove(world_.folder.filePath("NOM.MDB"));
    world_.desk.act([&] { world_.desk.show("Form4"); });
    EXPECT_EQ(world_.boxes.reported, QList<int>({3024}));
    EXPECT_EQ(world_.desk.peek("Form4"), nullptr);
    EXPECT_FALSE(QFile::exists(world_.folder.filePath("NOM.MDB")));
}

TEST_F(DossierWindow, SearchesTheNearestSurnameAtEachKeystroke) {
    Form4& form = open();
    type(form.Text1, "d");
    EXPECT_EQ(shown(form), "5 D'ALMEIDA Inès");
    type(form.Text1, "up");
    EXPECT_EQ(form.Text1.text(), "DUP");
    EXPECT_EQ(shown(form), "3 DUPONT Anne");
    EXPECT_EQ(state_.SqlNom, "SELECT*FROM FICHEPATIENT ORDER BY NOM, PRENOM");
}

TEST_F(DossierWindow, ShowsTheFirstNameAtOrAfterWhatIsTypedEvenIfNoneBeginsWithIt) {
    EXPECT_EQ(shown(openOn("DUQ")), "6 MARTIN Paul");
}

TEST_F(DossierWindow, ReachesANameWithAnApostropheWithoutTypingIt) {
    Form4& form = open();
    type(form.Text1, "d'alm");
    EXPECT_EQ(form.Text1.text(), "DALM");
    EXPECT_EQ(shown(form), "5 D'ALMEIDA Inès");
}

TEST_F(DossierWindow, FiltersTheKeysOfTheFirstNameAlike) {
    Form4& form = openOn("DUP");
    type(form.Text2, "d'a-z2");
    EXPECT_EQ(form.Text2.text(), "DA-Z2");
}

TEST_F(DossierWindow, KeepsAccentedLettersAsTheyAreTyped) {
    Form4& form = open();
    type(form.Text2, "é");
    EXPECT_EQ(form.Text2.text(), "é");
}

TEST_F(DossierWindow, SaysThatANamePastTheLastOneDoesNotExistAndKeepsTheDisplay) {
    Form4& form = openOn("MARTIN");
    form.Text1.setText("MARTINZ");
    EXPECT_EQ(world_.boxes.said, QStringList({"Ce Nom n'existe pas"}));
    EXPECT_EQ(shown(form), "6 MARTIN Paul");
    EXPECT_EQ(form.Text1.text(), "MARTINZ");
}

TEST_F(DossierWindow, EmptyingTheSurnameSearchChangesNothingOnDisplay) {
    Form4& form = openOn("MARTIN");
    form.Text1.setText("");
    EXPECT_EQ(shown(form), "6 MARTIN Paul");
    EXPECT_TRUE(world_.boxes.said.isEmpty());
}

TEST_F(DossierWindow, AChangeOfTheSurnameResetsTheHistoryAndEnablesBrowsing) {
    Form4& form = open();
    form.TxtATCD.setText("un texte");
    form.CmdEnregATCD.setEnabled(true);
    form.CmdEnregATCD.setText("Enregistré");
    form.Text1.setText("A");
    EXPECT_EQ(form.TxtATCD.text(), "");
    EXPECT_FALSE(form.CmdEnregATCD.enabled());
    EXPECT_EQ(form.CmdEnregATCD.text(), "Enregistrer les Informations");
    EXPECT_TRUE(form.Command3.enabled());
    EXPECT_TRUE(form.Command4.enabled());
}

TEST_F(DossierWindow, APastedQuoteEndsInTheDefaultReport) {
    Form4& form = open();
    world_.desk.act([&] { form.Text1.setText("D'A"); });
    EXPECT_EQ(world_.boxes.reported, QList<int>({3075}));
    EXPECT_EQ(form.NomLbl.text(), "");
}

TEST_F(DossierWindow, TheFirstNameSearchWalksTheNamesakes) {
    Form4& form = openOn("DUP");
    form.Text2.setText("M");
    EXPECT_EQ(shown(form), "2 DUPONT Marie");
    form.Command4.click();
    EXPECT_EQ(shown(form), "2 DUPONT Marie");
    form.Command3.click();
    EXPECT_EQ(shown(form), "3 DUPONT Anne");
    form.Command3.click();
    EXPECT_EQ(shown(form), "3 DUPONT Anne");
    form.Command1.click();
    form.Command4.click();
    EXPECT_EQ(shown(form), "5 D'ALMEIDA Inès");
}

TEST_F(DossierWindow, TheFirstNameSearchWithoutAPatientSearchesSurnames) {
    Form4& form = open();
    form.Text2.setText("MAR");
    EXPECT_EQ(shown(form), "6 MARTIN Paul");
    EXPECT_EQ(state_.SqlNom, "SELECT*FROM FICHEPATIENT ORDER BY NOM");
}

TEST_F(DossierWindow, AFirstNameBeyondTheLastKeepsTheCursorWhereItOpenedAndSaysNothing) {
    Form4& form = openOn("DUP");
    form.Text2.setText("ZZZ");
    EXPECT_EQ(shown(form), "3 DUPONT Anne");
    EXPECT_TRUE(world_.boxes.said.isEmpty());
}

TEST_F(DossierWindow, TheFirstNameSearchOnASurnameWithAnApostropheEndsInTheDefaultReport) {
    Form4& form = openOn("DALM");
    world_.desk.act([&] { form.Text2.setText("I"); });
    EXPECT_EQ(world_.boxes.reported, QList<int>({3075}));
}

TEST_F(DossierWindow, TheFirstNameSearchEnablesBrowsing) {
    Form4& form = open();
    form.Text2.setText("MAR");
    EXPECT_TRUE(form.Command3.enabled());
    EXPECT_TRUE(form.Command4.enabled());
}

TEST_F(DossierWindow, ShowsThePatientUnderTheCursor) {
    addPatient(world_, 7, "ZOLA", "Ève", {{"CIVILITEE", "Madame"}, {"NOMJF", "ROUX"}});
    const Form4& form = openOn("ZOLA");
    EXPECT_EQ(form.NumLbl.text(), "7");
    EXPECT_EQ(form.LblCivilite.text(), "Madame");
    EXPECT_EQ(form.NomLbl.text(), "ZOLA");
    EXPECT_EQ(form.PrenomLbl.text(), "Ève");
    EXPECT_EQ(form.LstCiv.items().first(), "Née          : ROUX");
}

TEST_F(DossierWindow, TheFirstNameSearchDoesNotResetTheHistory) {
    Form4& form = openOn("DUP");
    form.TxtATCD.setText("un texte");
    form.Text2.setText("M");
    EXPECT_EQ(form.TxtATCD.text(), "un texte");
}

TEST_F(DossierWindow, TheFocusOnTheSurnameEmptiesTheFirstNameAndRunsItsSearch) {
    Form4& form = openOn("DUP");
    form.Text2.setFocus();
    form.Text2.setText("M");
    form.Text1.setFocus();
    EXPECT_EQ(form.Text2.text(), "");
    EXPECT_EQ(shown(form), "3 DUPONT Anne");
}

TEST_F(DossierWindow, TheEndsReopenTheWholeTableBySurname) {
    Form4& form = open();
    form.Command2.click();
    EXPECT_EQ(shown(form), "6 MARTIN Paul");
    form.Command1.click();
    EXPECT_EQ(shown(form), "4 ALBERT Zoé");
    EXPECT_EQ(state_.SqlNom, "SELECT*FROM FICHEPATIENT ORDER BY NOM");
}

TEST_F(DossierWindow, BrowsingStopsAtTheEnds) {
    Form4& form = open();
    form.Command1.click();
    form.Command3.click();
    EXPECT_EQ(shown(form), "4 ALBERT Zoé");
    form.Command4.click();
    EXPECT_EQ(shown(form), "5 D'ALMEIDA Inès");
    form.Command2.click();
    form.Command4.click();
    EXPECT_EQ(shown(form), "6 MARTIN Paul");
}

TEST_F(DossierWindow, EachBrowsingButtonResetsTheHistory) {
    Form4& form = openOn("DUP");
    for (forms::Button* button : {&form.Command1, &form.Command2, &form.Command3, &form.Command4}) {
        form.TxtATCD.setText("un texte");
        form.CmdEnregATCD.setEnabled(true);
        form.CmdEnregATCD.setText("Enregistré");
        button->click();
        EXPECT_EQ(form.TxtATCD.text(), "");
        EXPECT_FALSE(form.CmdEnregATCD.enabled());
        EXPECT_EQ(form.CmdEnregATCD.text(), "Enregistrer les Informations");
    }
}

TEST_F(DossierWindow, TheEndsBringTheHiddenBrowsingButtonsBack) {
    Form4& form = open();
    form.Command3.hide();
    form.Command4.hide();
    form.Command1.click();
    EXPECT_TRUE(form.Command3.visible() && form.Command4.visible());
    EXPECT_TRUE(form.Command3.enabled() && form.Command4.enabled());
    form.Command3.hide();
    form.Command2.click();
    EXPECT_TRUE(form.Command3.visible());
}

TEST_F(DossierWindow, TheArrowKeysWalkWithoutResettingTheHistory) {
    Form4& form = open();
    form.Command1.click();
    form.TxtATCD.setText("un texte");
    form.Text1.onKeyDown(forms::Key::Right);
    EXPECT_EQ(shown(form), "5 D'ALMEIDA Inès");
    form.Text2.onKeyDown(forms::Key::Left);
    EXPECT_EQ(shown(form), "4 ALBERT Zoé");
    EXPECT_EQ(form.TxtATCD.text(), "un texte");
}

TEST_F(DossierWindow, ListsTheObstetricExamsInTheirOrderAndLeavesTheCursorOnCivilites) {
    exams();
    Form4& form = openOn("DUP");
    form.Command4.click();
    form.HlbCptDate.click();
    EXPECT_EQ(form.List1.items(), QStringList({"10/01/2002", "12/03/2002", "12/03/2002"}));
    EXPECT_EQ(state_.SqlEcho, "SELECT*FROM CIVILITES ORDER BY NOM, PRENOM");
    EXPECT_TRUE(state_.Rs.eof());
    EXPECT_EQ(shown(form), "2 DUPONT Marie");
}

TEST_F(DossierWindow, ListsTheGynaecologyExams) {
    exams();
    Form4& form = openOn("DUP");
    form.Command4.click();
    form.Command6.click();
    EXPECT_EQ(form.List2.items(), QStringList({"04/05/2001"}));
    EXPECT_EQ(state_.SqlEcho, "SELECT*FROM CIVILITES ORDER BY NOM, PRENOM");
}

TEST_F(DossierWindow, BrowsingAfterAListResetsTheHistoryAndOtherwiseDoesNothing) {
    exams();
    Form4& form = openOn("ALB");
    form.HlbCptDate.click();
    form.TxtATCD.setText("un texte");
    world_.desk.act([&] { form.Command4.click(); });
    EXPECT_EQ(form.TxtATCD.text(), "");
    EXPECT_EQ(shown(form), "4 ALBERT Zoé");
    form.TxtATCD.setText("un texte");
    world_.desk.act([&] { form.Text1.onKeyDown(forms::Key::Left); });
    EXPECT_EQ(form.TxtATCD.text(), "un texte");
    EXPECT_TRUE(world_.boxes.reported.isEmpty());
}

TEST_F(DossierWindow, BrowsingAfterAListWalksCivilitesIfItHoldsAny) {
    exams();
    fakes::add(world_, "CIVILITES", {{"Numint", 90}, {"Nom", "AUTRE"}, {"Prenom", "Un"}});
    Form4& form = openOn("ALB");
    form.HlbCptDate.click();
    form.Command4.click();
    EXPECT_EQ(shown(form), "90 AUTRE Un");
}

TEST_F(DossierWindow, AnEmptyListGivesNoMessageAndReopensThePatients) {
    exams();
    Form4& form = openOn("MARTIN");
    form.List1.add("reste");
    form.HlbCptDate.click();
    EXPECT_EQ(form.List1.count(), 0);
    EXPECT_TRUE(world_.boxes.said.isEmpty());
    EXPECT_EQ(state_.SqlEcho, "SELECT*FROM 1TER WHERE NUMERO=6 ORDER BY NUMECHO");
    EXPECT_EQ(state_.SqlNom, "SELECT*FROM FICHEPATIENT ORDER BY NOM");
    EXPECT_EQ(state_.Rs.text("Nom"), "ALBERT");
    form.List2.add("reste");
    form.Command6.click();
    EXPECT_EQ(form.List2.count(), 0);
    EXPECT_TRUE(world_.boxes.said.isEmpty());
    EXPECT_EQ(state_.SqlEcho, "SELECT*FROM GYNECO WHERE NUMERO=6 ORDER BY NUMECHO");
    EXPECT_EQ(state_.Rs.text("Nom"), "ALBERT");
}

TEST_F(DossierWindow, WithNoDossierTheExamButtonsAskForOne) {
    Form4& form = open();
    for (forms::Button* button : {&form.HlbCptDate, &form.HlbCptDer, &form.Command6, &form.Command5, &form.Cmd1Ter,
                                  &form.Cmd2Ter, &form.CmdGyneco}) {
        world_.boxes.said.clear();
        button->click();
        EXPECT_EQ(world_.boxes.said, QStringList({"Veuillez ouvrir un dossier patient au préalable."}));
    }
    EXPECT_TRUE(doors_.log.isEmpty());
}

TEST_F(DossierWindow, AListAskedForWithNoDossierIsClearedFirst) {
    Form4& form = open();
    form.List1.add("reste");
    form.HlbCptDate.click();
    EXPECT_EQ(form.List1.count(), 0);
}

TEST_F(DossierWindow, ClickingTheSurnameClearsTheObstetricList) {
    Form4& form = open();
    form.List1.add("10/01/2002");
    form.List2.add("04/05/2001");
    form.NomLbl.click();
    EXPECT_EQ(form.List1.count(), 0);
    EXPECT_EQ(form.List2.count(), 1);
}

TEST_F(DossierWindow, ADoubleClickShowsTheLaterOfTwoExamsOfOneDate) {
    exams();
    Form4& form = openOn("DUP");
    form.Command4.click();
    form.HlbCptDate.click();
    form.List1.setRow(1);
    form.List1.doubleClick();
    EXPECT_EQ(doors_.log, QStringList({"obstetric 3"}));
    EXPECT_EQ(state_.SqlEcho, "SELECT*FROM 1TER  WHERE NUMERO=2 ORDER BY NUMECHO");
}

TEST_F(DossierWindow, ADoubleClickShowsTheGynaecologyExamOfItsDate) {
    exams();
    addExam(world_, "GYNECO", 2, 2, "06/07/2001");
    addExam(world_, "GYNECO", 2, 3, "06/07/2001");
    Form4& form = openOn("DUP");
    form.Command4.click();
    form.Command6.click();
    for (const int row : {1, 0}) {
        form.List2.setRow(row);
        form.List2.doubleClick();
    }
    EXPECT_EQ(doors_.log, QStringList({"gynaecology 3", "gynaecology 1"}));
    EXPECT_EQ(state_.SqlEcho, "SELECT*FROM GYNECO  WHERE NUMERO=2 ORDER BY NUMECHO");
}

TEST_F(DossierWindow, TheLastExamButtonsShowTheHighestNumber) {
    exams();
    Form4& form = openOn("DUP");
    form.Command4.click();
    form.HlbCptDer.click();
    form.Command5.click();
    EXPECT_EQ(doors_.log, QStringList({"obstetric 3", "gynaecology 1"}));
}

TEST_F(DossierWindow, TheExamsAreReachedAgainAfterABackupHasClosedTheirBase) {
    exams();
    Form4& form = openOn("ALB");
    state_.DbEcho.close();
    form.HlbCptDate.click();
    EXPECT_EQ(form.List1.items(), QStringList({"01/01/2002"}));
    state_.DbEcho.close();
    form.HlbCptDer.click();
    EXPECT_EQ(doors_.log, QStringList({"obstetric 1"}));
}

TEST_F(DossierWindow, ADateThatIsGoneIsToldAndThePatientsAreReopened) {
    exams();
    Form4& form = openOn("MARTIN");
    form.List1.add("10/01/2002");
    form.List1.setRow(0);
    form.List1.doubleClick();
    form.List2.add("04/05/2001");
    form.List2.setRow(0);
    form.List2.doubleClick();
    form.HlbCptDer.click();
    form.Command5.click();
    EXPECT_EQ(world_.boxes.said,
              QStringList({"Pas d'échographie 1er Ter dans ce dossier", "Pas d'échographie Pelvienne dans ce dossier",
                           "Pas d'échographie  dans ce dossier", "Pas d'échographie  dans ce dossier"}));
    EXPECT_TRUE(doors_.log.isEmpty());
    EXPECT_EQ(state_.Rs.text("Nom"), "ALBERT");
}

TEST_F(DossierWindow, ADoubleClickWithNoDossierDoesNothing) {
    Form4& form = open();
    form.List1.add("10/01/2002");
    form.List1.setRow(0);
    form.List1.doubleClick();
    EXPECT_TRUE(world_.boxes.said.isEmpty());
    EXPECT_TRUE(doors_.log.isEmpty());
}

TEST_F(DossierWindow, ADoubleClickInAnEmptyListDoesNothing) {
    Form4& form = openOn("DUP");
    form.List1.doubleClick();
    EXPECT_TRUE(world_.boxes.said.isEmpty());
}

TEST_F(DossierWindow, StartsAnExamOfEachFamily) {
    Form4& form = openOn("DUP");
    form.Cmd1Ter.click();
    form.Cmd2Ter.click();
    form.CmdGyneco.click();
    EXPECT_EQ(doors_.log, QStringList({"new 0", "new 1", "new 2"}));
}

TEST_F(DossierWindow, NamesANewExamAfterTheCurrentRecord) {
    openOn("DUP").AFFICHE_1();
    EXPECT_EQ(doors_.log, QStringList({"DUPONT/Anne"}));
}

TEST_F(DossierWindow, QuitterAndMenuGoBackToTheMainMenu) {
    for (const char* button : {"CmdQuitter", "Menu"}) {
        Form4& form = open();
        world_.desk.hide("Form1");
        world_.desk.act([&] { form.find(QString(button))->click(); });
        EXPECT_EQ(world_.desk.peek("Form4"), nullptr);
        EXPECT_TRUE(world_.desk.peek("Form1")->shown());
    }
}

TEST_F(DossierWindow, ClosingItsFrameGoesBackToTheMainMenu) {
    Form4& form = open();
    world_.desk.act([&] { form.close(); });
    EXPECT_TRUE(world_.desk.peek("Form1")->shown());
}

TEST_F(DossierWindow, ClearingTheDisplayKeepsTheNumber) {
    Form4& form = openOn("DUP");
    form.TxtATCD.setText("un texte");
    form.clearDisplay();
    EXPECT_EQ(shown(form), "3  ");
    EXPECT_EQ(form.LstCiv.count(), 0);
    EXPECT_EQ(form.TxtATCD.text(), "");
}

}  // namespace
}  // namespace dossier
