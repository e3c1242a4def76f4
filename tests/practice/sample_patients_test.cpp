#include <QHash>
#include <QRegularExpression>
#include <QSet>
#include <QTemporaryDir>

#include "practice/sample.h"

namespace {

const QStringList kTables{u"FICHEPATIENT"_qs, u"1TER"_qs,      u"GYNECO"_qs, u"OPTIONS"_qs,
                          u"CIVILITES"_qs,    u"FICHEATCD"_qs, u"ECHOS"_qs,  u"CLEFS"_qs};

// The fields that the entry window may leave unwritten; in all others nothing entered is one blank.
const QStringList kMayBeNull{u"DATENAISS"_qs, u"DATEFINPRISENCHARGE"_qs, u"ASSURE"_qs, u"DIVERS4"_qs,
                             u"SEXE"_qs,      u"ALSACEMOSELLE"_qs};

}  // namespace

using SamplePatients = Sample;

TEST_F(SamplePatients, AreFortyBesideTheModelSheet) {
    ASSERT_EQ(patients().size(), 41);
    EXPECT_EQ(patient(1)[u"NOM"_qs].text(), u"DOSSIER MODELE"_qs);
    for (int number = 2; number <= 41; ++number) {
        EXPECT_NE(patient(number)[u"NOM"_qs].text(), u" "_qs) << number;
    }
}

TEST_F(SamplePatients, AreAlwaysTheSameWithTheirWholePractice) {
    const QTemporaryDir other;
    practice::makeSample(other.path());
    for (const QString& table : kTables) {
        EXPECT_EQ(rowsOf(files(), table), rowsOf(practice::pathsIn(other.path()), table)) << table.toStdString();
    }
}

TEST_F(SamplePatients, HoldABlankWhereNothingWasEntered) {
    for (const Row& sheet : patients()) {
        for (auto field = sheet.begin(); field != sheet.end(); ++field) {
            if (field->isNull()) {
                EXPECT_TRUE(kMayBeNull.contains(field.key())) << field.key().toStdString();
            }
            EXPECT_TRUE(field->isNull() || !field->text().isEmpty()) << field.key().toStdString();
        }
    }
}

TEST_F(SamplePatients, RepeatTheFirstAddressLineWhereASecondWasEntered) {
    int repeated = 0, blank = 0;
    for (const Row& sheet : patients()) {
        const QString second = sheet[u"RUE2"_qs].text();
        repeated += second == sheet[u"RUE1"_qs].text() && second != u" " ? 1 : 0;
        blank += second == u" " ? 1 : 0;
    }
    EXPECT_GT(repeated, 0);
    EXPECT_GT(blank, 0);
    EXPECT_EQ(repeated + blank, 41);
}

TEST_F(SamplePatients, HoldTheWholeSheetOfClaireAubree) {
    const Row sheet = patient(2);
    EXPECT_EQ(sheet[u"CIVILITEE"_qs].text(), u"Madame"_qs);
    EXPECT_EQ(sheet[u"NOM"_qs].text(), u"AUBRÉE"_qs);
    EXPECT_EQ(sheet[u"PRENOM"_qs].text(), u"Claire"_qs);
    EXPECT_EQ(sheet[u"NOMJF"_qs].text(), u"LEMOINE"_qs);
    EXPECT_EQ(sheet[u"DATENAISS"_qs].date(), QDate(1972, 4, 12));
    EXPECT_EQ(sheet[u"SEXE"_qs].text(), u"F"_qs);
    EXPECT_EQ(sheet[u"VILLE"_qs].text(), u"BELVAUDE-SUR-ORLE"_qs);
    EXPECT_EQ(sheet[u"CODEPOST"_qs].text(), u"99310"_qs);
    EXPECT_EQ(sheet[u"MEDTT1"_qs].text(), u"Dr Paul ESTÈVE, Belvaude"_qs);
    EXPECT_EQ(sheet[u"MEDTT2"_qs].text(), u" "_qs);
    EXPECT_EQ(sheet[u"CAISSE"_qs].text(), u"Caisse primaire de Belvaude"_qs);
    EXPECT_EQ(sheet[u"ALSACEMOSELLE"_qs].text(), u"N"_qs);
    // 2 720 499 310 017 leaves 34 when divided by 97: the key is 63.
    EXPECT_EQ(sheet[u"NUMSECSOC"_qs].text(), u"2 72 04 99 310 017 63"_qs);
}

