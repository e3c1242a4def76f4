#include <gtest/gtest.h>

#include <QDir>

#include "fakes/practice_files.h"
#include "shell/form1.h"
#include "shell/form21.h"
#include "shell/program.h"

namespace shell {
namespace {

using store::FileKind;

const QString kFailed =
    "Ce repertoire n'est pas valide \nOu bien les bases de données n'ont pas été ouvertes.\n\n"
    "Il faut avoir préalablement ouvert les 4 bases NOM.MDB, ECHO.MDB, ATCD.MDB et ECHOTEK.MDB";
const QString kDone = "Sauvegarde terminée";
const QStringList kFour{"ATCD.MDB", "ECHO.MDB", "ECHOTEK.MDB", "NOM.MDB"};

class Backup : public ::testing::Test {
protected:
    Backup() {
        fakes::makeFiles(world_);
        fakes::addPatient(world_, 1, "DOSSIER MODELE", " ");
        world_.settings.put("SAUVE", backups() + '/');
        program_.start();
    }

    QString backups() const { return backups_.path(); }
    /// What lies in the backup folder.
    QStringList copies() const {
        return QDir(backups()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot, QDir::Name);
    }
    store::State& state() { return program_.state(); }
    void press(forms::Button& button) {
        program_.desk().act([&] { button.click(); });
    }
    void openDossiers() {
        program_.desk().act([&] {
            program_.desk().show("Form1");
            program_.desk().unload("Form4");
        });
        press(program_.desk().at<Form1>().Command1);
        ASSERT_TRUE(program_.desk().peek("Form4"));
    }
    /// As the first use of the history does.
    void openHistory() { state().DbAtcd = store::Database::open(state().PathAtcd); }
    Form21& open() {
        press(program_.desk().at<Form1>().CmdSauve);
        return program_.desk().at<Form21>();
    }
    bool isLoaded() { return program_.desk().peek("Form21") != nullptr; }
    QStringList patientsIn(const QString& file) const {
        QStringList names;
        auto rows = store::Database::open(file).openRecordset("SELECT*FROM FICHEPATIENT ORDER BY NUMINT");
        for (; !rows.eof(); rows.moveNext()) {
            names << rows.text("NOM");
        }
        return names;
    }

