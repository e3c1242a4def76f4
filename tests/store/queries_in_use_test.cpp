// Every query text and criterion that a window sends, as it stands, on a practice small enough to know by heart.

#include "store/explain.h"
#include "store/files.h"

using store::Database;
using store::FileKind;
using store::Recordset;

namespace {

/// A query as a window sends it, and what it gives.
struct Use {
    QString query;
    QString rows;   // the values of the telling field, from the first row to the last
    QString first;  // what the plan says of reaching the first row, or of collecting the rows
};

/// A criterion on a query, and what it finds.
struct Find {
    QString query;
    QString criterion;
    QString first;  // the telling field of the row that is found from the front, empty for none
    QString last;   // and from the back
    QString plan;
};

const auto kNameIndex = u"INDEX FICHEPATIENT_Nom_Prenom"_qs;
const auto kExamIndex = u"INDEX 1TER_Numero_NUMECHO (Numero=?)"_qs;
const auto kOneExamIndex = u"INDEX 1TER_Numero_NUMECHO (Numero=? AND NUMECHO=?)"_qs;
const auto kGynaecologyIndex = u"INDEX GYNECO_Numero_NUMECHO (Numero=?)"_qs;
const auto kPhraseIndex = u"INDEX OPTIONS_NUMEROS (NUMEROS=?)"_qs;
const auto kWordIndex = u"INDEX CLEFS_NUMCRIT (NUMCRIT=?)"_qs;
const auto kHistoryIndex = u"INDEX FICHEATCD_Numint (Numint=?)"_qs;
const auto kSort = u"USE TEMP B-TREE FOR ORDER BY"_qs;

class QueriesInUse : public testing::Test {
protected:
    void expectUses(const Database& database, const QString& telling, const std::vector<Use>& uses) {
        for (const Use& use : uses) {
            SCOPED_TRACE(use.query.toStdString());
            EXPECT_EQ(column(database, use.query, telling).join(u' '), use.rows);
            expectBackwards(database, use.query, telling);
            const QString plan = store::explain(database, use.query);
            EXPECT_TRUE(plan.section(u'\n', 0, 0).contains(use.first)) << plan.toStdString();
            EXPECT_FALSE(plan.contains(u"next: SCAN"_qs)) << plan.toStdString();
        }
    }

    void expectFinds(const Database& database, const QString& telling, const std::vector<Find>& finds) {
        for (const Find& find : finds) {
            SCOPED_TRACE((find.query + u" | "_qs + find.criterion).toStdString());
            Recordset rows = database.openRecordset(find.query);
            rows.findFirst(find.criterion);
            EXPECT_EQ(rows.noMatch() ? QString() : rows.text(telling), find.first);
            rows.findLast(find.criterion);
            EXPECT_EQ(rows.noMatch() ? QString() : rows.text(telling), find.last);
            const QString plan = store::explain(database, find.query, find.criterion);
            EXPECT_TRUE(plan.contains(u"find: SEARCH "_qs)) << plan.toStdString();
            EXPECT_TRUE(plan.section(u"find: "_qs, 1).contains(find.plan)) << plan.toStdString();
        }
    }

