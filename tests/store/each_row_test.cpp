// All rows of a query in one pass.

#include "store/files.h"

using store::Database;
using store::FileKind;
using store::Recordset;

namespace {

QStringList read(const Recordset& rows, const QStringList& fields) {
    QStringList lines;
    rows.eachRow(fields, [&lines](const QStringList& texts) { lines << texts.join(u'|'); });
    return lines;
}

void addPicture(const Database& album, const QString& file, const QString& name) {
    add(album, u"ECHOS"_qs, {{u"Nom"_qs, name}, {u"NOMFICH"_qs, file}, {u"NOMPATH"_qs, file}});
}

}  // namespace

TEST(EachRow, GivesTheTextsOfItsFieldsInTheOrderOfTheQuery) {
    const Files files;
    const Database album = files.open(FileKind::Echotek);
    addPicture(album, u"1.bmp"_qs, u"ZOLA"_qs);
    addPicture(album, u"2.bmp"_qs, u"ABEL"_qs);
    addPicture(album, u"3.bmp"_qs, u"MARTIN"_qs);
    const Recordset all = album.openRecordset(u"SELECT*FROM ECHOS "_qs);
    EXPECT_EQ(read(all, {u"NUMINT"_qs, u"nom"_qs}), QStringList({u"1|ZOLA"_qs, u"2|ABEL"_qs, u"3|MARTIN"_qs}));
    const Recordset some = album.openRecordset(u"SELECT*FROM ECHOS WHERE NOM LIKE '*A*' ORDER BY NOM"_qs);
    EXPECT_EQ(read(some, {u"NOMFICH"_qs}), QStringList({u"2.bmp"_qs, u"3.bmp"_qs, u"1.bmp"_qs}));
    const Recordset none = album.openRecordset(u"SELECT*FROM ECHOS WHERE NOM LIKE '*X*'"_qs);
    EXPECT_EQ(read(none, {u"NOM"_qs}), QStringList());
}

TEST(EachRow, GivesEachValueAsTheFieldShowsIt) {
    const Files files;
    const Database nom = files.open(FileKind::Nom);
    addPatient(nom, 12, u"DÉSIR"_qs, u"Eva"_qs);
    Recordset rows = nom.openRecordset(u"SELECT*FROM FICHEPATIENT WHERE NUMINT=12"_qs);
    rows.edit();
    rows.set(u"DATENAISS"_qs, QDate(1975, 3, 1));
    rows.update();
    const QStringList fields{u"NUMINT"_qs, u"NOM"_qs, u"DATENAISS"_qs, u"DATEFINPRISENCHARGE"_qs};
    EXPECT_EQ(read(rows, fields), QStringList(u"12|DÉSIR|01/03/1975|"_qs));
}

TEST(EachRow, SeesWhatOthersWroteAndLeavesTheCursorWhereItIs) {
    const Files files;
    const Database album = files.open(FileKind::Echotek);
    addPicture(album, u"1.bmp"_qs, u"ABEL"_qs);
    addPicture(album, u"2.bmp"_qs, u"ABEL"_qs);
    Recordset rows = album.openRecordset(u"SELECT*FROM ECHOS WHERE NOM LIKE '*A*'"_qs);
    rows.moveNext();
    addPicture(album, u"3.bmp"_qs, u"ABEL"_qs);
    EXPECT_EQ(read(rows, {u"NOMFICH"_qs}), QStringList({u"1.bmp"_qs, u"2.bmp"_qs, u"3.bmp"_qs}));
    EXPECT_EQ(rows.text(u"NOMFICH"_qs), u"2.bmp"_qs);
}

TEST(EachRow, HoldsNoLockWhenItEndsEarly) {
    const Files files;
    const Database album = files.open(FileKind::Echotek);
    addPicture(album, u"1.bmp"_qs, u"ABEL"_qs);
    addPicture(album, u"2.bmp"_qs, u"ABEL"_qs);
    const Recordset rows = album.openRecordset(u"SELECT*FROM ECHOS "_qs);
    EXPECT_THROW(rows.eachRow({u"NOM"_qs}, [](const QStringList&) { throw 1; }), int);
    addPicture(album, u"3.bmp"_qs, u"ABEL"_qs);
    EXPECT_EQ(read(rows, {u"NUMINT"_qs}), QStringList({u"1"_qs, u"2"_qs, u"3"_qs}));
}

TEST(EachRow, RefusesAnUnknownFieldAndAQueryOnNothing) {
    const Files files;
    const Recordset rows = files.open(FileKind::Echotek).openRecordset(u"SELECT*FROM ECHOS "_qs);
    const auto ignore = [](const QStringList&) {};
    expectError(base::ErrorNumber::UnknownField, [&] { rows.eachRow({u"NOMS"_qs}, ignore); });
    expectError(base::ErrorNumber::ObjectNotSet, [&] { Recordset().eachRow({u"NOM"_qs}, ignore); });
}
