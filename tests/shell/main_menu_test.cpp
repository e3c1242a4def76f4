#include <gtest/gtest.h>

#include "fakes/practice_files.h"
#include "shell/form1.h"
#include "shell/form14.h"
#include "shell/form15.h"
#include "shell/program.h"

namespace shell {
namespace {

const QString kEchoMissing = QStringLiteral(
    "La base de données 'Echo.mdb' est introuvable. Veuillez à l'aide du SUPERVISEUR la placer dans un repertoire "
    "quelconque de votre reseau puis relancer le programme");
const QString kNomMissing = QStringLiteral(
    "La base de données 'Nom.mdb' est introuvable. Veuillez à l'aide du SUPERVISEUR la placer dans un repertoire "
    "quelconque de votre reseau puis relancer le programme");
const QString kAtcdMissing = QStringLiteral(
    "La base de données 'ATCD.MDB' est introuvable. Veuillez à l'aide du SUPERVISEUR la placer dans un repertoire "
    "quelconque de votre reseau puis relancer le programme");

class MainMenu : public ::testing::Test {
protected:
    Form1& start() {
        program_.start();
        return program_.desk().at<Form1>();
    }
    void press(forms::Button& button) {
        program_.desk().act([&] { button.click(); });
    }
    bool shown(const QString& form) {
        const forms::Form* found = program_.desk().peek(form);
        return found && found->shown();
    }
    void files() {
        fakes::makeFiles(world_);
        fakes::addPatient(world_, 1, "DOSSIER MODELE", " ");
    }

