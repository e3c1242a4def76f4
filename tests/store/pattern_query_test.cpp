// Queries that no index serves: they keep the row numbers of their first use.

#include "store/files.h"

using base::ErrorNumber;
using store::Database;
using store::FileKind;
using store::Recordset;

namespace {

void addPicture(const Database& album, const QString& name, int count) {
    for (int i = 0; i < count; ++i) {
        const QString file = name + QString::number(i);
        add(album, u"ECHOS"_qs, {{u"Nom"_qs, name}, {u"NOMFICH"_qs, file}, {u"NOMPATH"_qs, file}});
    }
}

const auto kOfA = u"SELECT*FROM ECHOS WHERE NOM LIKE '*A*' ORDER BY NOM"_qs;

}  // namespace

TEST(PatternQuery, FindsAcrossBlocksFromBothEnds) {
    const Files files;
    const Database album = files.open(FileKind::Echotek);
    addPicture(album, u"A"_qs, 150);
    Recordset rows = album.openRecordset(kOfA);
    rows.findFirst(u"NUMINT>=140"_qs);
    EXPECT_EQ(rows.text(u"NUMINT"_qs), u"140"_qs);
    rows.findLast(u"NUMINT<=3"_qs);
    EXPECT_EQ(rows.text(u"NUMINT"_qs), u"3"_qs);
    rows.findLast(u"NUMINT<=1"_qs);
    EXPECT_EQ(rows.text(u"NUMINT"_qs), u"1"_qs);
    rows.findFirst(u"NUMINT=65"_qs);
    EXPECT_EQ(rows.text(u"NUMINT"_qs), u"65"_qs);
    rows.findFirst(u"NUMINT=151"_qs);
    EXPECT_TRUE(rows.noMatch());
    EXPECT_EQ(rows.text(u"NUMINT"_qs), u"65"_qs);
}

TEST(PatternQuery, PassesOverDeletedRowsAndShowsChangedOnes) {
    const Files files;
    const Database album = files.open(FileKind::Echotek);
    addPicture(album, u"A"_qs, 4);
    Recordset rows = album.openRecordset(kOfA);
    EXPECT_EQ(rows.text(u"NUMINT"_qs), u"1"_qs);
    album.openRecordset(u"SELECT*FROM ECHOS WHERE NUMINT=2"_qs).remove();
    Recordset third = album.openRecordset(u"SELECT*FROM ECHOS WHERE NUMINT=3"_qs);
    third.edit();
    third.set(u"NOM"_qs, u"Z"_qs);
    third.update();
    addPicture(album, u"AB"_qs, 1);
    rows.moveNext();
    EXPECT_EQ(rows.text(u"NUMINT"_qs), u"3"_qs);
    EXPECT_EQ(rows.text(u"NOM"_qs), u"Z"_qs);
    rows.moveLast();
    EXPECT_EQ(rows.text(u"NUMINT"_qs), u"4"_qs);
    EXPECT_EQ(column(album, kOfA, u"NUMINT"_qs), QStringList({u"1"_qs, u"4"_qs, u"5"_qs}));
}

TEST(PatternQuery, PutsARecordAddedThroughItAtTheEnd) {
    const Files files;
    const Database album = files.open(FileKind::Echotek);
    addPicture(album, u"BA"_qs, 2);
    Recordset rows = album.openRecordset(kOfA);
    rows.addNew();
    rows.set(u"NOM"_qs, u"A"_qs);
    rows.set(u"NOMFICH"_qs, u"x"_qs);
    rows.set(u"NOMPATH"_qs, u"x"_qs);
    rows.update();
    EXPECT_EQ(rows.text(u"NUMINT"_qs), u"1"_qs);
    rows.moveLast();
    EXPECT_EQ(rows.text(u"NUMINT"_qs), u"3"_qs);
}

TEST(PatternQuery, EmptiesWhenItsLastRowIsDeleted) {
    const Files files;
    const Database album = files.open(FileKind::Echotek);
    addPicture(album, u"A"_qs, 1);
    Recordset rows = album.openRecordset(kOfA);
    rows.remove();
    EXPECT_FALSE(rows.eof());
    rows.moveNext();
    EXPECT_TRUE(rows.eof());
    EXPECT_TRUE(rows.bof());
    expectError(ErrorNumber::NoCurrentRecord, [&] { rows.moveFirst(); });
}
