#include "dossier/form3.h"

#include <gtest/gtest.h>

#include "dossier/dossier_window.h"
#include "fakes/refusing_file.h"

namespace dossier {
namespace {

using store::FileKind;

class ChangedSheet : public DossierWindow {
protected:
    // The sheet of the patient found by this surname.
    Form3& openSheet(const QString& surname) {
        click(openOn(surname).CmdModifie);
        return world_.desk.at<Form3>();
    }
    Form3& openAgain() {
        click(world_.desk.at<Form4>().CmdModifie);
        return world_.desk.at<Form3>();
    }
    void save(Form3& form, bool yes = true) {
        world_.boxes.answers = {yes};
        click(form.CmdEnreg);
    }
    bool isOpen() { return world_.desk.peek<Form3>() != nullptr; }
    // A dossier with something in every field.
    void addFull() {
        fakes::Fields fields{{"Numint", 7}, {"SEXE", "M"}, {"ALSACEMOSELLE", "O"}};
        for (const SheetRow& row : sheetRows()) {
            fields << std::pair(QString(row.field), row.stored);
        }
        fakes::add(world_, "FICHEPATIENT", fields);
    }
};

TEST_F(ChangedSheet, DoesNotOpenWithoutANumber) {
    click(open().CmdModifie);
    EXPECT_FALSE(isOpen());
}

TEST_F(ChangedSheet, ShowsEachField) {
    addFull();
    Form3& form = openSheet("LHER");
    EXPECT_TRUE(form.shown());
    EXPECT_EQ(form.title(), "Modification de la Fiche");
    for (const SheetRow& row : sheetRows()) {
        EXPECT_EQ(box(form, row.control).text(), row.stored.text()) << row.control;
    }
    EXPECT_EQ(form.sheet.TxtDatenaiss.text(), "29/02/1976");
    EXPECT_TRUE(form.sheet.OptMasc.checked());
    EXPECT_FALSE(form.sheet.OptFem.checked());
}

TEST_F(ChangedSheet, DoesNotReadTheAlsaceMark) {
    addFull();
    EXPECT_FALSE(openSheet("LHER").sheet.TxtAlsacemoselle.checked());
}

TEST_F(ChangedSheet, ShowsNullsAsNothingAndBlanksAsBlanks) {
    Form3& form = openSheet("ALB");
    for (const char* control : {"TxtDatenaiss", "TxtDatefinprisencharge", "TxtAssure", "TxtDivers4"}) {
        EXPECT_EQ(box(form, control).text(), "") << control;
    }
    EXPECT_EQ(form.sheet.TxtRue1.text(), " ");
    EXPECT_FALSE(form.sheet.OptFem.checked());
    EXPECT_FALSE(form.sheet.OptMasc.checked());
}

TEST_F(ChangedSheet, SwitchesTheFeminineOptionOn) {
    EXPECT_TRUE(openSheet("DUPONT").sheet.TxtNom.text() == u"DUPONT");
    world_.desk.act([this] { world_.desk.peek<Form3>()->close(); });
    world_.desk.at<Form4>().Text2.setText("Marie");
    EXPECT_TRUE(openAgain().sheet.OptFem.checked());
}

TEST_F(ChangedSheet, KeepsTheWindowsBehindFromInput) {
    EXPECT_TRUE(openSheet("ALB").exclusive());
}

TEST_F(ChangedSheet, WorksOnTheDossierShownAfterAListOfExams) {
    exams();
    Form4& dossier = openOn("ALB");
    click(dossier.HlbCptDate);
    click(dossier.CmdModifie);
    EXPECT_EQ(world_.desk.at<Form3>().sheet.TxtNom.text(), "ALBERT");
    EXPECT_EQ(state_.SqlNom, "SELECT*FROM FICHEPATIENT ORDER BY NOM, PRENOM");
    EXPECT_EQ(state_.Rs.text("Numint"), "4");
}

TEST_F(ChangedSheet, WorksOnTheDossierShownEvenIfAnotherTableHasItsNumber) {
    exams();
    fakes::add(world_, "CIVILITES", {{"Numint", 4}, {"Nom", "AUTRE"}});
    Form4& dossier = openOn("ALB");
    click(dossier.HlbCptDate);
    click(dossier.CmdModifie);
    EXPECT_EQ(world_.desk.at<Form3>().sheet.TxtNom.text(), "ALBERT");
}

TEST_F(ChangedSheet, WorksOnTheDossierShownAfterASearchThatFoundNothing) {
    Form4& dossier = openOn("MARTIN");
    dossier.Text1.setText("ZZZ");
    click(dossier.CmdModifie);
    EXPECT_EQ(world_.desk.at<Form3>().sheet.TxtNom.text(), "MARTIN");
}

TEST_F(ChangedSheet, LeavesTheCursorAloneThatStandsOnTheDossierShown) {
    Form4& dossier = openOn("DUPONT");
    dossier.Text2.setText("Marie");
    click(dossier.CmdModifie);
    EXPECT_EQ(state_.SqlNom, "SELECT*FROM FICHEPATIENT WHERE NOM='DUPONT' ORDER BY NOM, PRENOM");
    EXPECT_EQ(world_.desk.at<Form3>().sheet.TxtPrenom.text(), "Marie");
}

TEST_F(ChangedSheet, OfADeletedDossierOpensOnTheFirstOneByName) {
    Form4& dossier = openOn("MARTIN");
    world_.boxes.answers = {true, true};
    click(dossier.CmdSupprime);
    ASSERT_EQ(dossier.NumLbl.text(), "6");
    click(dossier.CmdModifie);
    EXPECT_EQ(world_.desk.at<Form3>().sheet.TxtNom.text(), "ALBERT");
    EXPECT_EQ(state_.SqlNom, "SELECT*FROM FICHEPATIENT ORDER BY NOM, PRENOM");
}

TEST_F(ChangedSheet, FiltersTheKeysOfTheSurnameAlone) {
    Form3& form = openSheet("ALB");
    form.sheet.TxtNom.setText("");
    type(form.sheet.TxtNom, "albert-é");
    EXPECT_EQ(form.sheet.TxtNom.text(), "ALBERT-é");
    EXPECT_FALSE(form.sheet.TxtAssure.onKey);
    EXPECT_FALSE(form.sheet.TxtDivers4.onKey);
}

TEST_F(ChangedSheet, WithoutASurnameIsRefusedAndStays) {
    Form3& form = openSheet("ALB");
    form.sheet.TxtNom.setText("");
    click(form.CmdEnreg);
    EXPECT_EQ(world_.boxes.said, QStringList({"La saisie d'un nom de patiente est obligatoire"}));
    EXPECT_TRUE(world_.boxes.asked.isEmpty());
    EXPECT_TRUE(isOpen());
    EXPECT_EQ(storedPatient(4).text("Nom"), "ALBERT");
}

TEST_F(ChangedSheet, StoresEachEntryInItsField) {
    Form3& form = openSheet("ALB");
    enterAll(form);
    form.sheet.OptFem.setChecked(true);
    form.sheet.TxtAlsacemoselle.setChecked(true);
    save(form);
    expectAllStored(4);
    EXPECT_EQ(storedPatient(4).text("SEXE"), "F");
    EXPECT_EQ(storedPatient(4).text("ALSACEMOSELLE"), "O");
    EXPECT_EQ(patientCount(), 6);
}

TEST_F(ChangedSheet, StoresABlankForEachEmptyText) {
    addFull();
    Form3& form = openSheet("LHER");
    for (const SheetRow& row : sheetRows()) {
        box(form, row.control).setText("");
    }
    form.sheet.TxtNom.setText("RESTE");
    save(form);
    const store::Recordset record = storedPatient(7);
    for (const QString& field : blankFields()) {
        EXPECT_EQ(record.field(field), store::Value(" ")) << field.toStdString();
    }
}

TEST_F(ChangedSheet, KeepsTheOldValueOfADateOrNumberThatIsNone) {
    addFull();
    Form3& form = openSheet("LHER");
    form.sheet.TxtDatenaiss.setText("31/02/1976");
    form.sheet.TxtDatefinprisencharge.setText("");
    form.sheet.TxtAssure.setText("douze");
    form.sheet.TxtDivers4.setText("");
    save(form);
    const store::Recordset record = storedPatient(7);
    EXPECT_EQ(record.field("DATENAISS").date(), QDate(1976, 2, 29));
    EXPECT_EQ(record.field("DATEFINPRISENCHARGE").date(), QDate(2003, 12, 31));
    EXPECT_EQ(record.text("ASSURE"), "0042");
    EXPECT_EQ(record.text("DIVERS4"), "7");
    EXPECT_EQ(world_.boxes.said, QStringList({"Nouvelle Fiche Enregistrée"}));
}

TEST_F(ChangedSheet, TurnsTheAlsaceMarkOffUnlessItIsTicked) {
    addFull();
    save(openSheet("LHER"));
    EXPECT_EQ(storedPatient(7).text("ALSACEMOSELLE"), "N");
}

TEST_F(ChangedSheet, WritesTheSexOnlyIfAnOptionIsOn) {
    addPatient(world_, 7, "SANS", "Sexe", {{"SEXE", "?"}});
    save(openSheet("SANS"));
    EXPECT_EQ(storedPatient(7).text("SEXE"), "?");
    Form3& form = openAgain();
    form.sheet.OptMasc.setChecked(true);
    save(form);
    EXPECT_EQ(storedPatient(7).text("SEXE"), "M");
}

TEST_F(ChangedSheet, RepeatsTheFirstAddressLineForTheBlankOfTheSecond) {
    addPatient(world_, 7, "RUE", "Une", {{"RUE1", "1, rue A"}});
    Form3& form = openSheet("RUE");
    ASSERT_EQ(form.sheet.TxtRue2.text(), " ");
    save(form);
    EXPECT_EQ(storedPatient(7).text("RUE2"), "1, rue A");
}

TEST_F(ChangedSheet, WithAnEmptiedSecondAddressLineStoresABlankThere) {
    addFull();
    Form3& form = openSheet("LHER");
    form.sheet.TxtRue2.setText("");
    save(form);
    EXPECT_EQ(storedPatient(7).text("RUE2"), " ");
    EXPECT_EQ(storedPatient(7).text("RUE1"), "8, rue de l'Été");
}

TEST_F(ChangedSheet, OnYesIsStoredAndShown) {
    Form3& form = openSheet("ALB");
    form.sheet.TxtNom.setText("ZOLA");
    QString before;
    world_.boxes.whenAsked = [&] { before = state_.Rs.text("Nom") + u'/' + storedPatient(4).text("Nom"); };
    save(form);
    EXPECT_EQ(before, "ZOLA/ALBERT");
    EXPECT_EQ(world_.boxes.asked, QStringList({"Voulez vous vraiment enregistrer cette nouvelle Fiche ?"}));
    EXPECT_EQ(world_.boxes.said, QStringList({"Nouvelle Fiche Enregistrée"}));
    EXPECT_FALSE(isOpen());
    EXPECT_TRUE(world_.desk.peek<Form4>()->shown());
    EXPECT_EQ(shown(*world_.desk.peek<Form4>()), "4 ZOLA Zoé");
    EXPECT_EQ(storedPatient(4).text("Nom"), "ZOLA");
}

TEST_F(ChangedSheet, OnNoShowsTheUnsavedValuesUntilTheCursorMoves) {
    Form3& form = openSheet("DUPONT");
    form.sheet.TxtPrenom.setText("Jamais");
    save(form, false);
    EXPECT_FALSE(isOpen());
    EXPECT_TRUE(world_.boxes.said.isEmpty());
    Form4& dossier = *world_.desk.peek<Form4>();
    EXPECT_EQ(shown(dossier), "3 DUPONT Jamais");
    EXPECT_EQ(storedPatient(3).text("Prenom"), "Anne");
    click(dossier.Command4);
    EXPECT_EQ(shown(dossier), "2 DUPONT Marie");
    click(dossier.Command3);
    EXPECT_EQ(shown(dossier), "3 DUPONT Anne");
    EXPECT_EQ(storedPatient(3).text("Prenom"), "Anne");
}

TEST_F(ChangedSheet, OfADossierThatAnotherStationDeletedStaysWithItsEntries) {
    Form3& form = openSheet("ALB");
    form.sheet.TxtNom.setText("ZOLA");
    removePatient(4);
    save(form);
    EXPECT_EQ(world_.boxes.reported, QList<int>({3167}));
    EXPECT_TRUE(isOpen());
    EXPECT_EQ(form.sheet.TxtNom.text(), "ZOLA");
}

TEST_F(ChangedSheet, ThatTheStoreRefusesStaysWithItsEntries) {
    Form3& form = openSheet("ALB");
    form.sheet.TxtNom.setText("ZOLA");
    {
        const fakes::RefusingFile refusing(fakes::pathOf(world_, FileKind::Nom), "UPDATE", "FICHEPATIENT");
        save(form);
    }
    EXPECT_EQ(world_.boxes.reported.size(), 1);
    EXPECT_TRUE(isOpen());
    EXPECT_EQ(form.sheet.TxtNom.text(), "ZOLA");
    EXPECT_EQ(state_.Rs.text("Nom"), "ALBERT");
    save(form);
    EXPECT_FALSE(isOpen());
    EXPECT_EQ(storedPatient(4).text("Nom"), "ZOLA");
}

TEST_F(ChangedSheet, CancelledOrClosedByItsFrameChangesNothing) {
    for (const bool byFrame : {false, true}) {
        Form3& form = openSheet("ALB");
        form.sheet.TxtNom.setText("ZOLA");
        world_.desk.hide("Form4");
        byFrame ? world_.desk.act([&] { form.close(); }) : click(form.CmdAnnule);
        EXPECT_FALSE(isOpen());
        EXPECT_TRUE(world_.desk.peek<Form4>()->shown());
        EXPECT_TRUE(world_.boxes.asked.isEmpty());
        EXPECT_EQ(storedPatient(4).text("Nom"), "ALBERT");
    }
}

TEST_F(ChangedSheet, WipedHoldsOneBlankInEachBoxAndCanBeSaved) {
    addFull();
    Form3& form = openSheet("LHER");
    click(form.CmdEfface);
    for (const SheetRow& row : sheetRows()) {
        EXPECT_EQ(box(form, row.control).text(), " ") << row.control;
    }
    EXPECT_TRUE(form.sheet.OptFem.checked());
    EXPECT_FALSE(form.sheet.OptMasc.checked());
    save(form);
    EXPECT_EQ(storedPatient(7).text("Nom"), " ");
    EXPECT_EQ(storedPatient(7).text("RUE2"), " ");
    EXPECT_EQ(storedPatient(7).text("SEXE"), "F");
    EXPECT_EQ(storedPatient(7).text("ASSURE"), "0042");
}

TEST_F(ChangedSheet, NamesItsButtons) {
    Form3& form = openSheet("ALB");
    EXPECT_EQ(form.CmdEnreg.text(), "&Enregistrer Quitter");
    EXPECT_EQ(form.CmdAnnule.text(), "&Annuler");
    EXPECT_EQ(form.CmdEfface.text(), "E&ffacer");
}

}  // namespace
}  // namespace dossier
