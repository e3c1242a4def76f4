#include "store/schema.h"

#include <QFile>
#include <QFileInfo>

#include "store/files.h"

using base::ErrorNumber;
using store::Database;
using store::Field;
using store::FieldKind;
using store::FileKind;
using store::Recordset;
using store::Value;

namespace {

QString namesOf(const QString& table) {
    QStringList names;
    for (const Field& field : store::fieldsOf(table)) {
        names << field.name;
    }
    return names.join(u' ');
}

QString namesOf(const QString& table, FieldKind kind) {
    QStringList names;
    for (const Field& field : store::fieldsOf(table)) {
        if (field.kind == kind) {
            names << field.name;
        }
    }
    return names.join(u' ');
}

const auto kPatientFields =
    u"Numint Nom Prenom NOMJF DATENAISS RUE1 RUE2 VILLE CODEPOST TELEPHONE FAX PROFESSION CATSOCPRO SEXE CIVILITEE "
    u"NUMSECSOC ASSURE DIVERS1 DIVERS2 DIVERS3 DIVERS4 PRISEENCHARGE DATEFINPRISENCHARGE CARTESANTE DCD PERDUDEVUE "
    u"MEDTT1 MEDTT2 MEDTT3 MEDTT4 CAISSE Ranggem QUALITE DROITS EMAIL ALSACEMOSELLE TIERSPAYANT"_qs;

}  // namespace

TEST(Schema, HoldsEachTableInItsFile) {
    EXPECT_EQ(store::tableNames(FileKind::Nom), QStringList{u"FICHEPATIENT"_qs});
    EXPECT_EQ(store::tableNames(FileKind::Echo),
              QStringList({u"1TER"_qs, u"GYNECO"_qs, u"OPTIONS"_qs, u"CIVILITES"_qs}));
    EXPECT_EQ(store::tableNames(FileKind::Atcd), QStringList{u"FICHEATCD"_qs});
    EXPECT_EQ(store::tableNames(FileKind::Echotek), QStringList({u"ECHOS"_qs, u"CLEFS"_qs}));
    EXPECT_EQ(store::fileOf(u"1ter"_qs), FileKind::Echo);
    expectError(ErrorNumber::UnknownTable, [] { store::fileOf(u"VERANOX_META"_qs); });
    expectError(ErrorNumber::UnknownTable, [] { store::fieldsOf(u"sqlite_master"_qs); });
}

TEST(Schema, HoldsEveryFieldInItsOrder) {
    EXPECT_EQ(namesOf(u"FICHEPATIENT"_qs), kPatientFields);
    EXPECT_EQ(namesOf(u"CIVILITES"_qs), kPatientFields);
    EXPECT_EQ(namesOf(u"1TER"_qs),
              u"Numero NUMECHO TYPECHO DATEXAM MACHINE DATECIRC OPERATEUR BMI DDR DG DGUS AGESTA MODEXAM CONDITIONS "
              u"INDI UTERUS ANNEXES DOUGLAS NBRE NBRS SITUATION Dim ASPECT MA MA2 MA3 AC AC2 AC3 LCC LCC2 LCC3 Bip "
              u"Bip2 Bip3 Fem FEM2 FEM3 NUQUE NUQUE2 NUQUE3 OSNEZ OSNEZ2 OSNEZ3 MORPHO MORPHO2 MORPHO3 Ca CA2 CA3 Cc "
              u"Cc2 Cc3 DIO DIO2 DIO3 CERV CERV2 CERV3 Dat Dat2 Dat3 Pied Pied2 Pied3 TIBIA TIBIA2 TIBIA3 Hum Hum2 "
              u"Hum3 ARTO ARTO2 ARTO3 ARTC ARTC2 ARTC3 UTD UTG LA PL CONCLU1"_qs);
    EXPECT_EQ(namesOf(u"GYNECO"_qs),
              u"Numero NUMECHO MACHINE DATECIRC DATEXAM OPERATEUR DDR MODEXAM CONDITIONS INDI SITUATION LONGUEUR LARG "
              u"EPAIS STRUCTURE CAVITE ENDO EENDO DIU MASSE OVD OVG TD TG DOUGLAS SITUA DIMENSIONS STRUCT NAT ORIGINE "
              u"CONCLU JSTIM DIMOVD NBRFOLD DIMFOLD DIMOVG NBRFOLG DIMFOLG ENDOMETRE DOP1 DOP2"_qs);
    EXPECT_EQ(namesOf(u"OPTIONS"_qs), u"NUMEROS Texte TERMINAIS INDEX"_qs);
    EXPECT_EQ(namesOf(u"FICHEATCD"_qs), u"Numint Type Texte"_qs);
    EXPECT_EQ(namesOf(u"ECHOS"_qs),
              u"Numint NUMECHO Nom Prenom DATEXAM NOMFICH NOMPATH DIAGNO Typexam CRIT1 CRIT2 CRIT3"_qs);
    EXPECT_EQ(namesOf(u"CLEFS"_qs), u"NUMCRIT CRIT"_qs);
}

