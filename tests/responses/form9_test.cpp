#include "responses/form9.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>

#include "fakes/practice_files.h"

namespace responses {
namespace {

using Lines = QStringList;

constexpr int kNoText = 13;
constexpr int kNotThere = 3021;

class ResponseEditor : public ::testing::Test {
protected:
    ResponseEditor() {
        fakes::makeFiles(world_);
        world_.desk.add("Form9", [this] { return std::make_unique<Form9>(world_.around, state_); });
        world_.desk.show("Form9");
    }

    Form9& form() { return world_.desk.at<Form9>(); }
    void click(const QString& button) {
        world_.desk.act([&] { form().find(button)->click(); });
    }
    void chooseRow(int row) {
        form().List1.setRow(row);
        world_.desk.act([&] { form().List1.doubleClick(); });
    }
    void addPhrase(int rubric, const QString& text, const store::Value& closing) {
        fakes::add(world_, "OPTIONS", {{"NUMEROS", rubric}, {"Texte", text}, {"TERMINAIS", closing}});
    }
    /// What the table holds, a line a record: rubric, text, closing letter.
    Lines stored() {
        Lines lines;
        auto rows = store::Database::open(echo()).openRecordset("SELECT*FROM OPTIONS");
        for (; !rows.eof(); rows.moveNext()) {
            lines << rows.text("NUMEROS") + u'|' + rows.text("Texte") + u'|' + rows.text("TERMINAIS");
        }
        return lines;
    }
    QString echo() const { return fakes::pathOf(world_, store::FileKind::Echo); }
    QString options() {
        return QString(form().OBSuite.checked() ? "A" : "") + (form().OBLigne.checked() ? "B" : "") +
               (form().OBClot.checked() ? "C" : "");
    }
    const QStringList& said() const { return world_.boxes.said; }
    const QList<int>& reported() const { return world_.boxes.reported; }