    QTemporaryDir backups_;
    fakes::World world_;
    Program program_{world_.machine};
};

TEST_F(Backup, CarriesItsTitleAndCaptions) {
    const Form21& form = open();
    EXPECT_EQ(form.title(), "Sauvegardes");
    EXPECT_EQ(form.CmdSauve1.text(), "&Sauvegarder à l'endroit prédéfini par le Superviseur");
    EXPECT_EQ(form.CmdSauve2.text(), "S&auvegarder à l'endroit à définir ci dessous");
    EXPECT_EQ(form.CmdParcourir.text(), "&Parcourir");
    EXPECT_EQ(form.Text1.text(), "");
    EXPECT_EQ(form.Command1.text(), "&Quitter");
    EXPECT_FALSE(form.LblFichier.visible());
    EXPECT_FALSE(form.LblAvance.visible());
}

TEST_F(Backup, ReadsTheFolderAtItsLoad) {
    open();
    EXPECT_EQ(state().PathSauve, backups() + '/');
    press(program_.desk().at<Form21>().Command1);
    EXPECT_FALSE(isLoaded());
    world_.settings.values.clear();
    open();
    EXPECT_EQ(state().PathSauve, world_.folder.path());
}

TEST_F(Backup, CopiesTheFourFilesToTheSupervisorsFolder) {
    openDossiers();
    openHistory();
    fakes::addPatient(world_, 2, "DUPONT", "Anne");
    Form21& form = open();
    press(form.CmdSauve1);
    EXPECT_EQ(world_.boxes.said, QStringList({kDone}));
    EXPECT_FALSE(isLoaded());
    EXPECT_EQ(copies(), kFour);
    EXPECT_EQ(patientsIn(backups() + "/NOM.MDB"), QStringList({"DOSSIER MODELE", "DUPONT"}));
    for (const FileKind kind : store::kAllFiles) {
        EXPECT_EQ(store::Database::open(backups() + '/' + store::usualName(kind)).kind(), kind);
    }
    EXPECT_FALSE(state().DbEcho.isOpen());
    EXPECT_FALSE(state().DbAtcd.isOpen());
    EXPECT_FALSE(state().DbNom.isOpen());
}

TEST_F(Backup, CopiesToThePlaceOfTheTextBoxAsItStands) {
    openDossiers();
    openHistory();
    Form21& form = open();
    form.Text1.setText(backups() + "/Mardi ");
    press(form.CmdSauve2);
    EXPECT_EQ(world_.boxes.said, QStringList({kDone}));
    EXPECT_EQ(copies(), QStringList({"Mardi ATCD.MDB", "Mardi ECHO.MDB", "Mardi ECHOTEK.MDB", "Mardi NOM.MDB"}));
}

TEST_F(Backup, PutsCopiesBesideAFolderWithoutItsSeparator) {
    world_.settings.put("SAUVE", backups() + "/Sauve");
    QDir(backups()).mkdir("Sauve");
    openDossiers();
    openHistory();
    press(open().CmdSauve1);
    EXPECT_EQ(copies(), QStringList({"Sauve", "SauveATCD.MDB", "SauveECHO.MDB", "SauveECHOTEK.MDB", "SauveNOM.MDB"}));
}

TEST_F(Backup, CopiesIntoTheCurrentFolderWhenTheTextBoxIsEmpty) {
    openDossiers();
    openHistory();
    const QString before = QDir::currentPath();
    QDir::setCurrent(backups());
    press(open().CmdSauve2);
    QDir::setCurrent(before);
    EXPECT_EQ(world_.boxes.said, QStringList({kDone}));
    EXPECT_EQ(copies(), kFour);
}

TEST_F(Backup, StraightAfterTheStartFailsAndCopiesNothing) {
    Form21& form = open();
    press(form.CmdSauve1);
    EXPECT_EQ(world_.boxes.said, QStringList({kFailed}));
    EXPECT_TRUE(isLoaded());
    EXPECT_EQ(form.pointer(), forms::Pointer::Normal);
    EXPECT_EQ(copies(), QStringList());
}

TEST_F(Backup, BeforeTheHistoryWasOpenedFailsWithTheFirstTwoBasesClosed) {
    openDossiers();
    Form21& form = open();
    press(form.CmdSauve1);
    EXPECT_EQ(world_.boxes.said, QStringList({kFailed}));
    EXPECT_TRUE(isLoaded());
    EXPECT_EQ(copies(), QStringList());
    EXPECT_FALSE(state().DbEcho.isOpen());
    EXPECT_FALSE(state().DbAtcd.isOpen());
    EXPECT_TRUE(state().DbNom.isOpen());
    EXPECT_EQ(form.pointer(), forms::Pointer::Normal);
}

TEST_F(Backup, OverwritesAnEarlierOneWithoutAQuestion) {
    openDossiers();
    openHistory();
    press(open().CmdSauve1);
    openDossiers();
    openHistory();
    fakes::addPatient(world_, 2, "DUPONT", "Anne");
    press(open().CmdSauve1);
    EXPECT_EQ(world_.boxes.said, QStringList({kDone, kDone}));
    EXPECT_TRUE(world_.boxes.asked.isEmpty());
    EXPECT_EQ(copies(), kFour);
    EXPECT_EQ(patientsIn(backups() + "/NOM.MDB"), QStringList({"DOSSIER MODELE", "DUPONT"}));
}

TEST_F(Backup, ASecondTimeWithoutReopeningFails) {
    openDossiers();
    openHistory();
    press(open().CmdSauve1);
    press(open().CmdSauve1);
    EXPECT_EQ(world_.boxes.said, QStringList({kDone, kFailed}));
    EXPECT_TRUE(isLoaded());
}

TEST_F(Backup, LetsTheDossiersBeReopenedThroughTheMenu) {
    openDossiers();
    openHistory();
    press(open().CmdSauve1);
    openDossiers();
    EXPECT_TRUE(state().DbEcho.isOpen());
    EXPECT_TRUE(state().DbNom.isOpen());
    EXPECT_TRUE(world_.boxes.reported.isEmpty());
}

TEST_F(Backup, LeavesThePointerBusyWhenACopyFails) {
    openDossiers();
    openHistory();
    Form21& form = open();
    form.Text1.setText("/nulle/part/");
    press(form.CmdSauve2);
    EXPECT_EQ(world_.boxes.said, QStringList({kFailed}));
    EXPECT_TRUE(isLoaded());
    EXPECT_EQ(form.pointer(), forms::Pointer::Busy);
    EXPECT_FALSE(form.LblFichier.visible());
    EXPECT_EQ(form.Text1.text(), "/nulle/part/");
}

TEST_F(Backup, NeedsThePathOfTheAlbum) {
    world_.settings.put("CHEMINS", "");
    openDossiers();
    openHistory();
    press(open().CmdSauve1);
    EXPECT_EQ(world_.boxes.said, QStringList({kFailed}));
    EXPECT_EQ(copies(), QStringList());
}

TEST_F(Backup, ThatFailsLeavesTheOneBeforeItWhole) {
    openDossiers();
    openHistory();
    press(open().CmdSauve1);
    openDossiers();
    openHistory();
    fakes::addExam(world_, "1TER", 1, 1, "05/04/2002");
    QFile::resize(fakes::pathOf(world_, FileKind::Atcd), 100);
    press(open().CmdSauve1);
    EXPECT_EQ(world_.boxes.said, QStringList({kDone, kFailed}));
    EXPECT_EQ(copies(), kFour);
    EXPECT_TRUE(store::Database::open(backups() + "/ECHO.MDB").openRecordset("SELECT*FROM 1TER").eof());
    EXPECT_EQ(store::Database::open(backups() + "/ATCD.MDB").kind(), FileKind::Atcd);
}

TEST_F(Backup, NeverReplacesABaseInUse) {
    openDossiers();
    openHistory();
    Form21& form = open();
    form.Text1.setText(world_.folder.path() + '/');
    press(form.CmdSauve2);
    EXPECT_EQ(world_.boxes.said, QStringList({kFailed}));
    // Nor under another base's name.
    QFile::link(fakes::pathOf(world_, FileKind::Nom), backups() + "/ECHO.MDB");
    openDossiers();
    openHistory();
    press(open().CmdSauve1);
    EXPECT_EQ(world_.boxes.said, QStringList({kFailed, kFailed}));
    EXPECT_EQ(copies(), QStringList({"ECHO.MDB"}));
    EXPECT_EQ(patientsIn(fakes::pathOf(world_, FileKind::Nom)), QStringList({"DOSSIER MODELE"}));
}

TEST_F(Backup, ShowsHowFarItIsFileByFile) {
    openDossiers();
    openHistory();
    Form21& form = open();
    QStringList files;
    QList<bool> busy;
    const auto listening = form.LblFichier.observe([&](forms::Aspect aspect, int) {
        if (aspect == forms::Aspect::Text) {
            files << form.LblFichier.text();
            busy << (form.pointer() == forms::Pointer::Busy && form.LblFichier.visible() && form.LblAvance.visible());
        }
    });
    QStringList percents;
    const auto alsoListening = form.LblAvance.observe([&](forms::Aspect aspect, int) {
        if (aspect == forms::Aspect::Text) {
            percents << form.LblAvance.text();
        }
    });
    press(form.CmdSauve1);
    EXPECT_EQ(files, QStringList({"ECHO.MDB (1 sur 4) : copie", "ECHO.MDB (1 sur 4) : vérification",
                                  "ECHOTEK.MDB (2 sur 4) : copie", "ECHOTEK.MDB (2 sur 4) : vérification",
                                  "NOM.MDB (3 sur 4) : copie", "NOM.MDB (3 sur 4) : vérification",
                                  "ATCD.MDB (4 sur 4) : copie", "ATCD.MDB (4 sur 4) : vérification"}));
    EXPECT_FALSE(busy.contains(false));
    EXPECT_EQ(percents.first(), "100 %");
    EXPECT_TRUE(percents.contains("0 %"));
}

TEST_F(Backup, BrowsesForTheNameOfAFile) {
    Form21& form = open();
    world_.fileDialogs.chosen = backups() + "/ancien.txt";
    press(form.CmdParcourir);
    EXPECT_EQ(world_.fileDialogs.filters, QStringList({"Fichiers Veranox (*.*)|*.*"}));
    EXPECT_TRUE(world_.fileDialogs.anyName);
    EXPECT_EQ(form.Text1.text(), backups() + "/ancien.txt");
    world_.fileDialogs.chosen = "";
    press(form.CmdParcourir);
    EXPECT_EQ(form.Text1.text(), backups() + "/ancien.txt");
}

TEST_F(Backup, UsesABrowsedNameAsAnyOther) {
    openDossiers();
    openHistory();
    Form21& form = open();
    world_.fileDialogs.chosen = backups() + "/ancien.txt";
    press(form.CmdParcourir);
    press(form.CmdSauve2);
    EXPECT_EQ(copies(),
              QStringList({"ancien.txtATCD.MDB", "ancien.txtECHO.MDB", "ancien.txtECHOTEK.MDB", "ancien.txtNOM.MDB"}));
}

}  // namespace
}  // namespace shell
