#include "dossier/form2.h"

#include <gtest/gtest.h>

#include "dossier/dossier_window.h"
#include "fakes/refusing_file.h"

namespace dossier {
namespace {

using store::FileKind;

class NewSheet : public DossierWindow {
protected:
    Form2& openSheet() {
        click(open().CmdCreeDossier);
        return world_.desk.at<Form2>();
    }
    // Fills in the surname alone, saves and answers the question.
    void save(Form2& form, const QString& surname, bool yes = true) {
        form.sheet.TxtNom.setText(surname);
        world_.boxes.answers = {yes};
        click(form.CmdEnreg);
    }
    bool isOpen() { return world_.desk.peek<Form2>() != nullptr; }
    bool nothingIsPending() {
        try {
            state_.Rs.update();
        } catch (const base::RuntimeError& error) {
            return error.number() == base::ErrorNumber::UpdateWithoutEdit;
        }
        return false;
    }
};

TEST_F(NewSheet, OpensOnTheHighestNumberWithAnEmptySheet) {
    Form2& form = openSheet();
    EXPECT_TRUE(form.shown());
    EXPECT_EQ(form.title(), "Nouveau Dossier");
    EXPECT_EQ(form.NumLbl.text(), "6");
    EXPECT_EQ(state_.SqlNom, "SELECT*FROM FICHEPATIENT ORDER BY NUMINT");
    EXPECT_EQ(state_.Rs.text("Numint"), "6");
    EXPECT_EQ(form.focused(), &form.sheet.TxtCivilitee);
    for (const SheetRow& row : sheetRows()) {
        EXPECT_EQ(box(form, row.control).text(), "") << row.control;
    }
    EXPECT_TRUE(form.sheet.OptFem.checked());
    EXPECT_FALSE(form.sheet.OptMasc.checked());
    EXPECT_FALSE(form.sheet.TxtAlsacemoselle.checked());
}

TEST_F(NewSheet, ClearsItsEntriesAsItOpens) {
    Form2& form = openSheet();
    enterAll(form);
    form.sheet.OptMasc.setChecked(true);
    form.sheet.TxtAlsacemoselle.setChecked(true);
    form.begin();
    for (const SheetRow& row : sheetRows()) {
        EXPECT_EQ(box(form, row.control).text(), "") << row.control;
    }
    EXPECT_TRUE(form.sheet.OptFem.checked());
    EXPECT_TRUE(form.sheet.TxtAlsacemoselle.checked());
}

TEST_F(NewSheet, OfAnEmptyTableFailsToOpen) {
    for (int number = 1; number <= 6; ++number) {
        removePatient(number);
    }
    openSheet();
    EXPECT_EQ(world_.boxes.reported, QList<int>({3021}));
}

TEST_F(NewSheet, KeepsTheWindowsBehindFromInput) {
    EXPECT_TRUE(openSheet().exclusive());
}

TEST_F(NewSheet, OffersTheGivenLists) {
    const PatientSheet& sheet = openSheet().sheet;
    EXPECT_EQ(sheet.TxtCivilitee.items(), QStringList({"Mme", "Mlle", "Madame", "Mademoiselle"}));
    EXPECT_EQ(sheet.CmbQualite.items(), QStringList({"Ascendant, descendant"}));
    EXPECT_EQ(sheet.CmbTierspayant.items(), QStringList({"Tiers Payant inconnu"}));
    for (const forms::ComboBox* combo : {&sheet.CmbVille, &sheet.CmbCodepost, &sheet.CmbDroits}) {
        EXPECT_TRUE(combo->items().isEmpty());
    }
}

TEST_F(NewSheet, NamesItsControls) {
    Form2& form = openSheet();
    EXPECT_EQ(form.CmdEnreg.text(), "&Enregistrer Quitter");
    EXPECT_EQ(form.CmdAnule.text(), "&Annuler");
    EXPECT_EQ(form.CmdEfface.text(), "E&ffacer");
    EXPECT_EQ(form.sheet.Frame2.text(), "Sexe");
    EXPECT_EQ(form.sheet.OptFem.text(), "Féminin");
    EXPECT_EQ(form.sheet.OptMasc.text(), "Masculin");
    EXPECT_EQ(form.sheet.TxtAlsacemoselle.text(), "Alsace Moselle O/N");
    const QList<std::pair<const char*, QString>> captions{{"TxtCivilitee", "Civilités"},
                                                          {"TxtNom", "NOM Mme"},
                                                          {"TxtPrenom", "Prénom"},
                                                          {"TxtNomjf", "N. J. Fille"},
                                                          {"TxtDatenaiss", "Date de naissance"},
                                                          {"TxtRue1", "Adresse 1"},
                                                          {"TxtRue2", "Adresse 2"},
                                                          {"CmbVille", "Ville"},
                                                          {"CmbCodepost", "Code Postal"},
                                                          {"TxtEmail", "E Mail"},
                                                          {"TxtProfession", "Profession"},
                                                          {"TxtCatsocpro", "Cat Soc Prof :"},
                                                          {"TxtNumsecsoc", "N° de Sécu"},
                                                          {"TxtAssure", "Assuré"},
                                                          {"CmbQualite", "Qualité"},
                                                          {"TxtCaisse", "Caisse SS"},
                                                          {"TxtPriseencharge", "Prise en charge ALD"},
                                                          {"TxtDatefinprisencharge", "Date fin ALD"},
                                                          {"TxtRanggem", "Rang gémellaire"},
                                                          {"TxtCartesante", "Carte Santé"},
                                                          {"TxtDCD", "Code situation :"},
                                                          {"TxtPerdudevue", "Perdu de vue"},
                                                          {"CmbDroits", "Ouverture droits"},
                                                          {"TxtMedtt1", "Traitant 1"},
                                                          {"TxtMedtt2", "Traitant 2"},
                                                          {"TxtMedtt3", "Traitant 3"},
                                                          {"Txtmedtt4", "Traitant 4"},
                                                          {"TxtDivers1", "Divers1"},
                                                          {"TxtDivers2", "Divers 2"},
                                                          {"TxtDivers3", "Divers3"},
                                                          {"TxtDivers4", "Divers4"}};
    for (const auto& [control, caption] : captions) {
        EXPECT_EQ(form.sheet.captionOf(box(form, control)), caption) << control;
    }
}

TEST(SheetFields, AreWrittenInTheOrderOfTheRecord) {
    QStringList order;
    for (const SheetField& field : sheetFields()) {
        order << QString::fromUtf16(field.field);
    }
    EXPECT_EQ(order.join(u' '),
              "Nom Prenom NOMJF DATENAISS RUE1 RUE2 VILLE CODEPOST TELEPHONE FAX PROFESSION CATSOCPRO SEXE CIVILITEE "
              "NUMSECSOC ASSURE DIVERS1 DIVERS2 DIVERS3 DIVERS4 PRISEENCHARGE DATEFINPRISENCHARGE CARTESANTE DCD "
              "PERDUDEVUE MEDTT1 MEDTT2 MEDTT3 MEDTT4 CAISSE Ranggem QUALITE DROITS EMAIL ALSACEMOSELLE TIERSPAYANT");
}

TEST_F(NewSheet, TurnsTheLettersOfTheSurnameIntoCapitals) {
    Form2& form = openSheet();
    type(form.sheet.TxtNom, "d'estrée-2z");
    EXPECT_EQ(form.sheet.TxtNom.text(), "D'ESTRéE-2Z");
}

TEST_F(NewSheet, LetsOnlyDigitsIntoTheTwoNumericBoxes) {
    Form2& form = openSheet();
    for (forms::TextBox* number : {&form.sheet.TxtAssure, &form.sheet.TxtDivers4}) {
        type(*number, "a1 2,b-3");
        EXPECT_EQ(number->text(), "123");
    }
}

TEST_F(NewSheet, WithoutASurnameIsRefusedAndStays) {
    Form2& form = openSheet();
    form.sheet.TxtPrenom.setText("Anaïs");
    click(form.CmdEnreg);
    EXPECT_EQ(world_.boxes.said, QStringList({"La saisie d'un nom de patiente est obligatoire"}));
    EXPECT_TRUE(world_.boxes.asked.isEmpty());
    EXPECT_TRUE(isOpen());
    EXPECT_EQ(form.sheet.TxtPrenom.text(), "Anaïs");
    EXPECT_TRUE(nothingIsPending());
}

TEST_F(NewSheet, StoresEachEntryInItsField) {
    Form2& form = openSheet();
    enterAll(form);
    form.sheet.TxtAlsacemoselle.setChecked(true);
    world_.boxes.answers = {true};
    click(form.CmdEnreg);
    expectAllStored(7);
    EXPECT_EQ(storedPatient(7).text("SEXE"), "F");
    EXPECT_EQ(storedPatient(7).text("ALSACEMOSELLE"), "O");
}

TEST_F(NewSheet, WithASurnameAloneStoresABlankInEachOtherText) {
    save(openSheet(), "SEULE");
    const store::Recordset record = storedPatient(7);
    EXPECT_EQ(record.text("Nom"), "SEULE");
    for (const QString& field : blankFields()) {
        EXPECT_EQ(record.field(field), store::Value(" ")) << field.toStdString();
    }
    for (const QString& field : skippedFields()) {
        EXPECT_TRUE(record.field(field).isNull()) << field.toStdString();
    }
    EXPECT_EQ(record.text("SEXE"), "F");
    EXPECT_EQ(record.text("ALSACEMOSELLE"), "N");
}

TEST_F(NewSheet, RepeatsTheFirstAddressLineWhereASecondWasEntered) {
    Form2& form = openSheet();
    form.sheet.TxtRue1.setText("1, rue A");
    form.sheet.TxtRue2.setText("Escalier 2");
    save(form, "SEULE");
    EXPECT_EQ(storedPatient(7).text("RUE2"), "1, rue A");
}

TEST_F(NewSheet, WithoutASecondAddressLineStoresABlankThere) {
    Form2& form = openSheet();
    form.sheet.TxtRue1.setText("1, rue A");
    save(form, "SEULE");
    EXPECT_EQ(storedPatient(7).text("RUE2"), " ");
}

TEST_F(NewSheet, WithTheSecondAddressLineAloneStoresABlankThere) {
    Form2& form = openSheet();
    form.sheet.TxtRue2.setText("Escalier 2");
    save(form, "SEULE");
    EXPECT_EQ(storedPatient(7).text("RUE2"), " ");
    EXPECT_EQ(storedPatient(7).text("RUE1"), " ");
}

TEST_F(NewSheet, DropsADateThatIsNoneWithoutAWord) {
    Form2& form = openSheet();
    form.sheet.TxtDatenaiss.setText("31/02/1976");
    form.sheet.TxtDatefinprisencharge.setText("bientôt");
    save(form, "SEULE");
    EXPECT_TRUE(storedPatient(7).field("DATENAISS").isNull());
    EXPECT_TRUE(storedPatient(7).field("DATEFINPRISENCHARGE").isNull());
    EXPECT_EQ(world_.boxes.said, QStringList({"Nouvelle Fiche Enregistrée"}));
}

TEST_F(NewSheet, ReadsADateInItsOtherForms) {
    Form2& form = openSheet();
    form.sheet.TxtDatenaiss.setText("1er mars 1976");
    form.sheet.TxtDatefinprisencharge.setText("5.6");
    save(form, "SEULE");
    EXPECT_EQ(storedPatient(7).field("DATENAISS").date(), QDate(1976, 3, 1));
    EXPECT_EQ(storedPatient(7).field("DATEFINPRISENCHARGE").date(), QDate(2002, 6, 5));
}

TEST_F(NewSheet, DropsAPastedEntryThatIsNoNumber) {
    Form2& form = openSheet();
    form.sheet.TxtAssure.setText("12a");
    form.sheet.TxtDivers4.setText("12,5");
    save(form, "SEULE");
    EXPECT_TRUE(storedPatient(7).field("ASSURE").isNull());
    EXPECT_EQ(storedPatient(7).text("DIVERS4"), "12,5");
}

TEST_F(NewSheet, StoresTheSexThatIsOn) {
    Form2& form = openSheet();
    form.sheet.OptMasc.setChecked(true);
    save(form, "SEUL");
    EXPECT_EQ(storedPatient(7).text("SEXE"), "M");
}

TEST_F(NewSheet, TakesTheNumberAboveTheHighestAndFillsNoGap) {
    removePatient(3);
    save(openSheet(), "SEULE");
    EXPECT_EQ(storedPatient(7).text("Nom"), "SEULE");
}

TEST_F(NewSheet, TakesTheHighestNumberAgainOnceItWasDeleted) {
    removePatient(6);
    save(openSheet(), "SEULE");
    EXPECT_EQ(storedPatient(6).text("Nom"), "SEULE");
}

TEST_F(NewSheet, AboveTheLargestNumberOverflowsAndKeepsItsEntries) {
    addPatient(world_, 32767, "DERNIÈRE", "Une");
    Form2& form = openSheet();
    save(form, "UNE DE TROP");
    EXPECT_EQ(world_.boxes.reported, QList<int>({6}));
    EXPECT_TRUE(world_.boxes.asked.isEmpty());
    EXPECT_TRUE(isOpen());
    EXPECT_EQ(form.sheet.TxtNom.text(), "UNE DE TROP");
    EXPECT_EQ(patientCount(), 7);
    EXPECT_TRUE(nothingIsPending());
}

TEST_F(NewSheet, HasItsEntriesInTheRecordBeforeItAsks) {
    Form2& form = openSheet();
    QString before;
    world_.boxes.whenAsked = [&] { before = state_.Rs.text("Numint") + u' ' + state_.Rs.text("Nom"); };
    save(form, "SEULE", false);
    EXPECT_EQ(before, "7 SEULE");
    EXPECT_EQ(world_.boxes.asked, QStringList({"Voulez vous vraiment enregistrer cette nouvelle Fiche ?"}));
    EXPECT_EQ(world_.boxes.icons, QList<ports::Icon>({ports::Icon::None}));
}

TEST_F(NewSheet, OnYesIsStoredAndShown) {
    Form2& form = openSheet();
    save(form, "SEULE");
    EXPECT_EQ(world_.boxes.said, QStringList({"Nouvelle Fiche Enregistrée"}));
    EXPECT_FALSE(isOpen());
    EXPECT_TRUE(world_.desk.peek<Form4>()->shown());
    EXPECT_EQ(shown(*world_.desk.peek<Form4>()), "7 SEULE  ");
    EXPECT_EQ(state_.SqlNom, "SELECT*FROM FICHEPATIENT ORDER BY NOM");
    EXPECT_EQ(state_.Rs.text("Nom"), "ALBERT");
}

TEST_F(NewSheet, OnNoIsDroppedAndTheLastDossierIsShown) {
    Form2& form = openSheet();
    save(form, "SEULE", false);
    EXPECT_TRUE(world_.boxes.said.isEmpty());
    EXPECT_FALSE(isOpen());
    EXPECT_EQ(shown(*world_.desk.peek<Form4>()), "6 MARTIN Paul");
    EXPECT_EQ(state_.SqlNom, "SELECT*FROM FICHEPATIENT ORDER BY NOM");
    EXPECT_EQ(patientCount(), 6);
}

TEST_F(NewSheet, WhoseNumberWasTakenMeanwhileStaysWithItsEntriesAndThenTakesTheNextOne) {
    Form2& form = openSheet();
    enterAll(form);
    world_.boxes.whenAsked = [&] { addPatient(world_, 7, "AILLEURS", "Une"); };
    save(form, "ICI");
    EXPECT_EQ(world_.boxes.reported, QList<int>({3022}));
    EXPECT_TRUE(isOpen());
    EXPECT_EQ(form.sheet.TxtNom.text(), "ICI");
    EXPECT_EQ(form.sheet.TxtPrenom.text(), "Anaïs");
    EXPECT_EQ(form.NumLbl.text(), "7");
    EXPECT_TRUE(nothingIsPending());
    world_.boxes.whenAsked = [] {};
    save(form, "ICI");
    EXPECT_FALSE(isOpen());
    EXPECT_EQ(storedPatient(7).text("Nom"), "AILLEURS");
    EXPECT_EQ(storedPatient(8).text("Nom"), "ICI");
}

TEST_F(NewSheet, ThatTheStoreRefusesStaysWithItsEntries) {
    Form2& form = openSheet();
    {
        const fakes::RefusingFile refusing(fakes::pathOf(world_, FileKind::Nom), "INSERT", "FICHEPATIENT");
        save(form, "SEULE");
    }
    EXPECT_EQ(world_.boxes.reported.size(), 1);
    EXPECT_TRUE(world_.boxes.said.isEmpty());
    EXPECT_TRUE(isOpen());
    EXPECT_EQ(form.sheet.TxtNom.text(), "SEULE");
    EXPECT_EQ(patientCount(), 6);
    save(form, "SEULE");
    EXPECT_EQ(storedPatient(7).text("Nom"), "SEULE");
}

TEST_F(NewSheet, LeftAfterAStoreErrorLeavesNothingHalfAdded) {
    Form2& form = openSheet();
    world_.boxes.whenAsked = [&] { addPatient(world_, 7, "AILLEURS", "Une"); };
    save(form, "ICI");
    world_.desk.act([&] { form.close(); });
    EXPECT_FALSE(isOpen());
    EXPECT_TRUE(nothingIsPending());
    EXPECT_EQ(patientCount(), 7);
}

TEST_F(NewSheet, CancelledGoesBackAndLeavesTheCursorOnTheHighestNumber) {
    Form2& form = openSheet();
    form.sheet.TxtNom.setText("SEULE");
    click(form.CmdAnule);
    EXPECT_FALSE(isOpen());
    EXPECT_TRUE(world_.desk.peek<Form4>()->shown());
    EXPECT_TRUE(world_.boxes.asked.isEmpty());
    EXPECT_EQ(state_.SqlNom, "SELECT*FROM FICHEPATIENT ORDER BY NUMINT");
    EXPECT_EQ(state_.Rs.text("Numint"), "6");
    EXPECT_EQ(patientCount(), 6);
}

TEST_F(NewSheet, ClosedByItsFrameIsCancelled) {
    Form2& form = openSheet();
    form.sheet.TxtNom.setText("SEULE");
    world_.desk.hide("Form4");
    world_.desk.act([&] { form.close(); });
    EXPECT_FALSE(isOpen());
    EXPECT_TRUE(world_.desk.peek<Form4>()->shown());
    EXPECT_EQ(patientCount(), 6);
}

TEST_F(NewSheet, HasAWipeButtonWithoutAction) {
    Form2& form = openSheet();
    form.sheet.TxtNom.setText("SEULE");
    form.sheet.OptMasc.setChecked(true);
    click(form.CmdEfface);
    EXPECT_EQ(form.sheet.TxtNom.text(), "SEULE");
    EXPECT_TRUE(form.sheet.OptMasc.checked());
}

}  // namespace
}  // namespace dossier
