#include "store/files.h"

using store::Database;
using store::FileKind;
using store::Recordset;

namespace {

const auto kPatients = u"SELECT*FROM FICHEPATIENT ORDER BY NOM"_qs;

/// One patient in a file of her own.
class StandsOn : public testing::Test {
protected:
    StandsOn() { addPatient(nom, 1, u"MARTIN"_qs); }

    Files files;
    Database nom = files.open(FileKind::Nom);
};

}  // namespace

TEST_F(StandsOn, ARecordOfItsTableWhateverTheCase) {
    const Recordset rows = nom.openRecordset(kPatients);
    EXPECT_TRUE(rows.standsOn(u"FichePatient"_qs));
    EXPECT_FALSE(rows.standsOn(u"CIVILITES"_qs));
}

TEST_F(StandsOn, NothingBeyondTheEnds) {
    Recordset rows = nom.openRecordset(kPatients);
    rows.moveNext();
    EXPECT_FALSE(rows.standsOn(u"FICHEPATIENT"_qs));
    EXPECT_FALSE(nom.openRecordset(u"SELECT*FROM FICHEPATIENT WHERE NUMINT=9"_qs).standsOn(u"FICHEPATIENT"_qs));
}

TEST_F(StandsOn, NothingAfterTheRecordWasDeleted) {
    Recordset rows = nom.openRecordset(kPatients);
    rows.remove();
    EXPECT_FALSE(rows.standsOn(u"FICHEPATIENT"_qs));
}

TEST_F(StandsOn, NothingWithoutAQueryOrOnAClosedFile) {
    EXPECT_FALSE(Recordset().standsOn(u"FICHEPATIENT"_qs));
    const Recordset rows = nom.openRecordset(kPatients);
    nom.close();
    EXPECT_FALSE(rows.standsOn(u"FICHEPATIENT"_qs));
}
