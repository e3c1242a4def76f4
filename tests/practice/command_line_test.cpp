#include <sqlite3.h>
#include <QTemporaryDir>

#include <QCoreApplication>
#include <QFile>
#include <QProcess>

#include "practice/support.h"
#include "store/database.h"
#include "store/recordset.h"

using store::FileKind;

namespace {

struct Result {
    int code;
    QString said, complained;
};

QProcessEnvironment plainLocale() {
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.remove(u"LANG"_qs);
    environment.insert(u"LC_ALL"_qs, u"C"_qs);
    return environment;
}

/// Runs the tool in the C locale and takes what it prints as UTF-8.
Result run(const QStringList& arguments) {
    static int count = 0;
    static const QCoreApplication application(count, nullptr);
    QProcess process;
    process.setProcessEnvironment(plainLocale());
    process.start(QStringLiteral(VERANOX_BASE), arguments);
    EXPECT_TRUE(process.waitForFinished(60000));
    EXPECT_EQ(process.exitStatus(), QProcess::NormalExit);
    return {process.exitCode(), QString::fromUtf8(process.readAllStandardOutput()),
            QString::fromUtf8(process.readAllStandardError())};
}

Result check(const QString& folder) {
    return run({u"verifie"_qs, folder});
}

/// An exam of this dossier with nothing else in it.
void addExam(const QString& folder, FileKind kind, const QString& table, const QString& field, int dossier) {
    auto rows = store::Database::open(pathOf(folder, kind)).openRecordset(u"SELECT*FROM "_qs + table);
    rows.addNew();
    rows.set(field, dossier);
    rows.update();
}

/// What another program does to a file.
void runOutside(const QString& path, const char* sql) {
    sqlite3* database = nullptr;
    sqlite3_open(path.toUtf8().constData(), &database);
    EXPECT_EQ(sqlite3_exec(database, sql, nullptr, nullptr, nullptr), SQLITE_OK) << sqlite3_errmsg(database);
    sqlite3_close(database);
}

/// A practice whose folder has an accent and an apostrophe in its name.
class CommandLine : public testing::Test {
protected:
    CommandLine() { practice::makeEmpty(folder()); }

    QString folder() const { return parent_.filePath(u"Cabinet d'été"_qs); }
    QString file(FileKind kind) const { return pathOf(folder(), kind); }

    void expectFault(const QString& text) const {
        const Result result = check(folder());
        EXPECT_EQ(result.code, 1);
        EXPECT_TRUE(result.complained.contains(text)) << result.complained.toStdString();
    }

private:
    QTemporaryDir parent_;
};

}  // namespace

TEST_F(CommandLine, ExplainsItselfInFrench) {
    for (const QStringList& arguments : {QStringList(), QStringList(u"aide"_qs), QStringList(u"--aide"_qs)}) {
        const Result result = run(arguments);
        EXPECT_EQ(result.code, 0);
        EXPECT_EQ(result.complained, QString());
        for (const QString& piece : {u"nouveau DOSSIER"_qs, u"exemple DOSSIER"_qs, u"verifie DOSSIER"_qs,
                                     u"restaure SAUVEGARDE DOSSIER"_qs, u"Codes de retour"_qs, u"défauts"_qs}) {
            EXPECT_TRUE(result.said.contains(piece)) << piece.toStdString();
        }
    }
}

TEST_F(CommandLine, MakesANewPractice) {
    const QString place = folder() + u"/annexe"_qs;
    const Result result = run({u"nouveau"_qs, place});
    EXPECT_EQ(result.code, 0);
    EXPECT_EQ(result.complained, QString());
    EXPECT_TRUE(result.said.contains(place));
    EXPECT_EQ(rowsOf(practice::pathsIn(place), u"FICHEPATIENT"_qs).size(), 1);
}

TEST_F(CommandLine, MakesTheSamplePractice) {
    const QString place = folder() + u"/exemple"_qs;
    EXPECT_EQ(run({u"exemple"_qs, place}).code, 0);
    EXPECT_EQ(rowsOf(practice::pathsIn(place), u"FICHEPATIENT"_qs).size(), 41);
    EXPECT_EQ(check(place).code, 0);
}