    Files files;

private:
    // Walking back gives the same rows in turn.
    static void expectBackwards(const Database& database, const QString& query, const QString& telling) {
        QStringList texts;
        Recordset rows = database.openRecordset(query);
        if (!rows.eof()) {
            for (rows.moveLast(); !rows.bof(); rows.movePrevious()) {
                texts.prepend(rows.text(telling));
            }
        }
        EXPECT_EQ(texts, column(database, query, telling));
    }
};

void addExam(const Database& echo, const QString& table, int number, int exam, const QString& date,
             const QString& start = QString()) {
    Record record{{u"Numero"_qs, number}, {u"NUMECHO"_qs, exam}, {u"DATEXAM"_qs, date}};
    if (table == u"1TER"_qs) {
        record[u"DGUS"_qs] = start;
    }
    add(echo, table, record);
}

void addPhrase(const Database& echo, int rubric, const QString& text) {
    add(echo, u"OPTIONS"_qs, {{u"NUMEROS"_qs, rubric}, {u"Texte"_qs, text}, {u"TERMINAIS"_qs, u"A"_qs}});
}

void addPicture(const Database& album, const QString& name, const QString& date, const QString& diagnosis,
                const QString& kind, const QString& file, const QString& word) {
    add(album, u"ECHOS"_qs,
        {{u"Nom"_qs, name},
         {u"Prenom"_qs, u"X"_qs},
         {u"DATEXAM"_qs, date},
         {u"DIAGNO"_qs, diagnosis},
         {u"Typexam"_qs, kind},
         {u"NOMFICH"_qs, file},
         {u"NOMPATH"_qs, u"C:\\VIDEOTEK\\"_qs + file},
         {u"CRIT1"_qs, word},
         {u"CRIT2"_qs, QString()},
         {u"CRIT3"_qs, QString()}});
}

}  // namespace

TEST_F(QueriesInUse, OnPatients) {
    const Database nom = files.open(FileKind::Nom);
    addPatient(nom, 1, u"MARTIN"_qs, u"Zoé"_qs);
    addPatient(nom, 2, u"DUPONT"_qs, u"Anne"_qs);
    addPatient(nom, 3, u"D'ALMEIDA"_qs, u"Inès"_qs);
    addPatient(nom, 4, u"DUPONT"_qs, u"Élise"_qs);
    addPatient(nom, 5, u"DÉSIR"_qs, u"Eva"_qs);
    addPatient(nom, 6, u"DUPONT"_qs, u"Anne"_qs);
    addPatient(nom, 12, u"DUPOND"_qs, u" "_qs);
    const auto byName = u"SELECT*FROM FICHEPATIENT ORDER BY NOM"_qs;
    const auto byBoth = u"SELECT*FROM FICHEPATIENT ORDER BY NOM, PRENOM"_qs;
    const auto ofOneName = u"SELECT*FROM FICHEPATIENT WHERE NOM='DUPONT' ORDER BY NOM, PRENOM"_qs;
    expectUses(nom, u"NUMINT"_qs,
               {{byName, u"3 5 12 2 6 4 1"_qs, kNameIndex},
                {byBoth, u"3 5 12 2 6 4 1"_qs, kNameIndex},
                {u"SELECT*FROM FICHEPATIENT ORDER BY NUMINT"_qs, u"1 2 3 4 5 6 12"_qs, u"SCAN FICHEPATIENT"_qs},
                {ofOneName, u"2 6 4"_qs, kNameIndex + u" (Nom=?)"_qs},
                {u"SELECT*FROM FICHEPATIENT WHERE NUMINT=12"_qs, u"12"_qs, u"INTEGER PRIMARY KEY (rowid=?)"_qs},
                {u"SELECT*FROM FICHEPATIENT WHERE NUMINT=0"_qs, u""_qs, u"INTEGER PRIMARY KEY (rowid=?)"_qs}});
    expectFinds(nom, u"NUMINT"_qs,
                {{byBoth, u"NOM>='DUP'"_qs, u"12"_qs, u"1"_qs, kNameIndex + u" (Nom>?)"_qs},
                 {byBoth, u"NOM>='DALM'"_qs, u"3"_qs, u"1"_qs, kNameIndex + u" (Nom>?)"_qs},
                 {byBoth, u"NOM>='dupont'"_qs, u"2"_qs, u"1"_qs, kNameIndex + u" (Nom>?)"_qs},
                 {byBoth, u"NOM>='MARTINA'"_qs, QString(), QString(), kNameIndex + u" (Nom>?)"_qs},
                 {byName, u"NOM>='DES'"_qs, u"5"_qs, u"1"_qs, kNameIndex + u" (Nom>?)"_qs},
                 {ofOneName, u"PRENOM>='B'"_qs, u"4"_qs, u"4"_qs, kNameIndex + u" (Nom=? AND Prenom>?)"_qs},
                 {ofOneName, u"PRENOM>='F'"_qs, QString(), QString(), kNameIndex + u" (Nom=? AND Prenom>?)"_qs},
                 {byName, u"NUMINT=4"_qs, u"4"_qs, u"4"_qs, u"INTEGER PRIMARY KEY (rowid=?)"_qs}});
}

