#include "practice/restore.h"

#include <sys/stat.h>
#include <unistd.h>
#include <QTemporaryDir>

#include <QFile>

#include "practice/check.h"
#include "practice/support.h"
#include "store/database.h"
#include "store/recordset.h"

using base::ErrorNumber;
using store::FileKind;

namespace {

const QStringList kFour{u"ATCD.MDB"_qs, u"ECHO.MDB"_qs, u"ECHOTEK.MDB"_qs, u"NOM.MDB"_qs};
const QDateTime kNow(QDate(2002, 4, 5), QTime(9, 7, 3));
const auto kAside = u"avant-restauration-20020405-090703"_qs;

void addPatient(const QString& folder, int number, const QString& surname) {
    auto rows = store::Database::open(pathOf(folder, FileKind::Nom)).openRecordset(u"SELECT*FROM FICHEPATIENT"_qs);
    rows.addNew();
    rows.set(u"NUMINT"_qs, number);
    rows.set(u"NOM"_qs, surname);
    rows.update();
}

QStringList patientsIn(const QString& folder) {
    QStringList names;
    for (const Row& row : rowsOf(practice::pathsIn(folder), u"FICHEPATIENT"_qs)) {
        names << row[u"NOM"_qs].text();
    }
    return names;
}

/// The names without the empty journals of the last saves.
QStringList filesIn(const QString& folder) {
    QStringList names = namesIn(folder);
    names.removeIf([](const QString& name) { return name.endsWith(u"-journal"_qs); });
    return names;
}

/// A practice with one patient more than its backup.
class Restoring : public testing::Test {
protected:
    Restoring() {
        practice::makeEmpty(backup);
        practice::makeEmpty(folder);
        addPatient(folder, 2, u"DUPONT"_qs);
    }

    void expectUntouched() const {
        EXPECT_EQ(filesIn(folder), kFour);
        EXPECT_EQ(patientsIn(folder), QStringList({u"DOSSIER MODELE"_qs, u"DUPONT"_qs}));
    }
    QString error(const QString& from, const QString& to) const {
        try {
            practice::restore(from, to, kNow);
        } catch (const base::RuntimeError& error) {
            return error.text();
        }
        return {};
    }

    QTemporaryDir parent;
    QString backup = parent.filePath(u"Sauvegarde d'été"_qs);
    QString folder = parent.filePath(u"Cabinet"_qs);
};

}  // namespace

TEST_F(Restoring, PutsTheBackupInPlaceAndTheEarlierFilesAsideWithTheTime) {
    EXPECT_EQ(practice::restore(backup, folder, kNow), folder + u'/' + kAside);
    EXPECT_EQ(patientsIn(folder), QStringList({u"DOSSIER MODELE"_qs}));
    EXPECT_EQ(filesIn(folder), QStringList(kFour) << kAside);
    EXPECT_EQ(patientsIn(folder + u'/' + kAside), QStringList({u"DOSSIER MODELE"_qs, u"DUPONT"_qs}));
    for (const practice::Finding& finding : practice::check(folder)) {
        EXPECT_EQ(finding.faults, QStringList());
    }
    EXPECT_EQ(filesIn(backup), kFour);
}

TEST_F(Restoring, CanBeUndoneByRestoringWhatWasSetAside) {
    const QString aside = practice::restore(backup, folder, kNow);
    EXPECT_EQ(practice::restore(aside, folder, kNow), aside + u"-2"_qs);
    EXPECT_EQ(patientsIn(folder), QStringList({u"DOSSIER MODELE"_qs, u"DUPONT"_qs}));
}

TEST_F(Restoring, SetsTheJournalsAsideToo) {
    writeBytes(folder + u"/NOM.MDB-journal"_qs, "journal");
    practice::restore(backup, folder, kNow);
    EXPECT_FALSE(QFile::exists(folder + u"/NOM.MDB-journal"_qs));
    EXPECT_EQ(bytesOf(folder + u'/' + kAside + u"/NOM.MDB-journal"_qs), "journal");
}

TEST_F(Restoring, FillsAFolderThatIsEmptyOrNotThereYet) {
    const QString fresh = parent.filePath(u"Nouveau poste"_qs);
    EXPECT_EQ(practice::restore(backup, fresh, kNow), QString());
    EXPECT_EQ(filesIn(fresh), kFour);
    EXPECT_EQ(errorOf([&] { practice::restore(backup, fresh + u"/a/b"_qs, kNow); }), ErrorNumber::PathNotFound);
}