TEST(Schema, KnowsNumbersAndDatesFromTexts) {
    EXPECT_EQ(namesOf(u"FICHEPATIENT"_qs, FieldKind::Number), u"Numint"_qs);
    EXPECT_EQ(namesOf(u"FICHEPATIENT"_qs, FieldKind::Date), u"DATENAISS DATEFINPRISENCHARGE"_qs);
    EXPECT_EQ(namesOf(u"1TER"_qs, FieldKind::Number), u"Numero NUMECHO"_qs);
    EXPECT_EQ(namesOf(u"GYNECO"_qs, FieldKind::Number), u"Numero NUMECHO"_qs);
    EXPECT_EQ(namesOf(u"OPTIONS"_qs, FieldKind::Number), u"NUMEROS INDEX"_qs);
    EXPECT_EQ(namesOf(u"FICHEATCD"_qs, FieldKind::Number), u"Numint"_qs);
    EXPECT_EQ(namesOf(u"ECHOS"_qs, FieldKind::Number), u"Numint"_qs);
    EXPECT_EQ(namesOf(u"CLEFS"_qs, FieldKind::Number), u"NUMCRIT"_qs);
    EXPECT_EQ(namesOf(u"1TER"_qs, FieldKind::Date), QString());
}

TEST(Schema, AnswersAllItsTablesOnceMade) {
    const Files files;
    for (const FileKind kind : store::kAllFiles) {
        const Database database = files.open(kind);
        EXPECT_EQ(database.kind(), kind);
        for (const QString& table : store::tableNames(kind)) {
            const Recordset rows = database.openRecordset(u"SELECT*FROM "_qs + table);
            EXPECT_TRUE(rows.eof());
            EXPECT_EQ(rows.fieldNames().join(u' '), namesOf(table));
        }
    }
}

TEST(NewFile, IsReadableByItsOwnerAlone) {
    const Files files;
    const QFileInfo file(files.made(FileKind::Nom));
    const QFile::Permissions ownerOnly = QFile::ReadOwner | QFile::WriteOwner | QFile::ReadUser | QFile::WriteUser;
    EXPECT_EQ(file.permissions() & ~ownerOnly, QFile::Permissions());
    EXPECT_TRUE(file.permissions() & QFile::WriteOwner);
}

TEST(NewFile, NeverReplacesAnything) {
    const Files files;
    QFile text(files.path(FileKind::Nom));
    ASSERT_TRUE(text.open(QIODevice::WriteOnly));
    text.write("mine");
    text.close();
    expectError(ErrorNumber::PermissionDenied, [&] { store::createFile(FileKind::Nom, text.fileName()); });
    ASSERT_TRUE(text.open(QIODevice::ReadOnly));
    EXPECT_EQ(text.readAll().toStdString(), "mine");
}