TEST_F(QueriesInUse, OnCivilities) {
    const Database echo = files.open(FileKind::Echo);
    const auto query = u"SELECT*FROM CIVILITES ORDER BY NOM, PRENOM"_qs;
    expectUses(echo, u"NUMINT"_qs, {{query, QString(), u"INDEX CIVILITES_Nom_Prenom"_qs}});
    add(echo, u"CIVILITES"_qs, {{u"Nom"_qs, u"B"_qs}});
    add(echo, u"CIVILITES"_qs, {{u"Nom"_qs, u"A"_qs}});
    expectUses(echo, u"NUMINT"_qs, {{query, u"2 1"_qs, u"INDEX CIVILITES_Nom_Prenom"_qs}});
}

TEST_F(QueriesInUse, OnObstetricExams) {
    const Database echo = files.open(FileKind::Echo);
    addExam(echo, u"1TER"_qs, 5, 2, u"02/05/2002"_qs, u"01/03/2002"_qs);
    addExam(echo, u"1TER"_qs, 5, 1, u"01/05/2002"_qs, u"01/03/2002"_qs);
    addExam(echo, u"1TER"_qs, 5, 12, u"02/05/2002"_qs, u"1/3/2002"_qs);
    addExam(echo, u"1TER"_qs, 52, 1, u"02/05/2002"_qs, u"01/03/2002"_qs);
    const auto inOrder = u"SELECT*FROM 1TER WHERE NUMERO=5 ORDER BY NUMECHO"_qs;
    const auto past = u"SELECT*FROM 1TER  WHERE NUMERO=5 ORDER BY NUMECHO"_qs;
    const auto one = u"SELECT*FROM 1TER WHERE NUMERO=5And NUMECHO=12 ORDER BY NUMECHO"_qs;
    expectUses(echo, u"NUMECHO"_qs,
               {{u"SELECT*FROM 1TER WHERE NUMERO=5"_qs, u"2 1 12"_qs, kExamIndex},
                {inOrder, u"1 2 12"_qs, kExamIndex},
                {past, u"1 2 12"_qs, kExamIndex},
                {u"SELECT*FROM 1TER WHERE NUMERO=5And NUMECHO=12"_qs, u"12"_qs, kOneExamIndex},
                {one, u"12"_qs, kOneExamIndex},
                {u"SELECT * FROM 1TER WHERE NUMERO =5 AND NUMECHO=1"_qs, u"1"_qs, kOneExamIndex},
                {u"SELECT*FROM 1TER WHERE DGUS='01/03/2002' AND NUMERO=5 ORDER BY NUMECHO"_qs, u"1 2"_qs, kExamIndex},
                {u"SELECT*FROM 1TER WHERE DGUS='' AND NUMERO=5 ORDER BY NUMECHO"_qs, u""_qs, kExamIndex},
                {u"SELECT*FROM 1TER WHERE NUMERO=0 ORDER BY NUMECHO"_qs, u""_qs, kExamIndex}});
    expectFinds(
        echo, u"NUMECHO"_qs,
        {{inOrder, u"NUMERO=5"_qs, u"1"_qs, u"12"_qs, kExamIndex},
         {inOrder, u"NUMECHO=2"_qs, u"2"_qs, u"2"_qs, kOneExamIndex},
         {one, u"NUMECHO=12"_qs, u"12"_qs, u"12"_qs, kOneExamIndex},
         {past, u"DATEXAM='02/05/2002'"_qs, u"2"_qs, u"12"_qs, kExamIndex},
         {past, u"NUMERO=5"_qs, u"1"_qs, u"12"_qs, kExamIndex},
         {past, u"NUMECHO=12"_qs, u"12"_qs, u"12"_qs, kOneExamIndex},
         {u"SELECT*FROM 1TER WHERE NUMERO=7 ORDER BY NUMECHO"_qs, u"NUMERO=7"_qs, QString(), QString(), kExamIndex},
         {u"SELECT*FROM 1TER WHERE NUMERO=5"_qs, u"NUMERO=5"_qs, u"2"_qs, u"12"_qs, kExamIndex}});
}