TEST_F(SamplePatients, HaveAPairAndATripleOfNamesakes) {
    QHash<QString, QStringList> firstNames;
    for (const Row& sheet : patients()) {
        firstNames[sheet[u"NOM"_qs].text()] << sheet[u"PRENOM"_qs].text();
    }
    EXPECT_EQ(firstNames[u"GUÉRIN"_qs], QStringList({u"Sophie"_qs, u"Sophie"_qs}));
    EXPECT_EQ(firstNames[u"MARTINEAU"_qs], QStringList({u"Anne"_qs, u"Béatrice"_qs, u"Christelle"_qs}));
    EXPECT_NE(patient(5)[u"DATENAISS"_qs], patient(24)[u"DATENAISS"_qs]);
}

TEST_F(SamplePatients, HaveNamesWithApostrophesHyphensBlanksAndAccents) {
    QSet<QString> names;
    for (const Row& sheet : patients()) {
        names.insert(sheet[u"NOM"_qs].text());
    }
    for (const QString& name : {u"D'ALMEIDA"_qs, u"BLANCHET-MOREL"_qs, u"LE GALLOU"_qs, u"ÉVRARD"_qs, u"MAÇON"_qs}) {
        EXPECT_TRUE(names.contains(name)) << name.toStdString();
    }
}

TEST_F(SamplePatients, HaveOneManOneWithoutSexAndOneWithoutBirthDate) {
    int men = 0;
    for (int number = 2; number <= 41; ++number) {
        men += patient(number)[u"SEXE"_qs].text() == u"M" ? 1 : 0;
    }
    EXPECT_EQ(men, 1);
    EXPECT_EQ(patient(34)[u"SEXE"_qs].text(), u"M"_qs);
    EXPECT_TRUE(patient(33)[u"SEXE"_qs].isNull());
    EXPECT_TRUE(patient(32)[u"DATENAISS"_qs].isNull());
}

TEST_F(SamplePatients, HaveOneEnteredWithOnlyASurname) {
    const Row sheet = patient(41);
    EXPECT_EQ(sheet[u"NOM"_qs].text(), u"SABATIER"_qs);
    for (auto field = sheet.begin(); field != sheet.end(); ++field) {
        if (field.key() != u"NOM" && field.key() != u"NUMINT" && !kMayBeNull.contains(field.key())) {
            EXPECT_EQ(field->text(), u" "_qs) << field.key().toStdString();
        }
    }
}

TEST_F(SamplePatients, ReadAsNumbersAndDatesWhereTheirFieldsAsk) {
    EXPECT_EQ(patient(34)[u"ASSURE"_qs].number(), 1);
    EXPECT_EQ(patient(39)[u"DIVERS4"_qs].number(), 12);
    EXPECT_EQ(patient(8)[u"DATEFINPRISENCHARGE"_qs].date(), QDate(2003, 12, 31));
    EXPECT_EQ(patient(27)[u"ALSACEMOSELLE"_qs].text(), u"O"_qs);
}

TEST_F(SamplePatients, HaveHistoriesThatBeginWithABlankAndBelongToThem) {
    const QList<Row> histories = rowsOf(files(), u"FICHEATCD"_qs);
    EXPECT_GE(histories.size(), 10);
    QSet<qint64> dossiers;
    for (const Row& history : histories) {
        const qint64 dossier = history[u"NUMINT"_qs].number();
        EXPECT_TRUE(dossier >= 2 && dossier <= 41) << dossier;
        EXPECT_FALSE(dossiers.contains(dossier)) << dossier;
        dossiers.insert(dossier);
        EXPECT_EQ(history[u"TYPE"_qs].text(), u"1"_qs);
        EXPECT_TRUE(QRegularExpression(u"^ \\S"_qs).match(history[u"TEXTE"_qs].text()).hasMatch()) << dossier;
    }
}

TEST_F(SamplePatients, LeaveTheAlbumAndTheCivilitiesEmpty) {
    EXPECT_TRUE(rowsOf(files(), u"ECHOS"_qs).isEmpty());
    EXPECT_TRUE(rowsOf(files(), u"CIVILITES"_qs).isEmpty());
}

TEST_F(SamplePatients, ComeWithKeyWordsInAllFourLists) {
    QHash<qint64, QStringList> words;
    for (const Row& row : rowsOf(files(), u"CLEFS"_qs)) {
        words[row[u"NUMCRIT"_qs].number()] << row[u"CRIT"_qs].text();
    }
    EXPECT_EQ(words.size(), 4);
    for (const qint64 list : {0, 1, 2, 3}) {
        EXPECT_GE(words[list].size(), 4) << list;
        EXPECT_EQ(words[list].removeDuplicates(), 0) << list;
        EXPECT_FALSE(words[list].contains(QString())) << list;
    }
}