    fakes::World world_;
    store::State state_;
};

struct RubricCase {
    int number;
    const char* button;
    const char* caption;
    const char* title;
};

// The rubrics as the practice knows them, a second time.
const RubricCase kCases[] = {
    {1, "CmdOperateurs", "Praticiens", "Opérateurs"},
    {2, "CmdModExam", "Modalités d'Examen", "Modalités d'Examen"},
    {3, "CmdCondExam", "Conditions d'Examen", "Conditions d'Examen"},
    {4, "CmdSituation", "Situation du sac", "Situation du sac"},
    {5, "CmdAspect", "Aspect du Sac", "Aspect du sac"},
    {6, "CmdMA", "Mouvements Actifs", "Mouvements actifs"},
    {7, "CmdIndications", "Indications", "Indication de l'Echo"},
    {8, "CmdUterus", "Uterus", "Pathologie Utérine"},
    {9, "CmdAnnexes", "Annexes", "Pathologie Annexielle"},
    {10, "CmdDouglas", "Douglas", "Douglas pathologique"},
    {11, "CmdMorpho", "Morpho. de l'Embryon", "Morphologie de l'Embryon"},
    {12, "CmdLA", "Liquide Amniotique", "Liquide amniotique"},
    {13, "cmdPl", "Tropho. et Placenta", "Trophoblaste et Placenta"},
    {14, "CmdApp", "Type d' Appareil", "Marque de l'Appareil"},
    {15, "CmdDateApp", "Date de mise en service", "1ère mise en circulation"},
    {16, "CmdConclu1", "Conclusion Embryon", "Conclusion Embryon"},
    {17, "CmdMorphoF", "Morpho du Foetus Perso", "Morphologie du Foetus"},
    {18, "CmdConclu2", "Conclusion Foetus", "Conclusion Foetus"},
    {19, "CmdEta", "Etablissement", "Etablissement"},
    {20, "CmdNom", "Nom", "Nom"},
    {21, "CmdAdress", "Adresse", "Adresse"},
    {22, "CmdVille", "Ville  Depart.", "Ville Département"},
    {23, "CmdTel", "Téléphone", "Téléphone"},
    {25, "CmdPresent", "Présentation", "Présentation"},
    {26, "CmdZoneA", "Zone A", "Morpho Taiple - Zone A"},
    {27, "CmdZoneB", "Zone B", "Morpho Taiple - Zone B"},
    {28, "CmdZoneC", "Zone C", "Morpho Taiple - Zone C"},
    {29, "CmdZoneD", "Zone D", "Morpho Taiple - Zone D"},
    {30, "CmdOvaires", "Ovaires", "Ovaires"},
    {31, "CmdTrompes", "Trompes", "Trompes"},
    {32, "CmdPosUt", "Position utérus", "Position Utérus"},
    {33, "CmdEchoStruct", "Echostructure", "Echostructure"},
    {34, "CmdCavUt", "Cavité utérine", "Cavité Utérine"},
    {35, "CmdEndo", "Endomètre", "Endomètre"},
    {36, "CmdDIU", "D.I.U.", "D.I.U."},
    {37, "CmdMasse", "Masse Utérine", "Masse utérine"},
    {38, "CmdSitMasse", "Situation Masse", "Situation Masse"},
    {39, "CmdNatMasse", "Nature Masse", "Nature Masse"},
    {40, "CmdOrMasse", "Origine Masse", "Origine Masse"},
    {41, "CmdConclu3", "Conclusion", "Conclusion Gynéco"},
    {42, "CmdIndicGyn", "Indication", "Indication"},
    {45, "CmdOPN", "OPN", "OPN"},
    {50, "Cmdremark1", "Remarques 1", "Remarques 1"},
    {51, "CmdRemark2", "Remarques 2", "Remarques 2"},
    {55, "CmdDop", "Doppler Utérines", "Doppler Utérines"},
};

TEST_F(ResponseEditor, OpensEachRubricByItsButton) {
    for (const RubricCase& rubric : kCases) {
        addPhrase(rubric.number, QString("phrase %1").arg(rubric.number), "A");
    }
    for (const RubricCase& rubric : kCases) {
        click(rubric.button);
        EXPECT_EQ(form().find(QString(rubric.button))->text(), rubric.caption);
        EXPECT_EQ(form().Frame1.text(), rubric.title);
        EXPECT_EQ(form().LblEspion.text(), QString::number(rubric.number));
        EXPECT_EQ(form().List1.items(), Lines(QString("phrase %1").arg(rubric.number)));
    }
    EXPECT_EQ(form().RubricButtons.size(), std::size(kCases));
}

TEST_F(ResponseEditor, HasEachRubricButtonInAFrame) {
    for (const forms::Button& button : form().RubricButtons) {
        EXPECT_NE(button.holder(), nullptr) << button.name().toStdString();
    }
}

TEST_F(ResponseEditor, CarriesItsTitleAndItsHead) {
    EXPECT_EQ(form().title(), "Options");
    EXPECT_EQ(form().Label1.text(), "Gestion des réponses mémorisées");
}

TEST_F(ResponseEditor, CarriesTheCaptionsOfItsFramesAndButtons) {
    EXPECT_EQ(form().Frame2.text(), "Praticiens - Appareil");
    EXPECT_EQ(form().Frame3.text(), "Divers");
    EXPECT_EQ(form().Frame4.text(), "1er Trimestre");
    EXPECT_EQ(form().Frame5.text(), "Gynécologie");
    EXPECT_EQ(form().Frame6.text(), "2ème - 3ème Trimestre");
    EXPECT_EQ(form().Frame8.text(), "Morpho Taiple");
    EXPECT_EQ(form().CmdAjoute.text(), "&Ajouter");
    EXPECT_EQ(form().CmdModif.text(), "&Modifier");
    EXPECT_EQ(form().CmdSupprime.text(), "&Supprimer");
    EXPECT_EQ(form().OBSuite.text(), "A la suite");
    EXPECT_EQ(form().OBLigne.text(), "Va à la ligne");
    EXPECT_EQ(form().OBClot.text(), "Clôt la rubrique");
    EXPECT_EQ(form().CmdIntro.text(), "Introduction Cpte Rendu");
    EXPECT_EQ(form().CmdEnreg.text(), "Enregistrer");
    EXPECT_EQ(form().CmdAnul.text(), "Annuler Quitter");
}

TEST_F(ResponseEditor, HoldsTheIntroductionInItsPanel) {
    for (const forms::Control* control :
         std::initializer_list<forms::Control*>{&form().TxtIntro, &form().CmdEnreg, &form().CmdAnul}) {
        EXPECT_EQ(control->holder(), &form().Frame9) << control->name().toStdString();
    }
}

TEST_F(ResponseEditor, ReadsThePathAtLoadAgain) {
    EXPECT_EQ(state_.PathEcho, echo());
    world_.desk.unload("Form9");
    world_.settings.put("CHEMIN", "/ailleurs/ECHO.MDB");
    world_.desk.show("Form9");
    EXPECT_EQ(state_.PathEcho, "/ailleurs/ECHO.MDB");
}

TEST_F(ResponseEditor, LooksInTheProgramsFolderWithoutASetting) {
    world_.desk.unload("Form9");
    world_.settings.values.clear();
    world_.desk.show("Form9");
    EXPECT_EQ(state_.PathEcho, world_.folder.path());
}

TEST_F(ResponseEditor, ListsInStoreOrderButTheZonesByIndex) {
    click("CmdOPN");
    EXPECT_EQ(state_.SqlEcho, "SELECT*FROM OPTIONS WHERE NUMEROS = 45 ");
    click("CmdZoneC");
    EXPECT_EQ(state_.SqlEcho, "SELECT*FROM OPTIONS WHERE NUMEROS = 28 ORDER BY INDEX");
}

TEST_F(ResponseEditor, AddsToTheOpenRubric) {
    addPhrase(7, "Datation.", "C");
    click("CmdIndications");
    form().Text1.setText("Métrorragies d'hier");
    form().OBLigne.setChecked(true);
    click("CmdAjoute");
    EXPECT_EQ(stored(), Lines({"7|Datation.|C", "7|Métrorragies d'hier|B"}));
    EXPECT_EQ(form().List1.items(), Lines({"Datation.", "Métrorragies d'hier"}));
    EXPECT_EQ(form().Text1.text(), "");
    EXPECT_EQ(form().focused(), &form().Text1);
    EXPECT_TRUE(said().isEmpty());
}

TEST_F(ResponseEditor, TakesTheLetterFromTheOptionThatIsOn) {
    click("CmdOPN");
    EXPECT_EQ(options(), "A");
    for (forms::Option* option : {&form().OBSuite, &form().OBLigne, &form().OBClot}) {
        option->setChecked(true);
        form().Text1.setText("x");
        click("CmdAjoute");
    }
    EXPECT_EQ(stored(), Lines({"45|x|A", "45|x|B", "45|x|C"}));
}

TEST_F(ResponseEditor, KeepsTheLetterOfTheLastActionWithNoOptionOn) {
    addPhrase(45, "vue", {});
    click("CmdOPN");
    form().OBClot.setChecked(true);
    form().Text1.setText("un");
    click("CmdAjoute");
    chooseRow(0);
    ASSERT_EQ(options(), "");
    form().Text1.setText("deux");
    click("CmdAjoute");
    EXPECT_EQ(stored().last(), "45|deux|C");
}

TEST_F(ResponseEditor, WritesAWithNoOptionOnBeforeAnyAction) {
    addPhrase(45, "vue", "Z");
    click("CmdOPN");
    chooseRow(0);
    click("CmdModif");
    EXPECT_EQ(stored(), Lines("45|vue|A"));
}

TEST_F(ResponseEditor, AsksForATextBeforeAnything) {
    addPhrase(7, "Datation.", "C");
    click("CmdIndications");
    click("CmdAjoute");
    click("CmdModif");
    click("CmdSupprime");
    EXPECT_EQ(said(), Lines({"Veuillez saisir un Item au préalable", "Veuillez selectionner un Item par Double Click",
                             "Veuillez selectionner un Item au préalable par Double Click."}));
    EXPECT_EQ(form().List1.items(), Lines("Datation."));
    EXPECT_EQ(stored(), Lines("7|Datation.|C"));
}

TEST_F(ResponseEditor, AddsNothingWithNoRubricOpen) {
    form().Text1.setText("perdue");
    click("CmdAjoute");
    EXPECT_EQ(reported(), QList<int>({kNoText}));
    EXPECT_TRUE(stored().isEmpty());
    EXPECT_EQ(form().Text1.text(), "perdue");
}

TEST_F(ResponseEditor, ShowsTheChosenPhraseAndItsClosing) {
    for (const char* letter : {"A", "B", "C"}) {
        addPhrase(7, QString("phrase ") + letter, letter);
    }
    click("CmdIndications");
    for (int row = 2; row >= 0; --row) {
        chooseRow(row);
        EXPECT_EQ(form().Text1.text(), form().List1.items().at(row));
        EXPECT_EQ(options(), QStringList({"A", "B", "C"}).at(row));
    }
}

TEST_F(ResponseEditor, SwitchesAllOptionsOffForAnotherOrNoClosing) {
    addPhrase(7, "autre", "D");
    addPhrase(7, "aucune", {});
    click("CmdIndications");
    for (const int row : {0, 1}) {
        form().OBSuite.setChecked(true);
        chooseRow(row);
        EXPECT_EQ(options(), "");
    }
}

TEST_F(ResponseEditor, ChangesAndDeletesAPhraseWithApostrophes) {
    addPhrase(7, "l'un", "A");
    addPhrase(7, "l'autre d'''ici", "A");
    click("CmdIndications");
    chooseRow(1);
    EXPECT_EQ(form().Text1.text(), "l'autre d'''ici");
    form().Text1.setText("l'autre d'ailleurs");
    form().OBClot.setChecked(true);
    click("CmdModif");
    EXPECT_EQ(stored(), Lines({"7|l'un|A", "7|l'autre d'ailleurs|C"}));
    click("CmdSupprime");
    EXPECT_EQ(stored(), Lines("7|l'un|A"));
    EXPECT_TRUE(said().isEmpty());
    EXPECT_TRUE(reported().isEmpty());
}

TEST_F(ResponseEditor, TakesTheNewTextForTheChosenOneAfterAChange) {
    addPhrase(7, "un", "A");
    click("CmdIndications");
    chooseRow(0);
    form().Text1.setText("deux");
    click("CmdModif");
    EXPECT_EQ(form().Text1.text(), "deux");
    form().Text1.setText("trois");
    click("CmdModif");
    EXPECT_EQ(stored(), Lines("7|trois|A"));
}

TEST_F(ResponseEditor, LooksForTheChosenTextWhateverWasTyped) {
    addPhrase(7, "un", "A");
    addPhrase(7, "deux", "A");
    click("CmdIndications");
    chooseRow(0);
    form().Text1.setText("deux");
    click("CmdSupprime");
    EXPECT_EQ(stored(), Lines("7|deux|A"));
    EXPECT_EQ(form().Text1.text(), "deux");
}

TEST_F(ResponseEditor, ActsOnTheFirstOfTwoEqualPhrases) {
    addPhrase(7, "pareil", "A");
    addPhrase(7, "pareil", "B");
    click("CmdIndications");
    chooseRow(1);
    EXPECT_EQ(options(), "A");
    click("CmdSupprime");
    EXPECT_EQ(stored(), Lines("7|pareil|B"));
}

TEST_F(ResponseEditor, LeavesTheOtherPhrasesAloneWhenTheChosenOneIsGone) {
    addPhrase(7, "première", "A");
    addPhrase(7, "seconde", "A");
    click("CmdIndications");
    chooseRow(1);
    click("CmdSupprime");
    click("CmdSupprime");
    form().Text1.setText("changée");
    click("CmdModif");
    EXPECT_EQ(reported(), QList<int>({kNotThere, kNotThere}));
    EXPECT_EQ(stored(), Lines("7|première|A"));
}

TEST_F(ResponseEditor, ChangesNothingWhenNothingWasChosen) {
    addPhrase(7, "première", "A");
    click("CmdIndications");
    form().Text1.setText("tapée");
    click("CmdModif");
    click("CmdSupprime");
    EXPECT_EQ(reported(), QList<int>({kNotThere, kNotThere}));
    EXPECT_EQ(stored(), Lines("7|première|A"));
}

TEST_F(ResponseEditor, ListsInStoreOrderAfterAChangeAndADeletion) {
    for (const char* text : {"a", "b", "c"}) {
        addPhrase(26, text, "A");
    }
    click("CmdZoneA");
    chooseRow(0);
    form().Text1.setText("z");
    click("CmdModif");
    EXPECT_EQ(form().List1.items(), Lines({"z", "b", "c"}));
    EXPECT_EQ(state_.SqlEcho, "SELECT*FROM OPTIONS WHERE NUMEROS =26");
    chooseRow(1);
    click("CmdSupprime");
    EXPECT_EQ(form().List1.items(), Lines({"z", "c"}));
}

TEST_F(ResponseEditor, ADoubleClickBesideAnyLineDoesNothing) {
    click("CmdOPN");
    form().Text1.setText("en cours");
    chooseRow(-1);
    EXPECT_EQ(form().Text1.text(), "en cours");
    EXPECT_TRUE(said().isEmpty());
}

TEST_F(ResponseEditor, ADoubleClickThatFailsSaysSoAndGoesOn) {
    addPhrase(7, "Datation.", "C");
    click("CmdIndications");
    QFile::rename(echo(), echo() + ".ailleurs");
    chooseRow(0);
    EXPECT_EQ(said(), Lines("Impossible"));
    EXPECT_TRUE(reported().isEmpty());
    EXPECT_EQ(form().Text1.text(), "Datation.");
    EXPECT_EQ(options(), "C");
}

TEST_F(ResponseEditor, APhraseThatAnotherStationRemovedIsImpossible) {
    addPhrase(7, "Datation.", "C");
    addPhrase(7, "Autre.", "B");
    click("CmdIndications");
    auto rows = store::Database::open(echo()).openRecordset("SELECT*FROM OPTIONS");
    rows.remove();
    chooseRow(0);
    EXPECT_EQ(said(), Lines("Impossible"));
    EXPECT_EQ(options(), "");
    EXPECT_EQ(form().Text1.text(), "Datation.");
}

TEST_F(ResponseEditor, ReportsAMissingBaseAndKeepsTheText) {
    click("CmdOPN");
    QFile::remove(echo());
    form().Text1.setText("vue");
    click("CmdAjoute");
    click("CmdModif");
    click("CmdSupprime");
    click("CmdDouglas");
    EXPECT_EQ(reported(), QList<int>({3024, 3024, 3024, 3024}));
    EXPECT_EQ(form().Text1.text(), "vue");
    EXPECT_FALSE(QFile::exists(echo()));
}

TEST_F(ResponseEditor, TheIntroductionOpensEmptyWithoutAFile) {
    EXPECT_FALSE(form().Frame9.visible());
    click("CmdIntro");
    EXPECT_TRUE(form().Frame9.visible());
    EXPECT_EQ(form().Frame1.text(), "Introduction");
    EXPECT_EQ(form().TxtIntro.text(), "");
    EXPECT_TRUE(said().isEmpty());
    EXPECT_TRUE(reported().isEmpty());
}

TEST_F(ResponseEditor, TheIntroductionIsSavedAndShownAgain) {
    click("CmdIntro");
    form().TxtIntro.setText("Madame, \"voici\"\r\nl'examen");
    click("CmdEnreg");
    EXPECT_FALSE(form().Frame9.visible());
    form().TxtIntro.setText("autre");
    click("CmdIntro");
    EXPECT_EQ(form().TxtIntro.text(), "Madame, \"voici\"\r\nl'examen");
    EXPECT_EQ(Introduction(world_.folder.path()).read(), "Madame, \"voici\"\r\nl'examen");
}

TEST_F(ResponseEditor, TheIntroductionCanBeLeftUnsaved) {
    click("CmdIntro");
    form().TxtIntro.setText("à ne pas garder");
    click("CmdAnul");
    EXPECT_FALSE(form().Frame9.visible());
    EXPECT_FALSE(QFile::exists(world_.folder.filePath("intro")));
}

TEST_F(ResponseEditor, AnIntroductionThatCannotBeWrittenStaysInItsPanel) {
    click("CmdIntro");
    QDir(world_.folder.path()).mkdir("intro");
    form().TxtIntro.setText("à garder");
    click("CmdEnreg");
    EXPECT_EQ(reported().size(), 1);
    EXPECT_TRUE(form().Frame9.visible());
    EXPECT_EQ(form().TxtIntro.text(), "à garder");
}

TEST_F(ResponseEditor, QuitterUnloadsIt) {
    click("CmdQuitter");
    EXPECT_EQ(world_.desk.peek("Form9"), nullptr);
}

}  // namespace
}  // namespace responses