TEST_F(QueriesInUse, OnGynaecologicalExams) {
    const Database echo = files.open(FileKind::Echo);
    addExam(echo, u"GYNECO"_qs, 5, 2, u"02/05/2002"_qs);
    addExam(echo, u"GYNECO"_qs, 5, 1, u"02/05/2002"_qs);
    addExam(echo, u"GYNECO"_qs, 6, 1, u"03/05/2002"_qs);
    const auto inOrder = u"SELECT*FROM GYNECO WHERE NUMERO=5 ORDER BY NUMECHO"_qs;
    const auto past = u"SELECT*FROM GYNECO  WHERE NUMERO=5 ORDER BY NUMECHO"_qs;
    const auto one = u"SELECT*FROM GYNECO WHERE NUMERO=5And NUMECHO=2"_qs;
    const auto oneInOrder = u"SELECT*FROM GYNECO WHERE NUMERO=5 AND NUMECHO=2 ORDER BY NUMECHO"_qs;
    const auto oneIndex = u"INDEX GYNECO_Numero_NUMECHO (Numero=? AND NUMECHO=?)"_qs;
    expectUses(echo, u"NUMECHO"_qs,
               {{inOrder, u"1 2"_qs, kGynaecologyIndex},
                {past, u"1 2"_qs, kGynaecologyIndex},
                {one, u"2"_qs, oneIndex},
                {oneInOrder, u"2"_qs, oneIndex},
                {u"SELECT * FROM GYNECO WHERE NUMERO =5 AND NUMECHO=1 ORDER BY NUMECHO"_qs, u"1"_qs, oneIndex},
                {u"SELECT*FROM GYNECO WHERE NUMERO =5"_qs, u"2 1"_qs, kGynaecologyIndex}});
    expectFinds(echo, u"NUMECHO"_qs,
                {{inOrder, u"NUMERO=5"_qs, u"1"_qs, u"2"_qs, kGynaecologyIndex},
                 {inOrder, u"NUMECHO=2"_qs, u"2"_qs, u"2"_qs, oneIndex},
                 {one, u"NUMECHO=2"_qs, u"2"_qs, u"2"_qs, oneIndex},
                 {oneInOrder, u"NUMECHO=2"_qs, u"2"_qs, u"2"_qs, oneIndex},
                 {past, u"DATEXAM='02/05/2002'"_qs, u"1"_qs, u"2"_qs, kGynaecologyIndex},
                 {past, u"NUMERO=5"_qs, u"1"_qs, u"2"_qs, kGynaecologyIndex},
                 {u"SELECT*FROM GYNECO WHERE NUMERO =5"_qs, u"NUMERO=5"_qs, u"2"_qs, u"1"_qs, kGynaecologyIndex}});
}