TEST_F(CommandLine, RefusesToReplaceAPracticeAndSaysWhyInUtf8) {
    const QByteArray before = bytesOf(file(FileKind::Nom));
    for (const QString& command : {u"nouveau"_qs, u"exemple"_qs}) {
        const Result result = run({command, folder()});
        EXPECT_EQ(result.code, 2);
        EXPECT_EQ(result.said, QString());
        EXPECT_TRUE(result.complained.contains(u"Un fichier porte déjà ce nom"_qs));
        EXPECT_TRUE(result.complained.contains(u"Cabinet d'été"_qs));
    }
    EXPECT_EQ(bytesOf(file(FileKind::Nom)), before);
}

TEST_F(CommandLine, RefusesWhatItDoesNotKnow) {
    for (const QStringList& arguments :
         {QStringList({u"efface"_qs, folder()}), QStringList(u"nouveau"_qs), QStringList(u"verifie"_qs),
          QStringList({u"verifie"_qs, folder(), folder()}), QStringList({u"restaure"_qs, folder()}),
          QStringList({u"verifie"_qs, folder() + u"/absent"_qs}),
          QStringList({u"nouveau"_qs, folder() + u"/absent/cabinet"_qs})}) {
        const Result result = run(arguments);
        EXPECT_EQ(result.code, 2) << arguments.join(u' ').toStdString();
        EXPECT_EQ(result.said, QString());
        EXPECT_TRUE(result.complained.startsWith(u"veranox-base : "_qs));
    }
}

TEST_F(CommandLine, FindsNothingWrongInASoundPracticeAndChangesNothing) {
    const QByteArray before = bytesOf(file(FileKind::Echo));
    const Result result = check(folder());
    EXPECT_EQ(result.code, 0);
    EXPECT_EQ(result.complained, QString());
    for (const FileKind kind : store::kAllFiles) {
        EXPECT_TRUE(result.said.contains(store::usualName(kind) + u" : en ordre"_qs));
    }
    EXPECT_EQ(bytesOf(file(FileKind::Echo)), before);
}

TEST_F(CommandLine, RestoresABackupAndTellsWhereTheEarlierFilesAre) {
    const QString backup = folder() + u"/Sauve"_qs;
    practice::makeEmpty(backup);
    addExam(folder(), FileKind::Echo, u"1TER"_qs, u"Numero"_qs, 7);
    const Result result = run({u"restaure"_qs, backup, folder()});
    EXPECT_EQ(result.code, 0);
    EXPECT_EQ(result.complained, QString());
    EXPECT_TRUE(result.said.contains(u"mises de côté dans "_qs + folder() + u"/avant-restauration-"_qs));
    EXPECT_EQ(rowsOf(practice::pathsIn(folder()), u"1TER"_qs).size(), 0);
    EXPECT_EQ(check(folder()).code, 0);
}

TEST_F(CommandLine, RestoresNothingOfADamagedBackup) {
    const QString backup = folder() + u"/Sauve"_qs;
    practice::makeEmpty(backup);
    writeBytes(pathOf(backup, FileKind::Nom), "x");
    addExam(folder(), FileKind::Echo, u"1TER"_qs, u"Numero"_qs, 7);
    const Result result = run({u"restaure"_qs, backup, folder()});
    EXPECT_EQ(result.code, 2);
    EXPECT_EQ(result.said, QString());
    EXPECT_TRUE(result.complained.contains(u"NOM.MDB : "_qs));
    EXPECT_EQ(rowsOf(practice::pathsIn(folder()), u"1TER"_qs).size(), 1);
}

TEST_F(CommandLine, TellsAMissingFileAndMakesNone) {
    ASSERT_TRUE(QFile::remove(file(FileKind::Atcd)));
    expectFault(u"ATCD.MDB : "_qs);
    EXPECT_FALSE(QFile::exists(file(FileKind::Atcd)));
}

