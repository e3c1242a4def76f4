// The album's load, the classing of a picture and the words that its boxes offer.

#include "album_window.h"
#include "fakes/refusing_file.h"

namespace pictures {
namespace {

using Lines = QStringList;

const QString kNotClassed = QStringLiteral("Erreur de manipulation, Fichier dèjà saisi ou sans nom!");

class AlbumClassing : public AlbumWindow {
protected:
    Form20& opened(const QString& name) {
        world_.fileDialogs.chosen = put(name);
        click(form().CmdOuvrir);
        return form();
    }
};

TEST_F(AlbumClassing, LoadsWithTheMessageAndEmptyBoxesWhereThePathNamesNoAlbum) {
    word(0, "Normal");
    for (const QString& refused : {QString(), path("ALBUM.MDB"), path("ECHOTEK.MDB.BAK")}) {
        world_.settings.put("CHEMINS", refused);
        said().clear();
        EXPECT_TRUE(form().shown());
        EXPECT_EQ(said(), Lines({"La base de données 'ECHOTEK.MDB' est introuvable. Veuillez à l'aide du SUPERVISEUR "
                                 "la placer dans un repertoire quelconque de votre reseau puis relancer le "
                                 "programme"}));
        EXPECT_EQ(form().CmbDiagno.items(), Lines());
        world_.desk.unload("Form20");
    }
    EXPECT_EQ(reported(), QList<int>());
}

TEST_F(AlbumClassing, LooksAtTheEndOfThePathWithoutRegardToCase) {
    QFile::rename(base(), path("mon-echotek.mdb"));
    world_.settings.put("CHEMINS", path("mon-echotek.mdb"));
    EXPECT_TRUE(form().shown());
    EXPECT_EQ(said(), Lines());
}

TEST_F(AlbumClassing, FailsToLoadWhereTheFileIsGone) {
    QFile::remove(base());
    world_.desk.act([this] { world_.desk.show("Form20"); });
    EXPECT_EQ(reported(), QList<int>({3024}));
    EXPECT_EQ(world_.desk.peek("Form20"), nullptr);
}

TEST_F(AlbumClassing, FillsBothBoxesOfEachListInTheOrderOfTheTable) {
    word(1, "Rein");
    word(0, "Normal");
    word(1, "Coeur");
    word(3, "Courrier");
    word(2, "Profil");
    word(0, "Kyste");
    EXPECT_EQ(form().CmbDiagno.items(), Lines({"Normal", "Kyste"}));
    EXPECT_EQ(form().CmbRechDiag.items(), Lines({"Normal", "Kyste"}));
    EXPECT_EQ(form().CmbCrit1.items(), Lines({"Rein", "Coeur"}));
    EXPECT_EQ(form().CmbRechCrit1.items(), Lines({"Rein", "Coeur"}));
    EXPECT_EQ(form().CmbCrit2.items(), Lines({"Profil"}));
    EXPECT_EQ(form().CmbRechCrit2.items(), Lines({"Profil"}));
    EXPECT_EQ(form().CmbCrit3.items(), Lines({"Courrier"}));
    EXPECT_EQ(form().CmbRechCrit3.items(), Lines({"Courrier"}));
}

TEST_F(AlbumClassing, ShowsNothingLargeAndNothingWaitingAtFirst) {
    for (const forms::Control* hidden :
         std::initializer_list<forms::Control*>{&form().Image2, &form().CmdImpr, &form().CmdFermer, &form().Label18,
                                                &form().Label5, &form().CmdAffiche, &form().PctImp}) {
        EXPECT_FALSE(hidden->visible()) << hidden->label().toStdString();
    }
}

TEST_F(AlbumClassing, HasTheCaptionsOfItsActions) {
    EXPECT_EQ(form().CmdOuvrir.text(), "&Ouvrir un cliché");
    EXPECT_EQ(form().CmdAjouter.text(), "Ajouter à l'al&bum");
    EXPECT_EQ(form().Command1.text(), "R&echercher");
    EXPECT_EQ(form().CmdImpr.text(), "&A Imprimer");
    EXPECT_EQ(form().CmdImp.text(), "&Imprimer");
    EXPECT_EQ(form().CmdFerm.text(), "Fer&mer");
    EXPECT_EQ(form().Label18.text(), "Donnez un nom et critères de tri à ce cliché puis ajoutez à l'album");
    const auto captions = [this](std::initializer_list<const char*> names) {
        Lines texts;
        for (const char* name : names) {
            texts << form().find(QString(name))->text();
        }
        return texts;
    };
    EXPECT_EQ(captions({"Option1", "Option2", "Option3", "Option4"}),
              Lines({"Obs. 1 Ter", "Obs. 2 Ter", "Obs. 3 Ter", "Gynéco"}));
    EXPECT_EQ(captions({"Option5", "Option6", "Option7", "Option8", "Option9"}),
              Lines({"Obst. 1 T", "Obst. 2 T", "Obst. 3 T", "Gynéco", "Tous dossiers"}));
    EXPECT_EQ(captions({"CmdAjouD", "CmdAjouC1", "CmdAjouC2", "CmdAjouC3"}),
              Lines({"Ajout", "Ajout", "Ajout", "Ajout"}));
    EXPECT_EQ(captions({"Ouvrir", "AjoutAlb", "Imprim", "Aide"}),
              Lines({"Ouvrir un Cliché", "Ajouter à l'Album", "Imprimer", "Aide"}));
    EXPECT_EQ(captions({"Recherche", "TriDate", "TriNom", "TriDiag"}),
              Lines({"&Recherche", "Trie par Date", "Trie par Nom", "Trie par Diagnostic"}));
    EXPECT_EQ(captions({"Critri", "Ajouter", "ADiagno", "AClef1", "AClef2", "AClef3", "Supprimer"}),
              Lines({"&Gestion des Critères de Tri", "Ajouter", "Diagnostic", "Mot Clef N°1", "Mot clef N°2",
                     "Mot Clef N°3", "Supprimer"}));
    EXPECT_EQ(captions({"SDiagno", "SClef1", "SClef2", "SClef3"}),
              Lines({"Diagnostic", "Mot Clef N°1", "Mot clef N°2", "Mot Clef N°3"}));
}

TEST_F(AlbumClassing, OpensAPictureWithItsNamesAndToday) {
    form().TxtNom.setText("ROSSIGNOL");
    form().TxtPrenom.setText("Julie");
    opened("coeur.bmp");
    EXPECT_EQ(world_.fileDialogs.filters, Lines({"Images (*.BMP;*.JPG;*.ICO)|*.BMP;*.JPG;*.ICO"}));
    EXPECT_EQ(form().ImgCharge.picture().size(), QSize(40, 30));
    EXPECT_EQ(form().LblPath.text(), path("coeur.bmp"));
    EXPECT_EQ(form().LblFilename.text(), "coeur.bmp");
    EXPECT_EQ(form().TxtNom.text() + form().TxtPrenom.text(), "");
    EXPECT_EQ(form().TxtDate.text(), "05/04/2002");
    EXPECT_TRUE(form().Label18.visible());
}

TEST_F(AlbumClassing, LeavesEverythingWhereNoFileIsChosen) {
    form().TxtNom.setText("ROSSIGNOL");
    click(form().Ouvrir);
    EXPECT_EQ(world_.fileDialogs.filters.size(), 1);
    EXPECT_EQ(form().TxtNom.text(), "ROSSIGNOL");
    EXPECT_EQ(form().TxtDate.text(), "");
    EXPECT_FALSE(form().Label18.visible());
    EXPECT_EQ(reported(), QList<int>());
}

TEST_F(AlbumClassing, ReportsAFileThatIsNoPictureAndKeepsTheOneInHand) {
    opened("coeur.bmp");
    world_.fileDialogs.chosen = putBroken("notes.jpg");
    click(form().CmdOuvrir);
    EXPECT_EQ(reported(), QList<int>({481}));
    EXPECT_EQ(form().LblFilename.text(), "coeur.bmp");
    EXPECT_EQ(form().ImgCharge.picture().size(), QSize(40, 30));
}

TEST_F(AlbumClassing, WritesEachFieldOfThePictureInHand) {
    opened("coeur.bmp");
    form().TxtNom.setText("D'ALMEIDA");
    form().TxtPrenom.setText("Inès");
    form().TxtDate.setText("12/03/2002");
    form().TxtNumEcho.setText("7");
    form().Option3.setChecked(true);
    form().CmbDiagno.setText("Cardiopathie");
    form().CmbCrit1.setText("Coeur");
    form().CmbCrit2.setText("Quatre cavités");
    form().CmbCrit3.setText("Enseignement");
    click(form().CmdAjouter);
    EXPECT_EQ(stored("ECHOS", "Numint"), Lines({"1"}));
    EXPECT_EQ(stored("ECHOS", "Nom"), Lines({"D'ALMEIDA"}));
    EXPECT_EQ(stored("ECHOS", "Prenom"), Lines({"Inès"}));
    EXPECT_EQ(stored("ECHOS", "DATEXAM"), Lines({"12/03/2002"}));
    EXPECT_EQ(stored("ECHOS", "NOMFICH"), Lines({"coeur.bmp"}));
    EXPECT_EQ(stored("ECHOS", "NOMPATH"), Lines({path("coeur.bmp")}));
    EXPECT_EQ(stored("ECHOS", "Typexam"), Lines({"3"}));
    EXPECT_EQ(stored("ECHOS", "DIAGNO"), Lines({"Cardiopathie"}));
    EXPECT_EQ(stored("ECHOS", "CRIT1"), Lines({"Coeur"}));
    EXPECT_EQ(stored("ECHOS", "CRIT2"), Lines({"Quatre cavités"}));
    EXPECT_EQ(stored("ECHOS", "CRIT3"), Lines({"Enseignement"}));
    EXPECT_EQ(stored("ECHOS", "NUMECHO"), Lines({"-"}));
    EXPECT_EQ(said(), Lines());
}

TEST_F(AlbumClassing, SaysThatThePictureIsClassedAndEmptiesItsPlace) {
    opened("coeur.bmp");
    click(form().AjoutAlb);
    EXPECT_TRUE(form().ImgCharge.empty());
    EXPECT_TRUE(form().Label5.visible());
    EXPECT_EQ(form().Label5.text(), "OK Cliché Classé");
    EXPECT_FALSE(form().Label18.visible());
    EXPECT_EQ(form().LblPath.text(), path("coeur.bmp"));
}

TEST_F(AlbumClassing, StoresAnEmptyWordAndNoKindAsNothing) {
    opened("coeur.bmp");
    click(form().CmdAjouter);
    for (const char* field : {"DIAGNO", "CRIT1", "CRIT2", "CRIT3", "Typexam"}) {
        EXPECT_EQ(stored("ECHOS", field), Lines({"-"})) << field;
    }
    EXPECT_EQ(stored("ECHOS", "Nom"), Lines({""}));
}

TEST_F(AlbumClassing, NumbersTheKindsFromOneToFour) {
    int file = 0;
    for (forms::Option* kind : {&form().Option1, &form().Option2, &form().Option3, &form().Option4}) {
        opened(QString::number(++file));
        kind->setChecked(true);
        click(form().CmdAjouter);
    }
    EXPECT_EQ(stored("ECHOS", "Typexam"), Lines({"1", "2", "3", "4"}));
}

TEST_F(AlbumClassing, RefusesTheSameFileTwice) {
    opened("coeur.bmp");
    click(form().CmdAjouter);
    opened("coeur.bmp");
    click(form().CmdAjouter);
    EXPECT_EQ(said(), Lines({kNotClassed}));
    EXPECT_EQ(files(), Lines({"coeur.bmp"}));
    EXPECT_FALSE(form().ImgCharge.empty());
    EXPECT_TRUE(form().Label18.visible());
}

TEST_F(AlbumClassing, RefusesAPictureWithoutAName) {
    click(form().CmdAjouter);
    EXPECT_EQ(said(), Lines({kNotClassed}));
    EXPECT_EQ(files(), Lines());
}

TEST_F(AlbumClassing, TellsAnyFailureOfTheWritingAlike) {
    opened("coeur.bmp");
    const fakes::RefusingFile refusing(base(), "INSERT", "ECHOS");
    click(form().CmdAjouter);
    EXPECT_EQ(said(), Lines({kNotClassed}));
    EXPECT_EQ(reported(), QList<int>());
}

TEST_F(AlbumClassing, ReportsAnAlbumThatCannotBeOpened) {
    opened("coeur.bmp");
    QFile::remove(base());
    click(form().CmdAjouter);
    EXPECT_EQ(reported(), QList<int>({3024}));
    EXPECT_EQ(said(), Lines());
}

TEST_F(AlbumClassing, AddsAWordAfterAQuestionAndOffersItFromTheNextOpening) {
    const QString asks = "Voulez vous vraiment ajouter ";
    form().CmbDiagno.setText("Kyste");
    form().CmbCrit1.setText("Rein");
    form().CmbCrit2.setText("Profil");
    form().CmbCrit3.setText("Courrier");
    world_.boxes.answers = {true, true, true, true};
    click(form().CmdAjouD);
    click(form().CmdAjouC1);
    click(form().CmdAjouC2);
    click(form().CmdAjouC3);
    EXPECT_EQ(asked(), Lines({asks + "Kyste comme critère diagnostique ?", asks + "Rein comme mot clef ?",
                              asks + "Profil comme mot clef ?", asks + "Courrier comme mot clef ?"}));
    EXPECT_EQ(world_.boxes.icons, QList<ports::Icon>(4, ports::Icon::Question));
    EXPECT_EQ(stored("CLEFS", "NUMCRIT"), Lines({"0", "1", "2", "3"}));
    EXPECT_EQ(stored("CLEFS", "CRIT"), Lines({"Kyste", "Rein", "Profil", "Courrier"}));
    EXPECT_EQ(form().CmbDiagno.items() + form().CmbRechCrit3.items(), Lines());
    world_.desk.unload("Form20");
    EXPECT_EQ(form().CmbDiagno.items() + form().CmbRechCrit3.items(), Lines({"Kyste", "Courrier"}));
}

TEST_F(AlbumClassing, AddsAWordByTheMenuAndByADoubleClickToo) {
    form().CmbDiagno.setText("Kyste");
    form().CmbCrit1.setText("Rein");
    form().CmbCrit2.setText("Profil");
    form().CmbCrit3.setText("Courrier");
    world_.boxes.answers = QList<bool>(8, true);
    for (forms::Menu* entry : {&form().ADiagno, &form().AClef1, &form().AClef2, &form().AClef3}) {
        click(*entry);
    }
    for (forms::ComboBox* box : {&form().CmbDiagno, &form().CmbCrit1, &form().CmbCrit2, &form().CmbCrit3}) {
        twice(*box);
    }
    EXPECT_EQ(stored("CLEFS", "NUMCRIT"), Lines({"0", "1", "2", "3", "0", "1", "2", "3"}));
}

TEST_F(AlbumClassing, AddsNoWordOnNoNorAnEmptyOne) {
    click(form().CmdAjouD);
    EXPECT_EQ(asked(), Lines());
    form().CmbDiagno.setText("Kyste");
    click(form().CmdAjouD);
    EXPECT_EQ(asked().size(), 1);
    EXPECT_EQ(stored("CLEFS", "CRIT"), Lines());
}

TEST_F(AlbumClassing, RemovesTheWordOfTheSearchAndRefillsItsBoxes) {
    const QString asks = "Voulez vous vraiment supprimer ";
    for (int list = 0; list < KeyWords::kLists; ++list) {
        word(list, "A");
        word(list, "B");
    }
    record("a.bmp", {{"DIAGNO", "A"}});
    const std::initializer_list<forms::ComboBox*> boxes{&form().CmbRechDiag, &form().CmbRechCrit1, &form().CmbRechCrit2,
                                                        &form().CmbRechCrit3};
    for (forms::ComboBox* box : boxes) {
        box->setText("A");
    }
    form().CmbDiagno.setText("B");
    world_.boxes.answers = QList<bool>(4, true);
    for (forms::Menu* entry : {&form().SDiagno, &form().SClef1, &form().SClef2, &form().SClef3}) {
        click(*entry);
    }
    EXPECT_EQ(asked(), Lines({asks + "A comme critère diagnostique ?", asks + "A comme mot clef ?",
                              asks + "A comme mot clef ?", asks + "A comme mot clef ?"}));
    EXPECT_EQ(world_.boxes.icons, QList<ports::Icon>(4, ports::Icon::Question));
    EXPECT_EQ(stored("CLEFS", "NUMCRIT"), Lines({"0", "1", "2", "3"}));
    EXPECT_EQ(stored("CLEFS", "CRIT"), Lines({"B", "B", "B", "B"}));
    for (const forms::ComboBox* box : boxes) {
        EXPECT_EQ(box->items(), Lines({"B"}));
        EXPECT_EQ(box->text(), "");
    }
    EXPECT_EQ(form().CmbDiagno.text(), "");
    EXPECT_EQ(form().CmbDiagno.items(), Lines({"B"}));
    EXPECT_EQ(stored("ECHOS", "DIAGNO"), Lines({"A"}));
}

TEST_F(AlbumClassing, RemovesOnlyFromItsOwnList) {
    word(1, "Coeur");
    word(2, "Coeur");
    form().CmbRechCrit2.setText("Coeur");
    world_.boxes.answers = {true};
    click(form().SClef2);
    EXPECT_EQ(stored("CLEFS", "NUMCRIT"), Lines({"1"}));
}

TEST_F(AlbumClassing, RemovesNoWordOnNoNorAnEmptyOneNorOneThatIsNotThere) {
    word(0, "Kyste");
    click(form().SDiagno);
    form().CmbRechDiag.setText("Kystes");
    click(form().SDiagno);
    EXPECT_EQ(asked(), Lines());
    form().CmbRechDiag.setText("Kyste");
    click(form().SDiagno);
    EXPECT_EQ(asked().size(), 1);
    EXPECT_EQ(stored("CLEFS", "CRIT"), Lines({"Kyste"}));
    EXPECT_EQ(form().CmbRechDiag.text(), "Kyste");
}

TEST_F(AlbumClassing, EndsAFailureWithAWordQuietly) {
    word(0, "Kyste de l'ovaire");
    form().CmbRechDiag.setText("Kyste de l'ovaire");
    click(form().SDiagno);
    EXPECT_EQ(asked(), Lines());
    QFile::remove(base());
    form().CmbDiagno.setText("Kyste");
    click(form().CmdAjouD);
    EXPECT_EQ(asked(), Lines());
    EXPECT_EQ(said(), Lines());
    EXPECT_EQ(reported(), QList<int>());
}

TEST_F(AlbumClassing, AddsAWordWithAnApostrophe) {
    form().CmbDiagno.setText("Kyste de l'ovaire");
    world_.boxes.answers = {true};
    click(form().CmdAjouD);
    EXPECT_EQ(stored("CLEFS", "CRIT"), Lines({"Kyste de l'ovaire"}));
}

TEST_F(AlbumClassing, OpensTheHelp) {
    click(form().Aide);
    EXPECT_EQ(world_.help.shown, Lines({path("VERANOX.HLP")}));
}

TEST_F(AlbumClassing, ClosesByItsMenu) {
    click(form().Qui);
    EXPECT_EQ(world_.desk.peek("Form20"), nullptr);
}

}  // namespace
}  // namespace pictures