TEST_F(QueriesInUse, OnStoredResponses) {
    const Database echo = files.open(FileKind::Echo);
    addPhrase(echo, 29, u"z29"_qs);
    addPhrase(echo, 26, u"b26"_qs);
    addPhrase(echo, 27, u"c27"_qs);
    addPhrase(echo, 26, u"a26"_qs);
    addPhrase(echo, 2, u"L'utérus"_qs);
    addPhrase(echo, 28, u"y28"_qs);
    addPhrase(echo, 2, u"l'utérus"_qs);
    const auto rubric = u"SELECT*FROM OPTIONS WHERE NUMEROS =2"_qs;
    expectUses(echo, u"TEXTE"_qs,
               {{u"SELECT*FROM OPTIONS WHERE NUMEROS = 26 ORDER BY INDEX"_qs, u"b26 a26"_qs, kPhraseIndex},
                {u"SELECT*FROM OPTIONS WHERE NUMEROS = 26 "_qs, u"b26 a26"_qs, kPhraseIndex},
                {u"SELECT*FROM OPTIONS WHERE NUMEROS =26"_qs, u"b26 a26"_qs, kPhraseIndex},
                {u"SELECT*FROM OPTIONS WHERE NUMEROS = 19 "_qs, u""_qs, kPhraseIndex},
                {u"SELECT*FROM OPTIONS WHERE NUMEROS = 26OR NUMEROS = 27 OR NUMEROS = 28 OR NUMEROS = 29 ORDER BY "
                 u"NUMEROS, INDEX"_qs,
                 u"b26 a26 c27 y28 z29"_qs, u"numbers: SEARCH OPTIONS USING COVERING INDEX OPTIONS_NUMEROS"_qs}});
    expectFinds(echo, u"INDEX"_qs,
                {{rubric, u"[TEXTE] = 'L''utérus'"_qs, u"5"_qs, u"7"_qs, kPhraseIndex},
                 {rubric, u"[TEXTE] = 'L''uterus'"_qs, QString(), QString(), kPhraseIndex}});
}

TEST_F(QueriesInUse, OnTheMedicalHistory) {
    const Database atcd = files.open(FileKind::Atcd);
    add(atcd, u"FICHEATCD"_qs, {{u"Numint"_qs, 12}, {u"Type"_qs, 2}, {u"Texte"_qs, u"autre"_qs}});
    add(atcd, u"FICHEATCD"_qs, {{u"Numint"_qs, 12}, {u"Type"_qs, 1}, {u"Texte"_qs, u"asthme"_qs}});
    add(atcd, u"FICHEATCD"_qs, {{u"Numint"_qs, 1}, {u"Type"_qs, 1}, {u"Texte"_qs, u"rien"_qs}});
    const auto reading = u"SELECT*FROM FICHEATCD WHERE NUMINT=12AND TYPE='1'"_qs;
    const auto saving = u"SELECT*FROM FICHEATCD WHERE NUMINT=12"_qs;
    expectUses(atcd, u"TEXTE"_qs,
               {{reading, u"asthme"_qs, kHistoryIndex},
                {saving, u"autre asthme"_qs, kHistoryIndex},
                {u"SELECT*FROM FICHEATCD WHERE NUMINT=3AND TYPE='1'"_qs, u""_qs, kHistoryIndex}});
    expectFinds(atcd, u"TEXTE"_qs,
                {{reading, u"NUMINT=12"_qs, u"asthme"_qs, u"asthme"_qs, kHistoryIndex},
                 {saving, u"NUMINT=12"_qs, u"autre"_qs, u"asthme"_qs, kHistoryIndex}});
}