TEST_F(Restoring, ReplacesFilesThatAreDamagedOrMissing) {
    writeBytes(pathOf(folder, FileKind::Nom), "plus rien de lisible");
    QFile::remove(pathOf(folder, FileKind::Echo));
    practice::restore(backup, folder, kNow);
    EXPECT_EQ(filesIn(folder), QStringList(kFour) << kAside);
    EXPECT_EQ(bytesOf(pathOf(folder + u'/' + kAside, FileKind::Nom)), "plus rien de lisible");
}

TEST_F(Restoring, TakesABackupByTheBeginningOfItsNames) {
    for (const QString& name : kFour) {
        QFile::rename(backup + u'/' + name, parent.filePath(u"Mardi "_qs + name));
    }
    practice::restore(parent.filePath(u"Mardi "_qs), folder, kNow);
    EXPECT_EQ(patientsIn(folder), QStringList({u"DOSSIER MODELE"_qs}));
}

TEST_F(Restoring, OpensTheFilesToTheSamePeopleAsBefore) {
    const QString nom = pathOf(folder, FileKind::Nom);
    const auto shared = QFile::permissions(nom) | QFile::ReadGroup | QFile::WriteGroup;
    QFile::setPermissions(nom, shared);
    practice::restore(backup, folder, kNow);
    EXPECT_EQ(QFile::permissions(nom), shared);
    EXPECT_FALSE(QFile::permissions(pathOf(folder, FileKind::Echo)) & QFile::ReadGroup);
}

TEST_F(Restoring, RefusesABackupWithAFileMissing) {
    QFile::remove(pathOf(backup, FileKind::Atcd));
    EXPECT_TRUE(error(backup, folder).contains(u"ATCD.MDB : "_qs));
    expectUntouched();
    EXPECT_EQ(errorOf([&] { practice::restore(parent.filePath(u"absent"_qs), folder, kNow); }),
              ErrorNumber::UnknownFormat);
    expectUntouched();
}

TEST_F(Restoring, RefusesABackupWithAFileDamaged) {
    QByteArray content = bytesOf(pathOf(backup, FileKind::Echo));
    content.replace(content.size() - 4096, 4096, QByteArray(4096, '\x7f'));
    writeBytes(pathOf(backup, FileKind::Echo), content);
    EXPECT_EQ(errorOf([&] { practice::restore(backup, folder, kNow); }), ErrorNumber::UnknownFormat);
    EXPECT_TRUE(error(backup, folder).contains(u"ECHO.MDB : "_qs));
    expectUntouched();
}

TEST_F(Restoring, RefusesABackupWithAFileUnderAnothersName) {
    QFile::remove(pathOf(backup, FileKind::Atcd));
    QFile::copy(pathOf(backup, FileKind::Nom), pathOf(backup, FileKind::Atcd));
    EXPECT_EQ(errorOf([&] { practice::restore(backup, folder, kNow); }), ErrorNumber::UnknownFormat);
    expectUntouched();
}

TEST_F(Restoring, RefusesThePracticeItselfAsItsBackup) {
    EXPECT_EQ(errorOf([&] { practice::restore(folder, folder, kNow); }), ErrorNumber::PermissionDenied);
    expectUntouched();
}

TEST_F(Restoring, PutsTheEarlierFilesBackWhenOneOfThemCannotBeMoved) {
    if (::geteuid() != 0) {
        GTEST_SKIP() << "needs a file of another person";
    }
    // In a folder of this kind everybody moves his own files only, and one of the four is not his.
    constexpr uid_t kNobody = 65534;
    const auto give = [](const QString& path, uid_t owner) { return ::chown(path.toUtf8().constData(), owner, 0); };
    QFile::setPermissions(parent.path(), QFile::Permissions(0x7755));
    ASSERT_EQ(::chmod(folder.toUtf8().constData(), 01777), 0);
    for (const QString& place : {backup, folder}) {
        for (const QString& name : namesIn(place)) {
            ASSERT_EQ(give(place + u'/' + name, kNobody), 0);
        }
    }
    ASSERT_EQ(give(backup, kNobody), 0);
    ASSERT_EQ(give(pathOf(folder, FileKind::Echotek), 0), 0);
    ASSERT_EQ(::seteuid(kNobody), 0);
    const QString text = error(backup, folder);
    ASSERT_EQ(::seteuid(0), 0);
    EXPECT_TRUE(text.contains(u"ne peut pas être mis de côté"_qs)) << text.toStdString();
    EXPECT_TRUE(text.contains(u"ECHOTEK.MDB"_qs));
    expectUntouched();
}
