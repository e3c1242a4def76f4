#include "dossier/patient_lines.h"

#include <gtest/gtest.h>

#include "fakes/practice_files.h"

namespace dossier {
namespace {

class PatientLines : public ::testing::Test {
protected:
    PatientLines() { fakes::makeFiles(world_); }

    QStringList linesOf(const fakes::Fields& fields, QDate today = {2002, 4, 5}) {
        fakes::addPatient(world_, ++number_, "NOM", "Prénom", fields);
        auto rows = store::Database::open(fakes::pathOf(world_, store::FileKind::Nom))
                        .openRecordset("SELECT*FROM FICHEPATIENT ORDER BY NUMINT");
        rows.moveLast();
        return patientLines(rows, today);
    }

    fakes::World world_;
    int number_ = 0;
};

TEST_F(PatientLines, StandInTheirOrderWithTheirBlanks) {
    const QStringList lines = linesOf({{"NOMJF", "PETIT"},
                                       {"DATENAISS", QDate(1975, 3, 1)},
                                       {"SEXE", "F"},
                                       {"RUE1", "r1"},
                                       {"RUE2", "r2"},
                                       {"VILLE", "v"},
                                       {"CODEPOST", "cp"},
                                       {"TELEPHONE", "t"},
                                       {"FAX", "f"},
                                       {"PROFESSION", "p"},
                                       {"CATSOCPRO", "c"},
                                       {"MEDTT1", "m1"},
                                       {"MEDTT2", "m2"},
                                       {"MEDTT3", "m3"},
                                       {"MEDTT4", "m4"},
                                       {"QUALITE", "q"},
                                       {"ASSURE", "12"},
                                       {"NUMSECSOC", "n"},
                                       {"CAISSE", "ca"},
                                       {"PRISEENCHARGE", "pc"},
                                       {"DATEFINPRISENCHARGE", QDate(2003, 12, 31)},
                                       {"Ranggem", "rg"},
                                       {"CARTESANTE", "cs"},
                                       {"DIVERS1", "d1"},
                                       {"DIVERS2", "d2"},
                                       {"DIVERS3", "d3"},
                                       {"DIVERS4", "4"},
                                       {"EMAIL", "e"}});
    EXPECT_EQ(lines, QStringList({"Née          : PETIT",      "Né(e) le     : 01/03/1975", "Age          : 27 ans",
                                  "Sexe         : Féminin",    "Adress 1     : r1",         "Adress 2     : r2",
                                  "Ville        : v",          "Code Postal  : cp",         "Téléphone    : t",
                                  "Fax          : f",          "Profession   : p",          "Cat Soc Prof : c",
                                  "Méd Trait. 1 : m1",         "Méd Trait. 1 : m2",         "Méd Trait. 1 : m3",
                                  "Méd Trait. 1 : m4",         "Qualité      : q",          "Assuré       : 12",
                                  "N° Sécu      : n",          "Caisse Sécu  : ca",         "Prise en charge ALD : pc",
                                  "Date fin ALD : 31/12/2003", "Rang gemellaire : rg",      "Carte Santé  : cs",
                                  "Divers 1     : d1",         "Divers 2     : d2",         "Divers 3     : d3",
                                  "Divers 4     : 4",          "E Mail       : e"}));
}

TEST_F(PatientLines, WithoutADateOfBirthTellNeitherBirthNorAge) {
    const QStringList lines = linesOf({{"SEXE", "M"}});
    EXPECT_EQ(lines.at(0), "Née          :  ");
    EXPECT_EQ(lines.at(1), "Sexe         : Masculin");
    EXPECT_EQ(lines.filter("Né(e) le").size(), 0);
    EXPECT_EQ(lines.filter("Age").size(), 0);
}

TEST_F(PatientLines, ShowNoSexThatIsNeitherForM) {
    EXPECT_EQ(linesOf({}).filter("Sexe").size(), 0);
    EXPECT_EQ(linesOf({{"SEXE", "X"}}).filter("Sexe").size(), 0);
}

TEST_F(PatientLines, CountTheAgeInCalendarYears) {
    const fakes::Fields born{{"DATENAISS", QDate(1975, 12, 31)}};
    EXPECT_EQ(linesOf(born, QDate(2002, 1, 1)).at(2), "Age          : 27 ans");
    EXPECT_EQ(linesOf(born, QDate(2001, 12, 31)).at(2), "Age          : 26 ans");
}

TEST_F(PatientLines, JoinNullsAsNothingAndBlanksAsTheyAre) {
    const QStringList lines = linesOf({});
    EXPECT_TRUE(lines.contains("Assuré       : "));
    EXPECT_TRUE(lines.contains("Divers 4     : "));
    EXPECT_TRUE(lines.contains("Date fin ALD : "));
    EXPECT_TRUE(lines.contains("Adress 1     :  "));
}

}  // namespace
}  // namespace dossier