TEST_F(QueriesInUse, OnTheAlbum) {
    const Database album = files.open(FileKind::Echotek);
    addPicture(album, u"MARTIN"_qs, u"02/05/2002"_qs, u"RÉTRÉCISSEMENT"_qs, u"1"_qs, u"a.bmp"_qs, u"rein"_qs);
    addPicture(album, u"ABEL"_qs, u"03/05/2002"_qs, u"rétrécissement"_qs, u"2"_qs, u"b#1.bmp"_qs, u"coeur"_qs);
    addPicture(album, u"ABEL"_qs, u"01/05/2002"_qs, u"kyste"_qs, u"1"_qs, u"[c].bmp"_qs, u"rein"_qs);
    add(album, u"ECHOS"_qs,
        {{u"Nom"_qs, u"ABEL"_qs}, {u"NOMFICH"_qs, u"d.bmp"_qs}, {u"NOMPATH"_qs, u"C:\\d.bmp"_qs}, {u"Typexam"_qs, 3}});
    const auto search = [](const QString& diagnosis, const QString& name, const QString& word, const QString& kind) {
        return u"SELECT*FROM ECHOS WHERE DIAGNO LIKE '*%1*' AND NOM LIKE '*%2*' AND DATEXAM LIKE '**' AND CRIT1 LIKE "
               u"'*%3*' AND CRIT2 LIKE '**' AND CRIT3 LIKE '**' AND TYPEXAM %4"_qs.arg(diagnosis, name, word, kind);
    };
    const auto any = u">='0'"_qs;
    const auto scan = u"numbers: SCAN ECHOS"_qs;
    const auto byDate = u"SELECT*FROM ECHOS WHERE DATEXAM LIKE '*05/2002*' ORDER BY DATEXAM"_qs;
    const auto ofNumber = u"SELECT * FROM ECHOS WHERE NUMINT LIKE '*2*'"_qs;
    const auto ofPath = u"SELECT * FROM ECHOS WHERE NOMPATH LIKE '*C:\\VIDEOTEK\\B#1.BMP*'"_qs;
    expectUses(album, u"NUMINT"_qs,
               {{u"SELECT*FROM ECHOS "_qs, u"1 2 3 4"_qs, u"SCAN ECHOS"_qs},
                {search(u""_qs, u""_qs, u""_qs, any), u"1 2 3"_qs, scan},
                {search(u"rétréc"_qs, u""_qs, u""_qs, any), u"1 2"_qs, scan},
                {search(u"retrec"_qs, u""_qs, u""_qs, any), u""_qs, scan},
                {search(u""_qs, u"abel"_qs, u"rein"_qs, u"='1'"_qs), u"3"_qs, scan},
                {search(u""_qs, u""_qs, u""_qs, u"='4'"_qs), u""_qs, scan},
                {u"SELECT*FROM ECHOS WHERE DATEXAM LIKE '*05/2002*'"_qs, u"1 2 3"_qs, scan},
                {byDate, u"3 1 2"_qs, scan},
                {u"SELECT*FROM ECHOS WHERE NOM LIKE '*ABEL*'"_qs, u"2 3 4"_qs, scan},
                {u"SELECT*FROM ECHOS WHERE NOM LIKE '**' ORDER BY NOM"_qs, u"2 3 4 1"_qs, scan},
                {u"SELECT*FROM ECHOS WHERE DIAGNO LIKE '*RÉTRÉC*'"_qs, u"1 2"_qs, scan},
                {u"SELECT*FROM ECHOS WHERE DIAGNO LIKE '*RÉTRÉC*' ORDER BY DATEXAM"_qs, u"1 2"_qs, scan},
                {ofNumber, u"2"_qs, scan},
                {ofPath, u"2"_qs, scan},
                {u"SELECT * FROM ECHOS WHERE NOMPATH LIKE '*C:\\VIDEOTEK\\[c].bmp*'"_qs, u"3"_qs, scan},
                {u"SELECT * FROM ECHOS WHERE NOMPATH LIKE '**'"_qs, u"1 2 3 4"_qs, scan}});
    const auto byRowNumber = u"INTEGER PRIMARY KEY (rowid=?)"_qs;
    expectFinds(album, u"NUMINT"_qs,
                {{search(u""_qs, u""_qs, u""_qs, any), u"NOMFICH LIKE '**'"_qs, u"1"_qs, u"3"_qs, byRowNumber},
                 {byDate, u"DATEXAM LIKE '*05/2002*'"_qs, u"3"_qs, u"2"_qs, byRowNumber},
                 {u"SELECT*FROM ECHOS WHERE NOM LIKE '*A*' ORDER BY NOM"_qs, u"NOM LIKE '*A*'"_qs, u"2"_qs, u"1"_qs,
                  byRowNumber},
                 {u"SELECT*FROM ECHOS WHERE DIAGNO LIKE '*k*' ORDER BY DATEXAM"_qs, u"DIAGNO LIKE '*k*'"_qs, u"3"_qs,
                  u"3"_qs, byRowNumber},
                 {ofNumber, u"NUMINT LIKE '*2*'"_qs, u"2"_qs, u"2"_qs, byRowNumber},
                 {ofNumber, u"NUMINT LIKE '*3*'"_qs, QString(), QString(), byRowNumber},
                 {ofPath, u"NOMPATH LIKE '*C:\\VIDEOTEK\\B#1.BMP*'"_qs, u"2"_qs, u"2"_qs, byRowNumber}});
}

