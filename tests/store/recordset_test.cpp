#include "store/recordset.h"

#include "store/files.h"

using base::ErrorNumber;
using store::Database;
using store::FileKind;
using store::Recordset;
using store::Value;

namespace {

const auto kByName = u"SELECT*FROM FICHEPATIENT ORDER BY NOM"_qs;
const auto kByNumber = u"SELECT*FROM FICHEPATIENT ORDER BY NUMINT"_qs;

/// Three patients, entered in another order than that of their names.
class ThreePatients : public testing::Test {
protected:
    ThreePatients() {
        addPatient(nom, 1, u"MARTIN"_qs, u"Zoé"_qs);
        addPatient(nom, 2, u"DUPONT"_qs, u"Anne"_qs);
        addPatient(nom, 3, u"MARTIN"_qs, u"Anne"_qs);
    }

    Files files;
    Database nom = files.open(FileKind::Nom);
};

}  // namespace

TEST(EmptyTable, GivesBothEndsAtOnceAndFailsOnMoves) {
    const Files files;
    Recordset rows = files.open(FileKind::Nom).openRecordset(kByName);
    EXPECT_TRUE(rows.eof());
    EXPECT_TRUE(rows.bof());
    EXPECT_EQ(rows.recordCount(), 0);
    expectError(ErrorNumber::NoCurrentRecord, [&] { rows.moveFirst(); });
    expectError(ErrorNumber::NoCurrentRecord, [&] { rows.moveLast(); });
    expectError(ErrorNumber::NoCurrentRecord, [&] { rows.moveNext(); });
    expectError(ErrorNumber::NoCurrentRecord, [&] { rows.movePrevious(); });
    expectError(ErrorNumber::NoCurrentRecord, [&] { rows.stepOn(); });
    expectError(ErrorNumber::NoCurrentRecord, [&] { rows.stepBack(); });
    expectError(ErrorNumber::NoCurrentRecord, [&] { rows.field(u"NOM"_qs); });
    expectError(ErrorNumber::NoCurrentRecord, [&] { rows.edit(); });
    expectError(ErrorNumber::NoCurrentRecord, [&] { rows.remove(); });
}

TEST(EmptyTable, FindsNothingWithoutAnError) {
    const Files files;
    Recordset rows = files.open(FileKind::Nom).openRecordset(kByName);
    rows.findFirst(u"NOM>='A'"_qs);
    EXPECT_TRUE(rows.noMatch());
    rows.findLast(u"NUMINT=1"_qs);
    EXPECT_TRUE(rows.noMatch());
}

TEST_F(ThreePatients, OpenOnTheFirstRowOfTheOrder) {
    const Recordset rows = nom.openRecordset(kByName);
    EXPECT_FALSE(rows.eof());
    EXPECT_FALSE(rows.bof());
    EXPECT_EQ(rows.text(u"nOm"_qs), u"DUPONT"_qs);
}

TEST_F(ThreePatients, AreWalkedByNameThenFirstName) {
    EXPECT_EQ(column(nom, kByName, u"NUMINT"_qs), QStringList({u"2"_qs, u"3"_qs, u"1"_qs}));
    EXPECT_EQ(column(nom, kByNumber, u"NUMINT"_qs), QStringList({u"1"_qs, u"2"_qs, u"3"_qs}));
    EXPECT_EQ(column(nom, kByName + u" DESC"_qs, u"NUMINT"_qs), QStringList({u"1"_qs, u"3"_qs, u"2"_qs}));
}

TEST_F(ThreePatients, RaiseTheEndFlagBehindTheLastAndTheBeginningFlagBeforeTheFirst) {
    Recordset rows = nom.openRecordset(kByName);
    rows.moveLast();
    EXPECT_EQ(rows.text(u"NUMINT"_qs), u"1"_qs);
    rows.moveNext();
    EXPECT_TRUE(rows.eof());
    EXPECT_FALSE(rows.bof());
    expectError(ErrorNumber::NoCurrentRecord, [&] { rows.field(u"NOM"_qs); });
    expectError(ErrorNumber::NoCurrentRecord, [&] { rows.moveNext(); });
    rows.movePrevious();
    EXPECT_EQ(rows.text(u"NUMINT"_qs), u"1"_qs);
    rows.moveFirst();
    rows.movePrevious();
    EXPECT_TRUE(rows.bof());
    EXPECT_FALSE(rows.eof());
    expectError(ErrorNumber::NoCurrentRecord, [&] { rows.movePrevious(); });
    rows.moveNext();
    EXPECT_EQ(rows.text(u"NUMINT"_qs), u"2"_qs);
}