TEST_F(CommandLine, TellsAnEmptyAForeignAndATruncatedFile) {
    const QByteArray whole = bytesOf(file(FileKind::Nom));
    for (const QByteArray& content : {QByteArray(), QByteArray("une lettre\n").repeated(500), whole.left(5000)}) {
        writeBytes(file(FileKind::Nom), content);
        expectFault(u"NOM.MDB : "_qs);
        EXPECT_EQ(bytesOf(file(FileKind::Nom)), content);
    }
}

TEST_F(CommandLine, TellsAFileThatStandsUnderTheNameOfAnother) {
    ASSERT_TRUE(QFile::remove(file(FileKind::Atcd)));
    ASSERT_TRUE(QFile::copy(file(FileKind::Nom), file(FileKind::Atcd)));
    expectFault(u"ATCD.MDB : ce fichier est en réalité une base NOM.MDB."_qs);
}

TEST_F(CommandLine, TellsAFileOfANewerProgram) {
    QByteArray content = bytesOf(file(FileKind::Echo));
    content[63] = 99;  // the last byte of the version in the file's header
    writeBytes(file(FileKind::Echo), content);
    expectFault(u"ECHO.MDB : "_qs);
    expectFault(u"plus récente"_qs);
}

TEST_F(CommandLine, TellsDamagedContent) {
    QByteArray content = bytesOf(file(FileKind::Echo));
    content.replace(content.size() - 4096, 4096, QByteArray(4096, '\x7f'));
    writeBytes(file(FileKind::Echo), content);
    expectFault(u"ECHO.MDB : le contenu est endommagé"_qs);
}

TEST_F(CommandLine, TellsAMissingTable) {
    runOutside(file(FileKind::Echotek), "DROP TABLE CLEFS");
    expectFault(u"ECHOTEK.MDB : définition absente ou modifiée : table « CLEFS »."_qs);
}

TEST_F(CommandLine, TellsAMissingIndex) {
    runOutside(file(FileKind::Nom), "DROP INDEX FICHEPATIENT_Nom_Prenom");
    expectFault(u"NOM.MDB : définition absente ou modifiée : index « FICHEPATIENT_Nom_Prenom »."_qs);
}

TEST_F(CommandLine, TellsAnIndexThatSortsByOtherFields) {
    runOutside(file(FileKind::Echo),
               "DROP INDEX \"1TER_Numero_NUMECHO\"; CREATE INDEX \"1TER_Numero_NUMECHO\" ON \"1TER\"(\"Numero\")");
    expectFault(u"ECHO.MDB : définition absente ou modifiée : index « 1TER_Numero_NUMECHO »."_qs);
}

TEST_F(CommandLine, TellsATableWithAFieldMore) {
    runOutside(file(FileKind::Atcd), "ALTER TABLE FICHEATCD ADD COLUMN AUTRE TEXT");
    expectFault(u"ATCD.MDB : définition absente ou modifiée : table « FICHEATCD »."_qs);
}

TEST_F(CommandLine, CountsTheRecordsWithoutAPatient) {
    addExam(folder(), FileKind::Echo, u"1TER"_qs, u"Numero"_qs, 1);
    addExam(folder(), FileKind::Echo, u"1TER"_qs, u"Numero"_qs, 7);
    addExam(folder(), FileKind::Echo, u"1TER"_qs, u"Numero"_qs, 7);
    addExam(folder(), FileKind::Echo, u"GYNECO"_qs, u"Numero"_qs, 8);
    addExam(folder(), FileKind::Atcd, u"FICHEATCD"_qs, u"Numint"_qs, 9);
    expectFault(u"2 examens obstétricaux sans dossier patient."_qs);
    expectFault(u"1 examen gynécologique sans dossier patient."_qs);
    expectFault(u"1 antécédent sans dossier patient."_qs);
}

TEST_F(CommandLine, LeavesTheTiesAloneWhenAFileIsAtFault) {
    addExam(folder(), FileKind::Echo, u"1TER"_qs, u"Numero"_qs, 7);
    ASSERT_TRUE(QFile::remove(file(FileKind::Nom)));
    const Result result = check(folder());
    EXPECT_EQ(result.code, 1);
    EXPECT_FALSE(result.complained.contains(u"sans dossier patient"_qs));
    EXPECT_TRUE(result.complained.contains(u"non contrôlés"_qs));
}