TEST_F(QueriesInUse, OnTheAlbumMatchNumbersThroughTheirDigits) {
    const Database album = files.open(FileKind::Echotek);
    for (int i = 1; i <= 120; ++i) {
        addPicture(album, u"ABEL"_qs, u"01/05/2002"_qs, QString(), u"1"_qs, QString::number(i), QString());
    }
    EXPECT_EQ(column(album, u"SELECT * FROM ECHOS WHERE NUMINT LIKE '*12*'"_qs, u"NUMINT"_qs),
              QStringList({u"12"_qs, u"112"_qs, u"120"_qs}));
}

TEST_F(QueriesInUse, OnKeyWords) {
    const Database album = files.open(FileKind::Echotek);
    for (const auto& word : {u"rein"_qs, u"coeur"_qs}) {
        add(album, u"CLEFS"_qs, {{u"NUMCRIT"_qs, 1}, {u"CRIT"_qs, word}});
    }
    add(album, u"CLEFS"_qs, {{u"NUMCRIT"_qs, 0}, {u"CRIT"_qs, u"kyste"_qs}});
    expectUses(album, u"CRIT"_qs,
               {{u"SELECT*FROM CLEFS WHERE NUMCRIT = 1 "_qs, u"rein coeur"_qs, kWordIndex},
                {u"SELECT * FROM CLEFS "_qs, u"rein coeur kyste"_qs, u"SCAN CLEFS"_qs},
                {u"SELECT * FROM CLEFS WHERE NUMCRIT= 0"_qs, u"kyste"_qs, kWordIndex}});
    expectFinds(album, u"CRIT"_qs,
                {{u"SELECT * FROM CLEFS WHERE NUMCRIT= 1"_qs, u"CRIT='coeur'"_qs, u"coeur"_qs, u"coeur"_qs, kWordIndex},
                 {u"SELECT * FROM CLEFS WHERE NUMCRIT= 0"_qs, u"CRIT='coeur'"_qs, QString(), QString(), kWordIndex}});
}

TEST_F(QueriesInUse, SortNothingWhereTheOrderStandsInAnIndex) {
    const Database nom = files.open(FileKind::Nom);
    const Database echo = files.open(FileKind::Echo);
    for (const QString& plan :
         {store::explain(nom, u"SELECT*FROM FICHEPATIENT ORDER BY NOM"_qs, u"NOM>='X'"_qs),
          store::explain(nom, u"SELECT*FROM FICHEPATIENT WHERE NOM='X' ORDER BY NOM, PRENOM"_qs, u"PRENOM>='X'"_qs),
          store::explain(nom, u"SELECT*FROM FICHEPATIENT ORDER BY NUMINT"_qs),
          store::explain(echo, u"SELECT*FROM 1TER WHERE NUMERO=5 ORDER BY NUMECHO"_qs, u"DATEXAM='X'"_qs),
          store::explain(echo, u"SELECT*FROM OPTIONS WHERE NUMEROS = 5 ORDER BY INDEX"_qs, u"[TEXTE] = 'X'"_qs)}) {
        EXPECT_FALSE(plan.contains(kSort)) << plan.toStdString();
    }
}

TEST_F(QueriesInUse, AreRefusedOnAFileThatLacksTheTable) {
    const Database nom = files.open(FileKind::Nom);
    expectError(base::ErrorNumber::UnknownTable, [&] { nom.openRecordset(u"SELECT*FROM 1TER WHERE NUMERO=5"_qs); });
}
