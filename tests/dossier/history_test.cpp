#include "dossier/history.h"

#include <gtest/gtest.h>

#include <QFile>

#include "dossier/dossier_window.h"
#include "fakes/refusing_file.h"

namespace dossier {
namespace {

using store::FileKind;

class MedicalHistory : public DossierWindow {
protected:
    void addHistory(int patient, const QString& text, const QString& type = "1") {
        fakes::add(world_, "FICHEATCD", {{"Numint", patient}, {"Type", type}, {"Texte", text}});
    }
    store::Recordset storedHistory(int patient) {
        return stored(FileKind::Atcd, QStringLiteral("SELECT*FROM FICHEATCD WHERE NUMINT=%1").arg(patient));
    }
};

TEST_F(MedicalHistory, ShowsTheTextAndLetsItBeSaved) {
    addHistory(4, " G2 P1\r\nAllergie");
    addHistory(6, "un autre");
    Form4& form = openOn("ALB");
    click(form.CmdATCD);
    EXPECT_EQ(form.TxtATCD.text(), " G2 P1\r\nAllergie");
    EXPECT_TRUE(form.CmdEnregATCD.enabled());
    EXPECT_EQ(state_.SqlAtcd, "SELECT*FROM FICHEATCD WHERE NUMINT=4AND TYPE='1'");
    EXPECT_TRUE(world_.boxes.said.isEmpty());
}

TEST_F(MedicalHistory, ShowsTheTextOfTypeOneAlone) {
    addHistory(4, "d'un autre type", "2");
    Form4& form = openOn("ALB");
    click(form.CmdATCD);
    EXPECT_EQ(form.TxtATCD.text(), "");
}

TEST_F(MedicalHistory, OfAPatientWithoutOneIsEmptyAndCanBeBegun) {
    Form4& form = openOn("ALB");
    form.TxtATCD.setText("reste");
    click(form.CmdATCD);
    EXPECT_EQ(form.TxtATCD.text(), "");
    EXPECT_TRUE(form.CmdEnregATCD.enabled());
    EXPECT_TRUE(world_.boxes.reported.isEmpty());
    EXPECT_TRUE(world_.boxes.said.isEmpty());
}

TEST_F(MedicalHistory, SavedForTheFirstTimeBeginsWithOneBlank) {
    Form4& form = openOn("ALB");
    click(form.CmdATCD);
    form.TxtATCD.setText("Césarienne en 1999");
    click(form.CmdEnregATCD);
    EXPECT_EQ(form.CmdEnregATCD.text(), "Enregistré");
    EXPECT_EQ(state_.SqlAtcd, "SELECT*FROM FICHEATCD WHERE NUMINT=4");
    const store::Recordset record = storedHistory(4);
    EXPECT_EQ(record.text("Texte"), " Césarienne en 1999");
    EXPECT_EQ(record.text("Type"), "1");
    EXPECT_EQ(record.text("Numint"), "4");
    EXPECT_EQ(form.TxtATCD.text(), "Césarienne en 1999");
}

TEST_F(MedicalHistory, SavedAgainIsChangedAsItStands) {
    Form4& form = openOn("ALB");
    click(form.CmdATCD);
    form.TxtATCD.setText("un");
    click(form.CmdEnregATCD);
    form.TxtATCD.setText("deux");
    click(form.CmdEnregATCD);
    EXPECT_EQ(storedHistory(4).text("Texte"), "deux");
    EXPECT_EQ(storedHistory(4).recordCount(), 1);
}

TEST_F(MedicalHistory, ReopenedShowsTheBlankAndKeepsIt) {
    Form4& form = openOn("ALB");
    click(form.CmdATCD);
    form.TxtATCD.setText("un");
    click(form.CmdEnregATCD);
    form.Text1.setText("ALBE");
    EXPECT_EQ(form.CmdEnregATCD.text(), "Enregistrer les Informations");
    EXPECT_FALSE(form.CmdEnregATCD.enabled());
    click(form.CmdATCD);
    EXPECT_EQ(form.TxtATCD.text(), " un");
    click(form.CmdEnregATCD);
    EXPECT_EQ(storedHistory(4).text("Texte"), " un");
}

TEST_F(MedicalHistory, EmptiedIsStoredEmpty) {
    addHistory(4, "un");
    Form4& form = openOn("ALB");
    click(form.CmdATCD);
    form.TxtATCD.setText("");
    click(form.CmdEnregATCD);
    EXPECT_EQ(form.CmdEnregATCD.text(), "Enregistré");
    EXPECT_EQ(storedHistory(4).text("Texte"), "");
    EXPECT_EQ(storedHistory(4).recordCount(), 1);
}

TEST_F(MedicalHistory, OfAMissingFileIsSilent) {
    QFile::remove(fakes::pathOf(world_, FileKind::Atcd));
    Form4& form = openOn("ALB");
    click(form.CmdATCD);
    EXPECT_EQ(form.TxtATCD.text(), "");
    EXPECT_TRUE(form.CmdEnregATCD.enabled());
    form.TxtATCD.setText("un");
    click(form.CmdEnregATCD);
    EXPECT_EQ(form.CmdEnregATCD.text(), "Enregistrer les Informations");
    EXPECT_EQ(form.TxtATCD.text(), "un");
    EXPECT_TRUE(world_.boxes.reported.isEmpty());
    EXPECT_TRUE(world_.boxes.said.isEmpty());
    EXPECT_FALSE(QFile::exists(fakes::pathOf(world_, FileKind::Atcd)));
}

TEST_F(MedicalHistory, OfAMissingFileNeverShowsThatOfThePatientBefore) {
    addHistory(3, "d'Anne");
    Form4& form = openOn("DUPONT");
    click(form.CmdATCD);
    form.Text1.onKeyDown(forms::Key::Right);
    ASSERT_EQ(shown(form), "2 DUPONT Marie");
    ASSERT_EQ(form.TxtATCD.text(), "d'Anne");
    QFile::remove(fakes::pathOf(world_, FileKind::Atcd));
    click(form.CmdATCD);
    EXPECT_EQ(form.TxtATCD.text(), "");
}

TEST_F(MedicalHistory, ThatTheStoreRefusesIsSilentAndKeepsTheText) {
    const fakes::RefusingFile refusing(fakes::pathOf(world_, FileKind::Atcd), "INSERT", "FICHEATCD");
    Form4& form = openOn("ALB");
    click(form.CmdATCD);
    form.TxtATCD.setText("un");
    click(form.CmdEnregATCD);
    EXPECT_EQ(form.CmdEnregATCD.text(), "Enregistrer les Informations");
    EXPECT_EQ(form.TxtATCD.text(), "un");
    EXPECT_TRUE(world_.boxes.reported.isEmpty());
}

TEST_F(MedicalHistory, LeavesTheCursorOfThePatientsAlone) {
    addHistory(4, "un");
    Form4& form = openOn("ALB");
    click(form.CmdATCD);
    click(form.CmdEnregATCD);
    EXPECT_EQ(state_.Rs.text("Nom"), "ALBERT");
    EXPECT_EQ(state_.SqlNom, "SELECT*FROM FICHEPATIENT ORDER BY NOM, PRENOM");
}

}  // namespace
}  // namespace dossier