    fakes::World world_;
    Program program_{world_.machine};
};

TEST_F(MainMenu, ShowsAloneAtTheStart) {
    start();
    EXPECT_TRUE(shown("Form1"));
    EXPECT_EQ(program_.desk().peek("Form0"), nullptr);
    EXPECT_EQ(program_.desk().loaded().size(), 1U);
}

TEST_F(MainMenu, CarriesItsTitleAndCaptions) {
    const Form1& menu = start();
    EXPECT_EQ(menu.title(), "VERANOX 3.11");
    EXPECT_EQ(menu.Command1.text(), "&Dossiers Patientes");
    EXPECT_EQ(menu.Command2.text(), "Réponses &mémorisées");
    EXPECT_EQ(menu.Command5.text(), "&Photos");
    EXPECT_EQ(menu.Command6.text(), "&Album");
    EXPECT_EQ(menu.CmdSauve.text(), "&Sauvegardes");
    EXPECT_EQ(menu.CmdSupervi.text(), "Su&perviseur");
    EXPECT_EQ(menu.CmdAide.text(), "Ai&de");
    EXPECT_EQ(menu.Command4.text(), "A &propos");
    EXPECT_EQ(menu.Command3.text(), "&Fermer");
}

TEST_F(MainMenu, OpensEachSideWindowBesideItselfWithoutAnySetting) {
    Form1& menu = start();
    const QList<std::pair<forms::Button*, QString>> doors{{&menu.Command5, "Form19"},
                                                          {&menu.Command6, "Form20"},
                                                          {&menu.CmdSauve, "Form21"},
                                                          {&menu.CmdSupervi, "Form22"},
                                                          {&menu.Command4, "Form14"}};
    for (const auto& [button, form] : doors) {
        press(*button);
        EXPECT_TRUE(shown(form)) << form.toStdString();
        EXPECT_TRUE(shown("Form1"));
    }
}

TEST_F(MainMenu, OpensTheStoredResponsesBesideItselfAndReadsTheirPathAlone) {
    files();
    world_.settings.put("CHEMCIV", "/ailleurs");
    world_.settings.put("CHEMATCD", "/ailleurs");
    press(start().Command2);
    EXPECT_TRUE(shown("Form9"));
    EXPECT_TRUE(shown("Form1"));
    EXPECT_TRUE(world_.boxes.said.isEmpty());
    EXPECT_EQ(program_.state().PathEcho, fakes::pathOf(world_, store::FileKind::Echo));
    EXPECT_EQ(program_.state().PathNom, "");
    EXPECT_EQ(program_.state().PathAtcd, "");
}

TEST_F(MainMenu, OpensTheDossierWindowAndHides) {
    files();
    press(start().Command1);
    EXPECT_TRUE(shown("Form4"));
    EXPECT_FALSE(shown("Form1"));
    EXPECT_TRUE(world_.boxes.said.isEmpty());
}

TEST_F(MainMenu, RefusesAFirstStartWithNoSettings) {
    Form1& menu = start();
    press(menu.Command1);
    press(menu.Command2);
    EXPECT_EQ(world_.boxes.said, QStringList({kEchoMissing, kEchoMissing}));
    EXPECT_TRUE(shown("Form1"));
    const store::State& state = program_.state();
    for (const QString& path :
         {state.PathEcho, state.PathNom, state.PathAtcd, state.WorkEcho, state.WorkNom, state.WorkAtcd}) {
        EXPECT_EQ(path, world_.folder.path());
    }
    EXPECT_EQ(state.PathEchotek, "");
}

TEST_F(MainMenu, PassesAPathThatEndsInTheNameInAnyCase) {
    world_.settings.put("CHEMIN", "/nulle/part/echo.MDB");
    press(start().Command1);
    EXPECT_EQ(world_.boxes.said, QStringList({kNomMissing}));
}

TEST_F(MainMenu, RefusesAPathWithASuffixBehindTheName) {
    files();
    world_.settings.put("CHEMIN", "/nulle/part/ECHO.MDB.old");
    press(start().Command1);
    EXPECT_EQ(world_.boxes.said, QStringList({kEchoMissing}));
}

TEST_F(MainMenu, TellsTheFirstWrongPathInTheOrderEchoNomAtcd) {
    files();
    Form1& menu = start();
    world_.settings.put("CHEMCIV", "/ailleurs");
    world_.settings.put("CHEMATCD", "/ailleurs");
    press(menu.Command1);
    world_.settings.put("CHEMCIV", fakes::pathOf(world_, store::FileKind::Nom));
    press(menu.Command1);
    EXPECT_EQ(world_.boxes.said, QStringList({kNomMissing, kAtcdMissing}));
    EXPECT_FALSE(shown("Form4"));
}

TEST_F(MainMenu, DoesNotTestTheAlbumsPath) {
    files();
    world_.settings.put("CHEMINS", "");
    press(start().Command1);
    EXPECT_TRUE(shown("Form4"));
}

TEST_F(MainMenu, StaysWhenTheDossierWindowFailsToLoadAndOpensItOnceThePathIsRight) {
    files();
    world_.settings.put("CHEMIN", world_.folder.filePath("absent/ECHO.MDB"));
    Form1& menu = start();
    press(menu.Command1);
    EXPECT_EQ(world_.boxes.reported, QList<int>({3024}));
    EXPECT_TRUE(shown("Form1"));
    EXPECT_FALSE(shown("Form4"));
    world_.settings.put("CHEMIN", fakes::pathOf(world_, store::FileKind::Echo));
    press(menu.Command1);
    EXPECT_TRUE(shown("Form4"));
}

TEST_F(MainMenu, ComesBackWhenTheDossierWindowIsClosed) {
    files();
    press(start().Command1);
    program_.desk().act([&] { program_.desk().peek("Form4")->close(); });
    EXPECT_TRUE(shown("Form1"));
    EXPECT_EQ(program_.desk().peek("Form4"), nullptr);
}

TEST_F(MainMenu, EndsTheProgramByItsButton) {
    press(start().Command3);
    EXPECT_TRUE(program_.desk().ended());
}

TEST_F(MainMenu, EndsTheProgramByItsFrame) {
    Form1& menu = start();
    program_.desk().act([&] { menu.close(); });
    EXPECT_TRUE(program_.desk().ended());
    EXPECT_TRUE(program_.desk().loaded().empty());
}

TEST_F(MainMenu, OpensTheAboutBoxBesideItself) {
    press(start().Command4);
    EXPECT_TRUE(shown("Form14"));
    EXPECT_TRUE(shown("Form1"));
    auto& about = program_.desk().at<Form14>();
    EXPECT_EQ(about.title(), "VERANOX");
    EXPECT_EQ(about.Label6.text(), "VERANOX");
    EXPECT_EQ(about.Label5.text(),
              "Logiciel destiné à archiver et à établir les comptes rendus d'examens échographiques "
              "gynéco-obstétricaux");
    EXPECT_EQ(about.Label2.text(), "Version 3.11 du 01/03/2002");
    EXPECT_EQ(about.Label4.text(), "");
    press(about.Command1);
    EXPECT_EQ(program_.desk().peek("Form14"), nullptr);
}

TEST_F(MainMenu, OpensTheHelpFileBesideTheProgram) {
    press(start().CmdAide);
    EXPECT_EQ(world_.help.shown, QStringList({world_.folder.path() + "/VERANOX.HLP"}));
}

TEST_F(MainMenu, GreetsOnThe16thOfAprilAndShowsBehindItsButton) {
    world_.clock.date = QDate(2026, 4, 16);
    program_.start();
    EXPECT_TRUE(shown("Form15"));
    EXPECT_FALSE(shown("Form1"));
    auto& greeting = program_.desk().at<Form15>();
    EXPECT_EQ(greeting.title(), "");
    EXPECT_EQ(greeting.Label1.text(), "Aujourd'hui c'est l'anniversaire du bon");
    EXPECT_EQ(greeting.Label5.text(), "Dr Aubin THOREAUX");
    EXPECT_EQ(greeting.Label2.text(), "16 Avril");
    EXPECT_EQ(greeting.Label3.text(), "Vous pouvez le lui souhaiter à l'adresse :");
    EXPECT_NE(greeting.Label4.text(), "");
    press(greeting.Command1);
    EXPECT_TRUE(shown("Form1"));
    EXPECT_EQ(program_.desk().peek("Form15"), nullptr);
}

TEST_F(MainMenu, ClosingTheGreetingByItsFrameShowsTheMenuToo) {
    world_.clock.date = QDate(2026, 4, 16);
    program_.start();
    program_.desk().act([&] { program_.desk().peek("Form15")->close(); });
    EXPECT_TRUE(shown("Form1"));
}

TEST_F(MainMenu, DoesNotGreetOnTheDaysBeforeAndAfter) {
    for (const int day : {15, 17}) {
        fakes::World other;
        other.clock.date = QDate(2026, 4, day);
        Program program(other.machine);
        program.start();
        EXPECT_TRUE(program.desk().peek("Form1")->shown());
        EXPECT_EQ(program.desk().peek("Form15"), nullptr);
    }
}

}  // namespace
}  // namespace shell
