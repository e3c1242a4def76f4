#include "dossier/deletion.h"

#include <gtest/gtest.h>

#include <QFile>

#include "dossier/dossier_window.h"
#include "fakes/refusing_file.h"

namespace dossier {
namespace {

using store::FileKind;

class Deletion : public DossierWindow {
protected:
    // Anne and Marie DUPONT, number 3 and 2, the second with exams and a history.
    Deletion() {
        exams();
        addExam(world_, "GYNECO", 4, 1, "01/02/2001");
        for (const char* text : {"un", "deux"}) {
            fakes::add(world_, "FICHEATCD", {{"Numint", 2}, {"Type", "1"}, {"Texte", text}});
        }
        fakes::add(world_, "FICHEATCD", {{"Numint", 4}, {"Type", "1"}, {"Texte", "autre"}});
        fakes::add(world_, "ECHOS", {{"Nom", "DUPONT"}, {"Prenom", "Marie"}, {"NOMFICH", "a"}, {"NOMPATH", "/a"}});
    }
    Form4& openMarie() {
        Form4& form = openOn("DUPONT");
        form.Text2.setText("Marie");
        return form;
    }
    void remove(Form4& form) {
        world_.boxes.answers = {true, true};
        click(form.CmdSupprime);
    }
    int count(FileKind file, const QString& condition) {
        return stored(file, QStringLiteral("SELECT*FROM ") + condition).recordCount();
    }
    // How many records of patient 2 there are: sheet, history, obstetric and gynaecological exams.
    QList<int> left() {
        return {count(FileKind::Nom, "FICHEPATIENT WHERE NUMINT=2"), count(FileKind::Atcd, "FICHEATCD WHERE NUMINT=2"),
                count(FileKind::Echo, "1TER WHERE NUMERO=2"), count(FileKind::Echo, "GYNECO WHERE NUMERO=2")};
    }
    QString failure() {
        try {
            deleteDossier(state_, "2");
        } catch (const base::RuntimeError& error) {
            return error.text();
        }
        return {};
    }
};

TEST_F(Deletion, WithNoDossierOpenDoesNothing) {
    click(open().CmdSupprime);
    EXPECT_TRUE(world_.boxes.asked.isEmpty());
}

TEST_F(Deletion, AsksTwiceAndTheSecondTimeSharply) {
    remove(openMarie());
    EXPECT_EQ(world_.boxes.asked, QStringList({"Voulez vous vraiment SUPPRIMER ce DOSSIER ?",
                                               "ATTENTION ce dossier patient a être supprimé. CONTINUER ?"}));
    EXPECT_EQ(world_.boxes.icons, QList<ports::Icon>({ports::Icon::None, ports::Icon::Critical}));
}

TEST_F(Deletion, StopsAtTheFirstNo) {
    Form4& form = openMarie();
    click(form.CmdSupprime);
    EXPECT_EQ(world_.boxes.asked.size(), 1);
    EXPECT_EQ(left(), QList<int>({1, 2, 3, 1}));
    EXPECT_EQ(shown(form), "2 DUPONT Marie");
}

TEST_F(Deletion, StopsAtTheSecondNo) {
    Form4& form = openMarie();
    world_.boxes.answers = {true, false};
    click(form.CmdSupprime);
    EXPECT_EQ(world_.boxes.asked.size(), 2);
    EXPECT_EQ(left(), QList<int>({1, 2, 3, 1}));
    EXPECT_EQ(shown(form), "2 DUPONT Marie");
}

TEST_F(Deletion, TakesTheSheetOneRecordOfTheHistoryAndAllExams) {
    remove(openMarie());
    EXPECT_EQ(left(), QList<int>({0, 1, 0, 0}));
    EXPECT_EQ(stored(FileKind::Atcd, "SELECT*FROM FICHEATCD WHERE NUMINT=2").text("Texte"), "deux");
    EXPECT_TRUE(world_.boxes.said.isEmpty());
    EXPECT_TRUE(world_.boxes.reported.isEmpty());
}

TEST_F(Deletion, LeavesTheOtherPatientsAndThePictures) {
    remove(openMarie());
    EXPECT_EQ(patientCount(), 5);
    EXPECT_EQ(count(FileKind::Atcd, "FICHEATCD WHERE NUMINT=4"), 1);
    EXPECT_EQ(count(FileKind::Echo, "1TER WHERE NUMERO=4"), 1);
    EXPECT_EQ(count(FileKind::Echo, "GYNECO WHERE NUMERO=4"), 1);
    EXPECT_EQ(count(FileKind::Echotek, "ECHOS"), 1);
}

TEST_F(Deletion, ClearsTheDisplayButTheNumber) {
    Form4& form = openMarie();
    form.TxtATCD.setText("reste");
    remove(form);
    EXPECT_EQ(shown(form), "2  ");
    EXPECT_EQ(form.LstCiv.count(), 0);
    EXPECT_EQ(form.TxtATCD.text(), "");
}

TEST_F(Deletion, LeavesTheCursorOnAllPatientsAndTheExamsInReach) {
    Form4& form = openMarie();
    remove(form);
    EXPECT_EQ(state_.SqlNom, "SELECT*FROM FICHEPATIENT ORDER BY NOM");
    EXPECT_EQ(state_.Rs.text("Nom"), "ALBERT");
    form.Text1.setText("ALB");
    click(form.HlbCptDate);
    EXPECT_EQ(form.List1.items(), QStringList({"01/01/2002"}));
}

TEST_F(Deletion, OfADossierWithSheetAloneTakesTheSheetAlone) {
    remove(openOn("MARTIN"));
    EXPECT_EQ(patientCount(), 5);
    EXPECT_TRUE(world_.boxes.reported.isEmpty());
    EXPECT_EQ(count(FileKind::Echo, "1TER"), 4);
    EXPECT_EQ(count(FileKind::Echo, "GYNECO"), 2);
    EXPECT_EQ(count(FileKind::Atcd, "FICHEATCD"), 3);
}

TEST_F(Deletion, OfADossierThatIsGoneStopsAtOnce) {
    Form4& form = openMarie();
    removePatient(2);
    remove(form);
    EXPECT_EQ(world_.boxes.reported, QList<int>({3021}));
    EXPECT_EQ(left(), QList<int>({0, 2, 3, 1}));
    EXPECT_EQ(shown(form), "2 DUPONT Marie");
}

TEST_F(Deletion, WithoutTheFileOfTheHistoriesHasTakenTheSheetAndSaysSo) {
    open();
    QFile::rename(fakes::pathOf(world_, FileKind::Atcd), world_.folder.filePath("loin"));
    const QString told = failure();
    EXPECT_TRUE(told.startsWith("La fiche est supprimée ; les antécédents et les examens ne le sont pas.\n\n"));
    EXPECT_TRUE(told.contains(fakes::pathOf(world_, FileKind::Atcd)));
    QFile::rename(world_.folder.filePath("loin"), fakes::pathOf(world_, FileKind::Atcd));
    EXPECT_EQ(left(), QList<int>({0, 2, 3, 1}));
}

TEST_F(Deletion, StoppedMidwayIsReportedAndLeavesTheExamListsWorking) {
    Form4& form = openMarie();
    QFile::remove(fakes::pathOf(world_, FileKind::Atcd));
    remove(form);
    EXPECT_EQ(world_.boxes.reported, QList<int>({3024}));
    EXPECT_EQ(shown(form), "2 DUPONT Marie");
    click(form.HlbCptDate);
    EXPECT_EQ(form.List1.count(), 3);
    EXPECT_EQ(world_.boxes.reported.size(), 1);
}

TEST_F(Deletion, StoppedAmongTheObstetricExamsLeavesTheRest) {
    open();
    const fakes::RefusingFile refusing(fakes::pathOf(world_, FileKind::Echo), "DELETE", "1TER", "old.NUMECHO=3");
    EXPECT_TRUE(
        failure().startsWith("La fiche et les antécédents sont supprimés ; les examens ne le sont pas tous.\n\n"));
    const QList<int> rest = left();
    EXPECT_EQ(rest.at(0), 0);
    EXPECT_EQ(rest.at(1), 1);
    EXPECT_EQ(stored(FileKind::Echo, "SELECT*FROM 1TER WHERE NUMERO=2And NUMECHO=1").recordCount(), 0);
    EXPECT_EQ(stored(FileKind::Echo, "SELECT*FROM 1TER WHERE NUMERO=2And NUMECHO=3").recordCount(), 1);
    EXPECT_EQ(rest.at(3), 1);
}

TEST_F(Deletion, StoppedAmongTheGynaecologyExamsHasTakenTheObstetricOnes) {
    open();
    const fakes::RefusingFile refusing(fakes::pathOf(world_, FileKind::Echo), "DELETE", "GYNECO");
    EXPECT_TRUE(failure().startsWith(
        "La fiche, les antécédents et les examens obstétricaux sont supprimés ; les examens gynécologiques"));
    EXPECT_EQ(left(), QList<int>({0, 1, 0, 1}));
}

TEST_F(Deletion, StoppedAtTheSheetLeavesAll) {
    open();
    const fakes::RefusingFile refusing(fakes::pathOf(world_, FileKind::Nom), "DELETE", "FICHEPATIENT");
    EXPECT_TRUE(failure().startsWith("La fiche n'a pas été supprimée, ni le reste du dossier.\n\n"));
    EXPECT_EQ(left(), QList<int>({1, 2, 3, 1}));
}

}  // namespace
}  // namespace dossier