TEST(NewFile, WantsAFolderThatIsThere) {
    const Files files;
    expectError(ErrorNumber::PathNotFound, [&] { store::createFile(FileKind::Nom, files.path(u"none/NOM.MDB"_qs)); });
    const QString file = files.made(FileKind::Echo);
    expectError(ErrorNumber::PathNotFound, [&] { store::createFile(FileKind::Nom, file + u"/NOM.MDB"_qs); });
    try {
        store::createFile(FileKind::Nom, files.path(u"none/NOM.MDB"_qs));
    } catch (const base::RuntimeError& error) {
        EXPECT_EQ(error.text(), u"Dossier introuvable (%1)."_qs.arg(files.path(u"none/NOM.MDB"_qs)));
    }
}

TEST(PatientTexts, RefuseTheEmptyTextButTakeABlankAndNothing) {
    const Files files;
    const Database nom = files.open(FileKind::Nom);
    for (const Field& field : store::fieldsOf(u"FICHEPATIENT"_qs)) {
        if (field.kind != FieldKind::Text) {
            continue;
        }
        const Record refused{{u"Numint"_qs, 1}, {u"Nom"_qs, u"MARTIN"_qs}};
        Record empty = refused;
        empty[field.name] = QString();
        expectError(ErrorNumber::EmptyText, [&] { add(nom, u"FICHEPATIENT"_qs, empty); });
    }
    EXPECT_TRUE(nom.openRecordset(u"SELECT*FROM FICHEPATIENT"_qs).eof());
    addPatient(nom, 1, u"MARTIN"_qs);
    Recordset rows = nom.openRecordset(u"SELECT*FROM FICHEPATIENT"_qs);
    EXPECT_EQ(rows.text(u"MEDTT4"_qs), u" "_qs);
    rows.edit();
    rows.set(u"ASSURE"_qs, Value());
    rows.set(u"VILLE"_qs, QString());
    expectError(ErrorNumber::EmptyText, [&] { rows.update(); });
    rows.set(u"VILLE"_qs, u"LYON"_qs);
    rows.update();
    EXPECT_TRUE(rows.field(u"ASSURE"_qs).isNull());
    EXPECT_EQ(rows.text(u"VILLE"_qs), u"LYON"_qs);
}

TEST(PatientNumber, HasSixteenBitsAndIsGivenOnce) {
    const Files files;
    const Database nom = files.open(FileKind::Nom);
    addPatient(nom, 32767, u"MARTIN"_qs);
    Recordset rows = nom.openRecordset(u"SELECT*FROM FICHEPATIENT"_qs);
    rows.addNew();
    expectError(ErrorNumber::Overflow, [&] { rows.set(u"NUMINT"_qs, 32768); });
    expectError(ErrorNumber::Overflow, [&] { rows.set(u"NUMINT"_qs, -32769); });
    rows.set(u"NUMINT"_qs, 32767);
    rows.set(u"NOM"_qs, u"DUPONT"_qs);
    expectError(ErrorNumber::DuplicateKey, [&] { rows.update(); });
    rows.set(u"NUMINT"_qs, Value());
    expectError(ErrorNumber::RequiredValue, [&] { rows.update(); });
    rows.set(u"NUMINT"_qs, 1);
    rows.update();
    EXPECT_EQ(rows.recordCount(), 2);
}

TEST(PatientName, IsObligatory) {
    const Files files;
    const Database nom = files.open(FileKind::Nom);
    expectError(ErrorNumber::RequiredValue, [&] { add(nom, u"FICHEPATIENT"_qs, {{u"Numint"_qs, 1}}); });
}