TEST_F(ThreePatients, AreSteppedThroughWithoutLeavingThem) {
    Recordset rows = nom.openRecordset(kByNumber);
    QStringList seen;
    for (auto step : {&Recordset::stepBack, &Recordset::stepOn, &Recordset::stepOn, &Recordset::stepOn,
                      &Recordset::stepOn, &Recordset::stepBack}) {
        (rows.*step)();
        EXPECT_FALSE(rows.bof() || rows.eof());
        seen << rows.text(u"NUMINT"_qs);
    }
    EXPECT_EQ(seen.join(u' '), u"1 2 3 3 3 2"_qs);
}

TEST_F(ThreePatients, AreFoundFromBothEnds) {
    Recordset rows = nom.openRecordset(kByName);
    rows.findFirst(u"NOM>='E'"_qs);
    EXPECT_FALSE(rows.noMatch());
    EXPECT_EQ(rows.text(u"PRENOM"_qs), u"Anne"_qs);
    rows.findLast(u"NOM='martin'"_qs);
    EXPECT_EQ(rows.text(u"PRENOM"_qs), u"Zoé"_qs);
}

TEST_F(ThreePatients, StayUnderTheCursorWhenAFindFails) {
    Recordset rows = nom.openRecordset(kByName);
    rows.findFirst(u"NUMINT=3"_qs);
    rows.findFirst(u"NOM>='N'"_qs);
    EXPECT_TRUE(rows.noMatch());
    EXPECT_EQ(rows.text(u"NUMINT"_qs), u"3"_qs);
}

TEST_F(ThreePatients, TakeANewRecordWithoutMovingTheCursor) {
    Recordset rows = nom.openRecordset(kByNumber);
    rows.moveLast();
    rows.addNew();
    EXPECT_TRUE(rows.field(u"NOM"_qs).isNull());
    rows.set(u"NUMINT"_qs, 4);
    rows.set(u"NOM"_qs, u"ABEL"_qs);
    EXPECT_EQ(rows.text(u"NOM"_qs), u"ABEL"_qs);
    rows.update();
    EXPECT_EQ(rows.text(u"NUMINT"_qs), u"3"_qs);
    rows.moveLast();
    EXPECT_EQ(rows.text(u"NOM"_qs), u"ABEL"_qs);
    EXPECT_EQ(rows.recordCount(), 4);
}

TEST_F(ThreePatients, DropTheFirstOfTwoAdds) {
    Recordset rows = nom.openRecordset(kByNumber);
    rows.addNew();
    rows.set(u"NUMINT"_qs, 4);
    rows.set(u"NOM"_qs, u"ABEL"_qs);
    rows.set(u"VILLE"_qs, u"LYON"_qs);
    rows.addNew();
    rows.set(u"NUMINT"_qs, 5);
    rows.set(u"NOM"_qs, u"BRUN"_qs);
    rows.update();
    rows.moveLast();
    EXPECT_EQ(rows.text(u"NUMINT"_qs), u"5"_qs);
    EXPECT_TRUE(rows.field(u"VILLE"_qs).isNull());
    EXPECT_EQ(rows.recordCount(), 4);
}

TEST_F(ThreePatients, ShowAnUnsavedEditUntilTheCursorMoves) {
    Recordset rows = nom.openRecordset(kByNumber);
    rows.edit();
    rows.set(u"VILLE"_qs, u"LYON"_qs);
    EXPECT_EQ(rows.text(u"ville"_qs), u"LYON"_qs);
    EXPECT_EQ(rows.text(u"NOM"_qs), u"MARTIN"_qs);
    rows.findFirst(u"NUMINT=1"_qs);
    EXPECT_EQ(rows.text(u"VILLE"_qs), u" "_qs);
    expectError(ErrorNumber::UpdateWithoutEdit, [&] { rows.update(); });
}

