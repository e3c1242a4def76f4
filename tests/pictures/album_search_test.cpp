// The album's searches, its wall and the ways to one picture.

#include "album_window.h"

namespace pictures {
namespace {

using Lines = QStringList;

class AlbumSearching : public AlbumWindow {
protected:
    // The numbers that the lines of the search by all fields begin with.
    QString numbers() {
        Lines found;
        for (const QString& line : form().ListNom.items()) {
            found << line.section(u' ', 0, 0);
        }
        return found.join(u' ');
    }
    QString searchAll() {
        click(form().Command1);
        return numbers();
    }
    // The names of the files on the wall, "-" for a place without a picture, up to the last that has one or a path.
    QString wall() {
        Lines places;
        for (int place = 0; place < Wall::kPlaces; ++place) {
            const QString path = form().TxtPath(place).text();
            places << (form().Image1(place).empty() ? u'-' + path.section(u'/', -1) : path.section(u'/', -1));
        }
        return places.join(u' ');
    }
    QString view() {
        return Lines({form().LblPath.text().section(u'/', -1), form().LblFilename.text(), form().TxtNom.text(),
                      form().TxtPrenom.text(), form().TxtDate.text(), form().CmbDiagno.text()})
            .join(u'|');
    }
    bool large() { return form().Image2.visible() && form().CmdImpr.visible() && form().CmdFermer.visible(); }
};

TEST_F(AlbumSearching, AsksForAllFieldsInOneText) {
    EXPECT_EQ(queryText({.diagnosis = "Kyste",
                         .surname = "MARTIN",
                         .date = "05/2002",
                         .words = {"Ovaire", "Axiale", "Belle image"},
                         .kind = "4"}),
              "SELECT*FROM ECHOS WHERE DIAGNO LIKE '*Kyste*' AND NOM LIKE '*MARTIN*' AND DATEXAM LIKE '*05/2002*' AND "
              "CRIT1 LIKE '*Ovaire*' AND CRIT2 LIKE '*Axiale*' AND CRIT3 LIKE '*Belle image*' AND TYPEXAM ='4'");
    EXPECT_EQ(
        queryText({}),
        "SELECT*FROM ECHOS WHERE DIAGNO LIKE '**' AND NOM LIKE '**' AND DATEXAM LIKE '**' AND CRIT1 LIKE '**' AND "
        "CRIT2 LIKE '**' AND CRIT3 LIKE '**' AND TYPEXAM >='0'");
}

TEST_F(AlbumSearching, ListsALineAndAPathForEachPictureInTheOrderOfTheirAddition) {
    record("z.bmp", {{"Nom", "ZOLA"}, {"DATEXAM", "03/05/2002"}});
    record("a.bmp", {{"Nom", "ABEL"}, {"Prenom", "Eva"}});
    click(form().Command1);
    EXPECT_EQ(form().ListNom.items(), Lines({"1     ZOLA Anne 03/05/2002 // " + path("z.bmp"),
                                             "2     ABEL Eva 02/05/2002 // " + path("a.bmp")}));
    EXPECT_EQ(form().List4.items(), Lines({path("z.bmp"), path("a.bmp")}));
    EXPECT_TRUE(form().CmdAffiche.visible());
    EXPECT_EQ(said(), Lines());
}

TEST_F(AlbumSearching, FindsByEachField) {
    record("1.bmp");
    record("2.bmp", {{"Nom", "D'ALMEIDA"}, {"DIAGNO", "Rétrécissement"}});
    record("3.bmp", {{"DATEXAM", "12/11/2001"}, {"CRIT1", "Reins"}, {"CRIT2", "Axiale"}, {"CRIT3", "À revoir"}});
    const std::pair<forms::TextControl&, QString> wanted[] = {
        {form().CmbRechDiag, "RÉTRÉC"}, {form().TxtRechNom, "almeida"},  {form().TxtRechDate, "11/2001"},
        {form().CmbRechCrit1, "rein"},  {form().CmbRechCrit2, "Axiale"}, {form().CmbRechCrit3, "revoir"}};
    Lines found;
    for (const auto& [field, text] : wanted) {
        field.setText(text);
        found << searchAll();
        field.setText({});
    }
    EXPECT_EQ(found, Lines({"2", "2", "3", "3", "3", "3"}));
    form().TxtRechNom.setText("MARTIN");
    form().CmbRechCrit1.setText("Face");
    EXPECT_EQ(searchAll(), "1");
    EXPECT_EQ(said(), Lines());
}

TEST_F(AlbumSearching, FindsByTheKindOfExamOrAllOfThem) {
    for (const char* kind : {"1", "2", "3", "4"}) {
        record(QString(kind) + ".bmp", {{"Typexam", kind}});
    }
    record("5.bmp", {{"Typexam", store::Value()}});
    EXPECT_EQ(searchAll(), "1 2 3 4");
    Lines found;
    for (forms::Option* kind : {&form().Option5, &form().Option6, &form().Option7, &form().Option8, &form().Option9}) {
        kind->setChecked(true);
        found << searchAll();
    }
    EXPECT_EQ(found, Lines({"1", "2", "3", "4", "1 2 3 4"}));
}

TEST_F(AlbumSearching, NeverFindsAPictureThatLacksAWord) {
    record("1.bmp");
    for (const char* field : {"DIAGNO", "CRIT1", "CRIT2", "CRIT3", "Nom", "DATEXAM"}) {
        record(QString(field) + ".bmp", {{field, store::Value()}});
    }
    EXPECT_EQ(searchAll(), "1");
}

TEST_F(AlbumSearching, SaysThatNothingWasFound) {
    records(1);
    click(form().Command1);
    form().TxtRechNom.setText("NEMO");
    click(form().Command1);
    EXPECT_EQ(said(), Lines({kNothingFound}));
    EXPECT_FALSE(form().CmdAffiche.visible());
    EXPECT_EQ(form().ListNom.items() + form().List4.items(), Lines());
}

TEST_F(AlbumSearching, ClearsTheWallAndTheListsFirst) {
    put("p1.bmp");
    records(1);
    click(form().Command1);
    click(form().CmdAffiche);
    ASSERT_FALSE(form().Image1(0).empty());
    form().TxtRechNom.setText("D'A");
    click(form().Command1);
    EXPECT_EQ(reported(), QList<int>({3075}));
    EXPECT_TRUE(form().Image1(0).empty());
    EXPECT_EQ(form().TxtPath(0).text(), "");
    EXPECT_EQ(form().ListNom.items() + form().List4.items(), Lines());
    EXPECT_EQ(form().pointer(), forms::Pointer::Normal);
}

TEST_F(AlbumSearching, TakesAStarForAWildCardAndNothingElse) {
    record("1.bmp", {{"DIAGNO", "Kyste de 12 mm [ovaire]"}});
    record("2.bmp", {{"DIAGNO", "Kyste #2"}});
    Lines found;
    for (const char* text : {"K*2", "#", "[", "K?ste", "%"}) {
        form().CmbRechDiag.setText(text);
        found << searchAll();
    }
    EXPECT_EQ(found, Lines({"1 2", "2", "1", "", ""}));
}

TEST_F(AlbumSearching, SortsByDateAsText) {
    record("1.bmp", {{"Nom", "ZOLA"}, {"Prenom", "Emilie"}, {"DATEXAM", "21/05/2002"}});
    record("2.bmp", {{"Nom", "ABEL"}, {"Prenom", "Eva"}, {"DATEXAM", "03/06/2002"}});
    record("3.bmp", {{"DATEXAM", "03/06/2001"}});
    form().TxtRechDate.setText("2002");
    click(form().TriDate);
    EXPECT_EQ(form().ListNom.items(), Lines({"03/06/2002  ABEL  Eva", "21/05/2002  ZOLA  Emilie"}));
    EXPECT_EQ(form().List4.items(), Lines({path("2.bmp"), path("1.bmp")}));
    EXPECT_TRUE(form().CmdAffiche.visible());
}

TEST_F(AlbumSearching, SortsByName) {
    record("1.bmp", {{"Nom", "MARTINEAU"}, {"Prenom", "Paule"}});
    record("2.bmp");
    record("3.bmp", {{"Nom", "ABEL"}});
    form().TxtRechNom.setText("martin");
    click(form().TriNom);
    EXPECT_EQ(form().ListNom.items(), Lines({"MARTIN  Anne  02/05/2002", "MARTINEAU  Paule  02/05/2002"}));
    EXPECT_EQ(form().List4.items(), Lines({path("2.bmp"), path("1.bmp")}));
}

TEST_F(AlbumSearching, FindsADiagnosisAndSortsByDate) {
    record("1.bmp", {{"DIAGNO", "Kyste"}, {"DATEXAM", "09/05/2002"}});
    record("2.bmp", {{"DIAGNO", "Kyste"}, {"DATEXAM", "08/05/2002"}});
    record("3.bmp");
    form().CmbRechDiag.setText("kys");
    click(form().TriDiag);
    EXPECT_EQ(form().ListNom.items(), Lines({"MARTIN  Anne  08/05/2002", "MARTIN  Anne  09/05/2002"}));
    EXPECT_EQ(form().List4.items(), Lines({path("2.bmp"), path("1.bmp")}));
}

TEST_F(AlbumSearching, SortsNothingByAnEmptyField) {
    records(1);
    click(form().Command1);
    for (forms::Menu* entry : {&form().TriDate, &form().TriNom, &form().TriDiag}) {
        click(*entry);
    }
    EXPECT_EQ(numbers(), "1");
    EXPECT_EQ(said(), Lines());
}

TEST_F(AlbumSearching, SaysThatASortedSearchFoundNothing) {
    records(1);
    click(form().Command1);
    form().TxtRechNom.setText("NEMO");
    form().TxtRechDate.setText("1999");
    form().CmbRechDiag.setText("rien");
    for (forms::Menu* entry : {&form().TriDate, &form().TriNom, &form().TriDiag}) {
        click(*entry);
    }
    EXPECT_EQ(said(), Lines({kNothingFound, kNothingFound, kNothingFound}));
    EXPECT_FALSE(form().CmdAffiche.visible());
    EXPECT_EQ(form().List4.items(), Lines());
}

TEST_F(AlbumSearching, ReportsASortedSearchForATextWithAnApostropheAndEmptiesItsLists) {
    records(1);
    form().TxtRechDate.setText("l'an 2002");
    form().TxtRechNom.setText("D'ALMEIDA");
    form().CmbRechDiag.setText("Kyste de l'ovaire");
    for (forms::Menu* entry : {&form().TriDate, &form().TriNom, &form().TriDiag}) {
        form().ListNom.setItems({"reste"});
        form().List4.setItems({"reste"});
        click(*entry);
        EXPECT_EQ(form().ListNom.items() + form().List4.items(), Lines()) << entry->label().toStdString();
    }
    EXPECT_EQ(reported(), QList<int>({3075, 3075, 3075}));
    EXPECT_EQ(said(), Lines());
}

TEST_F(AlbumSearching, ShowsTwentyFiveResultsInThreeClicks) {
    for (int i = 1; i <= 25; ++i) {
        put(QStringLiteral("p%1.bmp").arg(i));
    }
    records(25);
    click(form().Command1);
    const QString first =
        "p1.bmp p2.bmp p3.bmp p4.bmp p5.bmp p6.bmp p7.bmp p8.bmp p9.bmp p10.bmp p11.bmp p12.bmp p13.bmp p14.bmp "
        "p15.bmp p16.bmp p17.bmp p18.bmp p19.bmp p20.bmp";
    click(form().CmdAffiche);
    EXPECT_EQ(wall(), first);
    click(form().CmdAffiche);
    EXPECT_EQ(wall(), "p21.bmp p22.bmp p23.bmp p24.bmp p25.bmp - - - - - - - - - - - - - - -");
    click(form().CmdAffiche);
    EXPECT_EQ(wall(), first);
    EXPECT_EQ(said(), Lines());
}

TEST_F(AlbumSearching, StartsOverAtOnceWhereTwentyFillTheWall) {
    for (int i = 1; i <= 20; ++i) {
        put(QStringLiteral("p%1.bmp").arg(i));
    }
    records(20);
    click(form().Command1);
    click(form().CmdAffiche);
    const QString page = wall();
    click(form().CmdAffiche);
    EXPECT_EQ(wall(), page);
    EXPECT_FALSE(form().Image1(19).empty());
}

TEST_F(AlbumSearching, BeginsANewSearchOnTheFirstPage) {
    put("p1.bmp");
    records(25);
    click(form().Command1);
    click(form().CmdAffiche);
    form().TxtRechNom.setText("MARTIN");
    click(form().TriNom);
    EXPECT_FALSE(form().Image1(0).empty());
    click(form().CmdAffiche);
    EXPECT_EQ(form().TxtPath(0).text(), path("p1.bmp"));
}

TEST_F(AlbumSearching, LeavesThePlaceOfALostFileEmpty) {
    put("p1.bmp");
    put("p3.bmp");
    records(3);
    record("nowhere/p4.bmp");
    click(form().Command1);
    click(form().CmdAffiche);
    EXPECT_TRUE(wall().startsWith("p1.bmp - p3.bmp - -")) << wall().toStdString();
    EXPECT_EQ(said(), Lines());
}

TEST_F(AlbumSearching, TellsOfAFileThatIsNoPictureAndGoesOn) {
    put("p1.bmp");
    putBroken("p2.bmp");
    put("p3.bmp");
    records(3);
    click(form().Command1);
    click(form().CmdAffiche);
    EXPECT_EQ(said(), Lines({"Erreur de connection avec la base. \r\nOu le chemin d'un fichier image est erroné."}));
    EXPECT_EQ(world_.boxes.saidIcons, QList<ports::Icon>({ports::Icon::Exclamation}));
    EXPECT_TRUE(wall().startsWith("p1.bmp -p2.bmp p3.bmp -")) << wall().toStdString();
}

TEST_F(AlbumSearching, KeepsThumbnailsOnTheWallAndAllPixelsOfTheLargePicture) {
    put("p1.bmp", Qt::red, {1200, 900});
    records(1);
    click(form().Command1);
    click(form().CmdAffiche);
    EXPECT_EQ(form().Image1(0).picture().size(), QSize(240, 180));
    twice(form().Image1(0));
    EXPECT_EQ(form().Image2.picture().size(), QSize(1200, 900));
}

TEST_F(AlbumSearching, OpensAPictureOfTheWallLarge) {
    put("p1.bmp");
    put("p2.bmp", Qt::red);
    records(1);
    record("p2.bmp", {{"Nom", "D'ALMEIDA"}, {"Prenom", "Inès"}, {"DATEXAM", "12/03/2002"}, {"DIAGNO", "Kyste"}});
    click(form().Command1);
    click(form().CmdAffiche);
    form().TxtNumEcho.setText("9");
    twice(form().Image1(1));
    EXPECT_TRUE(large());
    EXPECT_EQ(form().Image2.picture().pixelColor(0, 0), QColor(Qt::red));
    EXPECT_EQ(view(), "p2.bmp|p2.bmp|D'ALMEIDA|Inès|12/03/2002|Kyste");
    EXPECT_EQ(form().TxtNumEcho.text(), "9");
    click(form().CmdFermer);
    EXPECT_FALSE(form().Image2.visible() || form().CmdImpr.visible() || form().CmdFermer.visible());
}

TEST_F(AlbumSearching, OpensNothingFromAnEmptyPlace) {
    records(1);
    click(form().Command1);
    click(form().CmdAffiche);
    twice(form().Image1(0));
    twice(form().Image1(19));
    EXPECT_FALSE(large());
    EXPECT_EQ(asked(), Lines());
    EXPECT_EQ(reported(), QList<int>());
}

TEST_F(AlbumSearching, OpensTheChosenPathLarge) {
    put("p2.bmp");
    records(2);
    click(form().Command1);
    form().TxtNumEcho.setText("9");
    twicePath(1);
    EXPECT_TRUE(large());
    EXPECT_EQ(view(), "p2.bmp|p2.bmp|MARTIN|Anne|02/05/2002|Normal");
    EXPECT_EQ(form().TxtNumEcho.text(), "9");
}

TEST_F(AlbumSearching, OpensAPathWithCharactersOfPatterns) {
    put("[c] #1?.bmp", Qt::red);
    records(1);
    record("[c] #1?.bmp", {{"Nom", "ABEL"}});
    click(form().Command1);
    twicePath(1);
    EXPECT_EQ(view(), "[c] #1?.bmp|[c] #1?.bmp|ABEL|Anne|02/05/2002|Normal");
}

TEST_F(AlbumSearching, OpensTheClickedLineLargeWithTheExamNumber) {
    put("p2.bmp");
    records(2);
    form().TxtNumEcho.setText("9");
    click(form().Command1);
    clickLine(1);
    EXPECT_TRUE(large());
    EXPECT_EQ(view(), "p2.bmp|p2.bmp|MARTIN|Anne|02/05/2002|Normal");
    EXPECT_EQ(form().TxtNumEcho.text(), "");
}

TEST_F(AlbumSearching, TakesTheFirstNumberThatHoldsTheOneOfTheLine) {
    for (int i = 1; i <= 12; ++i) {
        put(QStringLiteral("p%1.bmp").arg(i));
    }
    records(12);
    click(form().Command1);
    store::Database::open(base()).openRecordset("SELECT*FROM ECHOS WHERE NUMINT=2").remove();
    clickLine(1);
    EXPECT_EQ(form().LblFilename.text(), "p12.bmp");
}

TEST_F(AlbumSearching, AsksAboutALostFileAndDeletesItsRecordOnYes) {
    records(3);
    click(form().Command1);
    clickLine(1);
    EXPECT_EQ(asked(), Lines({kLost}));
    EXPECT_EQ(files(), Lines({"p1.bmp", "p2.bmp", "p3.bmp"}));
    world_.boxes.answers = {true};
    clickLine(1);
    EXPECT_EQ(files(), Lines({"p1.bmp", "p3.bmp"}));
    world_.boxes.answers = {true};
    twicePath(2);
    EXPECT_EQ(asked(), Lines({kLost, kLost, kLost}));
    EXPECT_EQ(files(), Lines({"p1.bmp"}));
    EXPECT_FALSE(large());
}

TEST_F(AlbumSearching, AsksAboutAFileThatIsNoPictureToo) {
    putBroken("p1.bmp");
    records(1);
    click(form().Command1);
    clickLine(0);
    twicePath(0);
    EXPECT_EQ(asked(), Lines({kLost, kLost}));
    EXPECT_EQ(files(), Lines({"p1.bmp"}));
}

TEST_F(AlbumSearching, ReportsALineWhoseRecordIsGoneAndDeletesNothing) {
    records(3);
    click(form().Command1);
    store::Database::open(base()).openRecordset("SELECT*FROM ECHOS WHERE NUMINT=2").remove();
    world_.boxes.answers = {true, true};
    clickLine(1);
    twicePath(1);
    EXPECT_EQ(asked(), Lines());
    EXPECT_EQ(reported(), QList<int>({3021, 3021}));
    EXPECT_EQ(files(), Lines({"p1.bmp", "p3.bmp"}));
}

TEST_F(AlbumSearching, ReportsAPictureOfTheWallThatWasLostMeanwhile) {
    put("p1.bmp");
    records(1);
    click(form().Command1);
    click(form().CmdAffiche);
    QFile::remove(path("p1.bmp"));
    twice(form().Image1(0));
    EXPECT_EQ(asked(), Lines());
    EXPECT_EQ(reported(), QList<int>({53}));
    EXPECT_FALSE(large());
}

TEST_F(AlbumSearching, EndsAClickInASortedListInTheQuestionAndDeletesTheFirstRecordOfAll) {
    for (const char* file : {"p1.bmp", "p2.bmp", "p3.bmp"}) {
        put(file);
    }
    records(3);
    form().TxtRechDate.setText("2002");
    form().TxtRechNom.setText("MARTIN");
    for (forms::Menu* entry : {&form().TriDate, &form().TriNom}) {
        click(*entry);
        clickLine(2);
    }
    EXPECT_EQ(asked(), Lines({kLost, kLost}));
    EXPECT_EQ(files(), Lines({"p1.bmp", "p2.bmp", "p3.bmp"}));
    world_.boxes.answers = {true};
    clickLine(2);
    EXPECT_EQ(files(), Lines({"p2.bmp", "p3.bmp"}));
    EXPECT_FALSE(large());
    twicePath(2);
    EXPECT_EQ(form().LblFilename.text(), "p3.bmp");
    EXPECT_EQ(asked().size(), 3);
}

TEST_F(AlbumSearching, EndsAPathWithAnApostropheInTheQuestionAndKeepsItsRecord) {
    put("l'oeil.bmp");
    record("l'oeil.bmp");
    click(form().Command1);
    world_.boxes.answers = {true};
    twicePath(0);
    EXPECT_EQ(asked(), Lines({kLost}));
    EXPECT_EQ(reported(), QList<int>({3075}));
    EXPECT_EQ(files(), Lines({"l'oeil.bmp"}));
    clickLine(0);
    EXPECT_TRUE(large());
    EXPECT_EQ(form().LblFilename.text(), "l'oeil.bmp");
    click(form().CmdFermer);
    click(form().CmdAffiche);
    twice(form().Image1(0));
    EXPECT_EQ(reported(), QList<int>({3075, 3075}));
    EXPECT_EQ(asked().size(), 1);
    EXPECT_FALSE(large());
}

}  // namespace
}  // namespace pictures