TEST(NumberFields, TakeNumericTextsAndRefuseOthers) {
    const Files files;
    const Database echo = files.open(FileKind::Echo);
    Recordset rows = echo.openRecordset(u"SELECT*FROM 1TER"_qs);
    rows.addNew();
    rows.set(u"NUMERO"_qs, u"12"_qs);
    rows.set(u"NUMECHO"_qs, u" 003 "_qs);
    expectError(ErrorNumber::TypeMismatch, [&] { rows.set(u"NUMECHO"_qs, u"12 bis"_qs); });
    expectError(ErrorNumber::TypeMismatch, [&] { rows.set(u"NUMECHO"_qs, QString()); });
    expectError(ErrorNumber::TypeMismatch, [&] { rows.set(u"NUMECHO"_qs, QDate(2002, 4, 16)); });
    rows.update();
    rows.moveFirst();
    EXPECT_EQ(rows.field(u"NUMERO"_qs), Value(12));
    EXPECT_EQ(rows.field(u"NUMECHO"_qs), Value(3));
    rows.edit();
    rows.set(u"NUMECHO"_qs, u"2,5"_qs);
    rows.update();
    EXPECT_EQ(rows.field(u"NUMECHO"_qs), Value(2));
}

TEST(TextFields, KeepANumberAsItsText) {
    const Files files;
    const Database atcd = files.open(FileKind::Atcd);
    add(atcd, u"FICHEATCD"_qs, {{u"Numint"_qs, 7}, {u"Type"_qs, 1}, {u"Texte"_qs, 12.5}});
    const Recordset rows = atcd.openRecordset(u"SELECT*FROM FICHEATCD WHERE NUMINT=7AND TYPE='1'"_qs);
    ASSERT_FALSE(rows.eof());
    EXPECT_EQ(rows.field(u"TYPE"_qs), Value(u"1"_qs));
    EXPECT_EQ(rows.field(u"TEXTE"_qs), Value(u"12,5"_qs));
}

TEST(TextFields, HoldSeveralLinesAndAnySign) {
    const Files files;
    const Database echo = files.open(FileKind::Echo);
    const auto memo = u"Ligne 1\r\nLigne 2\tL'œuf « n° 3 » – 漢 😀\r\n"_qs + QString(100000, u'é');
    add(echo, u"1TER"_qs, {{u"Numero"_qs, 1}, {u"MORPHO"_qs, memo}, {u"CONCLU1"_qs, QString()}});
    const Recordset rows = echo.openRecordset(u"SELECT*FROM 1TER"_qs);
    EXPECT_EQ(rows.text(u"MORPHO"_qs), memo);
    EXPECT_EQ(rows.field(u"CONCLU1"_qs), Value(QString()));
    EXPECT_TRUE(rows.field(u"MORPHO2"_qs).isNull());
}

TEST(DateFields, ComeBackAsDates) {
    const Files files;
    const Database nom = files.open(FileKind::Nom);
    addPatient(nom, 1, u"MARTIN"_qs);
    Recordset rows = nom.openRecordset(u"SELECT*FROM FICHEPATIENT"_qs);
    EXPECT_TRUE(rows.field(u"DATENAISS"_qs).isNull());
    rows.edit();
    rows.set(u"DATENAISS"_qs, QDate(1970, 2, 28));
    rows.set(u"DATEFINPRISENCHARGE"_qs, u"01/03/2005"_qs);
    expectError(ErrorNumber::TypeMismatch, [&] { rows.set(u"DATENAISS"_qs, u"31/02/1970"_qs); });
    expectError(ErrorNumber::TypeMismatch, [&] { rows.set(u"DATENAISS"_qs, u"1 mars"_qs); });
    rows.update();
    rows.moveFirst();
    EXPECT_EQ(rows.field(u"DATENAISS"_qs), Value(QDate(1970, 2, 28)));
    EXPECT_EQ(rows.text(u"DATENAISS"_qs), u"28/02/1970"_qs);
    EXPECT_EQ(rows.field(u"DATEFINPRISENCHARGE"_qs).date(), QDate(2005, 3, 1));
    rows.findFirst(u"DATENAISS='28/02/1970'"_qs);
    EXPECT_FALSE(rows.noMatch());
    rows.findFirst(u"DATENAISS LIKE '*/1970'"_qs);
    EXPECT_FALSE(rows.noMatch());
    rows.findFirst(u"DATENAISS>'28/02/1970'"_qs);
    EXPECT_TRUE(rows.noMatch());
}

