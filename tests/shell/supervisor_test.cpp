#include <gtest/gtest.h>

#include "fakes/world.h"
#include "ports/settings_file.h"
#include "shell/form22.h"
#include "shell/program.h"

namespace shell {
namespace {

class Supervisor : public ::testing::Test {
protected:
    Form22& open() {
        program_.desk().act([&] { program_.desk().show("Form22"); });
        return program_.desk().at<Form22>();
    }
    void press(forms::Button& button) {
        program_.desk().act([&] { button.click(); });
    }
    bool isLoaded() { return program_.desk().peek("Form22") != nullptr; }
    QString saved(const QString& key) {
        return world_.settings.read(ports::kApplication, ports::kSection, key, "absent");
    }

    fakes::World world_;
    Program program_{world_.machine};
};

TEST_F(Supervisor, CarriesItsTitleAndCaptions) {
    const Form22& form = open();
    EXPECT_EQ(form.title(), "Superviseur pour VERANOX");
    EXPECT_EQ(form.Label1.text(), "Superviseur pour VERANOX");
    EXPECT_EQ(form.Label2.text(),
              "Indiquer le chemin (Path) pour les bases de données NOM.MDB,  ECHO.MDB,  ECHOTEK.MDB et ATCD.MDB dans "
              "les zones de saisie prévues à cet effet ou en s'aidant des boutons \"Parcourir\". Indiquer de la même "
              "façon le répertoire de sauvegarde.");
    EXPECT_EQ(form.Command4.text(), "Parcourir... \\...\\&ECHO.MDB");
    EXPECT_EQ(form.Command5.text(), "Parcourir... \\...\\E&CHOTEK.MDB");
    EXPECT_EQ(form.Command6.text(), "Parcourir... \\...\\&NOM.MDB");
    EXPECT_EQ(form.Command8.text(), "Parcourir... \\...\\&ATCD.MDB");
    EXPECT_EQ(form.Command7.text(), "&Parcourir... \\...\\Repertoire de Sauvegarde");
    EXPECT_EQ(form.Command2.text(), "E&nregistrer et Quitter");
    EXPECT_EQ(form.Command1.text(), "E&ffacer");
    EXPECT_EQ(form.Command3.text(), "&Quitter");
}

TEST_F(Supervisor, HasAModelOfEachEntryUntilItsSettingsAreRead) {
    const Form22 form(world_.around, program_.state());
    EXPECT_EQ(form.Text1.text(), "...\\ECHO.MDB");
    EXPECT_EQ(form.Text2.text(), "...\\ECHOTEK.MDB");
    EXPECT_EQ(form.Text3.text(), "...\\NOM.MDB");
    EXPECT_EQ(form.Text5.text(), "...\\ATCD.MDB");
    EXPECT_EQ(form.Text4.text(), "...\\Sauve");
}

TEST_F(Supervisor, ShowsTheFiveSettings) {
    world_.settings.put("CHEMIN", "/r/ECHO.MDB");
    world_.settings.put("CHEMINS", "/r/ECHOTEK.MDB");
    world_.settings.put("CHEMCIV", "/r/NOM.MDB");
    world_.settings.put("CHEMATCD", "/r/ATCD.MDB");
    world_.settings.put("SAUVE", "/s/");
    const Form22& form = open();
    EXPECT_EQ(form.Text1.text(), "/r/ECHO.MDB");
    EXPECT_EQ(form.Text2.text(), "/r/ECHOTEK.MDB");
    EXPECT_EQ(form.Text3.text(), "/r/NOM.MDB");
    EXPECT_EQ(form.Text5.text(), "/r/ATCD.MDB");
    EXPECT_EQ(form.Text4.text(), "/s/");
}

TEST_F(Supervisor, ShowsTheProgramsFolderForEachSettingThatIsMissing) {
    const Form22& form = open();
    for (const forms::TextBox* box : {&form.Text1, &form.Text2, &form.Text3, &form.Text5, &form.Text4}) {
        EXPECT_EQ(box->text(), world_.folder.path());
    }
}

TEST_F(Supervisor, ShowsASettingSavedEmptyAsEmpty) {
    world_.settings.put("CHEMINS", "");
    EXPECT_EQ(open().Text2.text(), "");
}

TEST_F(Supervisor, LeavesOnlyTheHistorysPathInTheSharedState) {
    world_.settings.put("CHEMIN", "/r/ECHO.MDB");
    world_.settings.put("CHEMATCD", "/r/ATCD.MDB");
    store::State& state = program_.state();
    state.PathEcho = state.PathNom = state.PathAtcd = state.PathEchotek = state.PathSauve = "avant";
    open();
    EXPECT_EQ(state.PathAtcd, "/r/ATCD.MDB");
    for (const QString& other : {state.PathEcho, state.PathNom, state.PathEchotek, state.PathSauve}) {
        EXPECT_EQ(other, "avant");
    }
}

TEST_F(Supervisor, BrowsesForEachDatabaseUnderItsUsualName) {
    Form22& form = open();
    struct Row {
        forms::Button& button;
        forms::TextBox& field;
        QString name;
    };
    for (const Row& row : {Row{form.Command4, form.Text1, "ECHO.MDB"}, Row{form.Command5, form.Text2, "ECHOTEK.MDB"},
                           Row{form.Command6, form.Text3, "NOM.MDB"}, Row{form.Command8, form.Text5, "ATCD.MDB"}}) {
        world_.fileDialogs.chosen = "/réseau/commun/" + row.name;
        press(row.button);
        EXPECT_EQ(world_.fileDialogs.filters.last(), "Basees de Données (*.MDB)|*.MDB");
        EXPECT_EQ(world_.fileDialogs.proposals.last(), row.name);
        EXPECT_TRUE(world_.fileDialogs.anyName);
        EXPECT_EQ(row.field.text(), "/réseau/commun/" + row.name);
    }
    EXPECT_EQ(form.Text4.text(), world_.folder.path());
}

TEST_F(Supervisor, KeepsAnEmptyNameWhenABrowseDialogIsLeftByCancel) {
    Form22& form = open();
    world_.fileDialogs.chosen = "";
    for (forms::Button* button : {&form.Command4, &form.Command5, &form.Command6, &form.Command8, &form.Command7}) {
        press(*button);
    }
    for (const forms::TextBox* box : {&form.Text1, &form.Text2, &form.Text3, &form.Text5, &form.Text4}) {
        EXPECT_EQ(box->text(), "");
    }
}

TEST_F(Supervisor, KeepsTheFolderOfThePickedFileWithItsSeparator) {
    Form22& form = open();
    world_.fileDialogs.chosen = "/mnt/clé usb/Sauvegardes/lisez moi.txt";
    press(form.Command7);
    EXPECT_EQ(world_.fileDialogs.filters.last(), "Fichiers Veranox (*.*)|*.*");
    EXPECT_EQ(world_.fileDialogs.proposals.last(), "*.*");
    EXPECT_TRUE(world_.fileDialogs.anyName);
    EXPECT_EQ(form.Text4.text(), "/mnt/clé usb/Sauvegardes/");
    EXPECT_EQ(form.Text4.selectionStart(), 0);
    EXPECT_EQ(form.Text4.selectionLength(), 25);
    world_.fileDialogs.chosen = "/x.txt";
    press(form.Command7);
    EXPECT_EQ(form.Text4.text(), "/");
}

TEST_F(Supervisor, EmptiesTheFirstTwoFieldsAndLeavesTheOtherThree) {
    Form22& form = open();
    press(form.Command1);
    EXPECT_EQ(form.Text1.text(), "");
    EXPECT_EQ(form.Text2.text(), "");
    for (const forms::TextBox* box : {&form.Text3, &form.Text5, &form.Text4}) {
        EXPECT_EQ(box->text(), world_.folder.path());
    }
    EXPECT_TRUE(isLoaded());
    EXPECT_TRUE(world_.settings.saved.isEmpty());
}

TEST_F(Supervisor, SavesInItsOrderWithNoCheckAndCloses) {
    Form22& form = open();
    form.Text1.setText("n'importe quoi");
    form.Text2.setText("");
    form.Text3.setText("c");
    form.Text5.setText("d");
    form.Text4.setText("/sans/separateur");
    press(form.Command2);
    EXPECT_FALSE(isLoaded());
    EXPECT_EQ(world_.settings.saved, QStringList({"Chemin", "Chemins", "Chemciv", "Chematcd", "Sauve"}));
    EXPECT_EQ(saved("CHEMIN"), "n'importe quoi");
    EXPECT_EQ(saved("CHEMINS"), "");
    EXPECT_EQ(saved("CHEMCIV"), "c");
    EXPECT_EQ(saved("CHEMATCD"), "d");
    EXPECT_EQ(saved("SAUVE"), "/sans/separateur");
    EXPECT_TRUE(world_.boxes.said.isEmpty());
}

TEST_F(Supervisor, ClosesWithoutSaving) {
    Form22& form = open();
    form.Text1.setText("ailleurs");
    press(form.Command3);
    EXPECT_FALSE(isLoaded());
    EXPECT_TRUE(world_.settings.saved.isEmpty());
}

TEST(SupervisorOnRealSettings, FindsWhatItSavedUnderTheReadersSpelling) {
    fakes::World world;
    ports::SettingsFile settings(world.folder.filePath("reglages.ini"));
    Program program({world.clock, settings, world.boxes, world.fileDialogs, world.help, world.printers,
                     world.fontDialog, world.clipboard, world.pictureSource, world.folder.path()});
    auto& form = program.desk().at<Form22>();
    form.Text1.setText("/r/ECHO.MDB");
    program.desk().act([&] { form.Command2.click(); });
    EXPECT_EQ(settings.read("MARELLES", "ECHO", "CHEMIN", "absent"), "/r/ECHO.MDB");
    EXPECT_EQ(settings.read("Marelles", "ECHO", "Chemin", "absent"), "/r/ECHO.MDB");
}

TEST(SupervisorOnRealSettings, StaysOpenWithItsEntriesWhenTheyCannotBeSaved) {
    fakes::World world;
    ports::SettingsFile settings("/dev/null/reglages.ini");
    Program program({world.clock, settings, world.boxes, world.fileDialogs, world.help, world.printers,
                     world.fontDialog, world.clipboard, world.pictureSource, world.folder.path()});
    program.desk().act([&] { program.desk().show("Form22"); });
    auto& form = program.desk().at<Form22>();
    form.Text1.setText("/r/ECHO.MDB");
    program.desk().act([&] { form.Command2.click(); });
    EXPECT_EQ(world.boxes.reported, QList<int>({70}));
    ASSERT_NE(program.desk().peek("Form22"), nullptr);
    EXPECT_EQ(form.Text1.text(), "/r/ECHO.MDB");
}

}  // namespace
}  // namespace shell