TEST_F(ThreePatients, AreChangedInPlace) {
    Recordset rows = nom.openRecordset(kByNumber);
    rows.edit();
    rows.set(u"VILLE"_qs, u"LYON"_qs);
    rows.update();
    EXPECT_EQ(rows.text(u"VILLE"_qs), u"LYON"_qs);
    EXPECT_EQ(column(nom, kByNumber, u"VILLE"_qs), QStringList({u"LYON"_qs, u" "_qs, u" "_qs}));
}

TEST_F(ThreePatients, RefuseWritesOutsideAddAndEdit) {
    Recordset rows = nom.openRecordset(kByNumber);
    expectError(ErrorNumber::UpdateWithoutEdit, [&] { rows.set(u"NOM"_qs, u"X"_qs); });
    expectError(ErrorNumber::UpdateWithoutEdit, [&] { rows.update(); });
    expectError(ErrorNumber::UnknownField, [&] { rows.field(u"NOSUCH"_qs); });
    rows.edit();
    expectError(ErrorNumber::UnknownField, [&] { rows.set(u"NOSUCH"_qs, 1); });
}

TEST_F(ThreePatients, KeepThePlaceOfADeletedRecord) {
    Recordset rows = nom.openRecordset(kByName);
    rows.moveNext();
    rows.remove();
    expectError(ErrorNumber::RecordDeleted, [&] { rows.field(u"NOM"_qs); });
    expectError(ErrorNumber::RecordDeleted, [&] { rows.edit(); });
    expectError(ErrorNumber::RecordDeleted, [&] { rows.remove(); });
    EXPECT_FALSE(rows.eof());
    rows.moveNext();
    EXPECT_EQ(rows.text(u"NUMINT"_qs), u"1"_qs);
}

TEST_F(ThreePatients, CanBeDeletedOneAfterTheOther) {
    Recordset rows = nom.openRecordset(kByName);
    int deleted = 0;
    for (rows.moveFirst(); !rows.eof(); rows.moveNext()) {
        rows.remove();
        ++deleted;
    }
    EXPECT_EQ(deleted, 3);
    EXPECT_TRUE(rows.bof());
    EXPECT_EQ(rows.recordCount(), 0);
}

TEST_F(ThreePatients, TellWhenAnotherCursorDeletedTheRecord) {
    Recordset rows = nom.openRecordset(kByName);
    EXPECT_EQ(rows.text(u"NUMINT"_qs), u"2"_qs);
    Recordset other = nom.openRecordset(u"SELECT*FROM FICHEPATIENT WHERE NUMINT=2"_qs);
    rows.edit();
    rows.set(u"VILLE"_qs, u"LYON"_qs);
    other.remove();
    expectError(ErrorNumber::RecordDeleted, [&] { rows.update(); });
    EXPECT_EQ(rows.text(u"VILLE"_qs), u"LYON"_qs);
    expectError(ErrorNumber::RecordDeleted, [&] { rows.field(u"NOM"_qs); });
    rows.moveNext();
    EXPECT_EQ(rows.text(u"NUMINT"_qs), u"3"_qs);
}

TEST_F(ThreePatients, StandOnNoQueryWithoutARecordset) {
    const Recordset none;
    EXPECT_FALSE(none.isOpen());
    expectError(ErrorNumber::ObjectNotSet, [&] { none.eof(); });
    expectError(ErrorNumber::ObjectNotSet, [&] { none.field(u"NOM"_qs); });
    expectError(ErrorNumber::ObjectNotSet, [&] { Database().openRecordset(kByName); });
}

TEST_F(ThreePatients, AreClosedToEveryHandleAtOnce) {
    Recordset rows = nom.openRecordset(kByName);
    const Database again = files.open(FileKind::Nom);
    nom.close();
    EXPECT_FALSE(rows.isOpen());
    EXPECT_FALSE(again.isOpen());
    expectError(ErrorNumber::ObjectClosed, [&] { rows.moveNext(); });
    expectError(ErrorNumber::ObjectClosed, [&] { rows.field(u"NOM"_qs); });
    expectError(ErrorNumber::ObjectClosed, [&] { again.openRecordset(kByName); });
    expectError(ErrorNumber::ObjectClosed, [&] { nom.close(); });
    EXPECT_EQ(files.open(FileKind::Nom).openRecordset(kByName).recordCount(), 3);
}