TEST(StoredResponses, AreNumberedInTheOrderOfTheirInsertion) {
    const Files files;
    const Database echo = files.open(FileKind::Echo);
    const auto all = u"SELECT*FROM OPTIONS"_qs;
    for (const auto& text : {u"un"_qs, u"deux"_qs, u"trois"_qs}) {
        add(echo, u"OPTIONS"_qs, {{u"NUMEROS"_qs, 4}, {u"Texte"_qs, text}});
    }
    EXPECT_EQ(column(echo, all, u"INDEX"_qs), QStringList({u"1"_qs, u"2"_qs, u"3"_qs}));
    Recordset rows = echo.openRecordset(all);
    rows.moveLast();
    rows.remove();
    add(echo, u"OPTIONS"_qs, {{u"NUMEROS"_qs, 4}, {u"Texte"_qs, u"quatre"_qs}});
    EXPECT_EQ(column(echo, all, u"INDEX"_qs), QStringList({u"1"_qs, u"2"_qs, u"4"_qs}));
}

TEST(Pictures, AreNumberedAndClassedOnce) {
    const Files files;
    const Database album = files.open(FileKind::Echotek);
    const auto picture = [&album](const QString& file, const QString& path) {
        add(album, u"ECHOS"_qs, {{u"NOMFICH"_qs, file}, {u"NOMPATH"_qs, path}});
    };
    picture(u"a.bmp"_qs, u"C:\\un\\a.bmp"_qs);
    picture(u"a.bmp"_qs, u"C:\\deux\\a.bmp"_qs);
    expectError(ErrorNumber::DuplicateKey, [&] { picture(u"a.bmp"_qs, u"C:\\deux\\a.bmp"_qs); });
    expectError(ErrorNumber::DuplicateKey, [&] { picture(u"A.BMP"_qs, u"C:\\DEUX\\A.BMP"_qs); });
    expectError(ErrorNumber::EmptyText, [&] { picture(QString(), u"C:\\trois\\a.bmp"_qs); });
    expectError(ErrorNumber::EmptyText, [&] { picture(u"b.bmp"_qs, QString()); });
    expectError(ErrorNumber::RequiredValue, [&] { add(album, u"ECHOS"_qs, {{u"NOMFICH"_qs, u"b.bmp"_qs}}); });
    expectError(ErrorNumber::RequiredValue, [&] { add(album, u"ECHOS"_qs, {{u"NOMPATH"_qs, u"C:\\b.bmp"_qs}}); });
    EXPECT_EQ(column(album, u"SELECT*FROM ECHOS "_qs, u"NUMINT"_qs), QStringList({u"1"_qs, u"2"_qs}));
    const Recordset rows = album.openRecordset(u"SELECT*FROM ECHOS "_qs);
    EXPECT_TRUE(rows.field(u"NUMECHO"_qs).isNull());
}

TEST(Exams, AreKeptThoughTheirNumbersAreThere) {
    const Files files;
    const Database echo = files.open(FileKind::Echo);
    for (int i = 0; i < 2; ++i) {
        add(echo, u"GYNECO"_qs, {{u"Numero"_qs, 5}, {u"NUMECHO"_qs, 1}});
    }
    EXPECT_EQ(echo.openRecordset(u"SELECT*FROM GYNECO WHERE NUMERO=5"_qs).recordCount(), 2);
}

TEST(Refusals, NameTheField) {
    const Files files;
    const Database album = files.open(FileKind::Echotek);
    try {
        add(album, u"ECHOS"_qs, {{u"NOMFICH"_qs, QString()}, {u"NOMPATH"_qs, u"x"_qs}});
        FAIL();
    } catch (const base::RuntimeError& error) {
        EXPECT_EQ(error.text(), u"Ce champ n'accepte pas un texte vide (NOMFICH)."_qs);
    }
    try {
        static_cast<void>(album.openRecordset(u"SELECT*FROM ECHOS"_qs).field(u"NOSUCH"_qs));
        FAIL();
    } catch (const base::RuntimeError& error) {
        EXPECT_EQ(error.text(), u"Champ introuvable (NOSUCH)."_qs);
    }
}
