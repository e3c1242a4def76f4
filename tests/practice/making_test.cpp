#include <unistd.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include "practice/staging.h"
#include "practice/support.h"
#include "store/database.h"

using base::ErrorNumber;
using practice::makeEmpty;
using practice::makeSample;
using practice::Paths;
using practice::pathsIn;
using store::FileKind;

namespace {

const QStringList kFourNames{u"ATCD.MDB"_qs, u"ECHO.MDB"_qs, u"ECHOTEK.MDB"_qs, u"NOM.MDB"_qs};

const QStringList kBlankRule{u"PRENOM"_qs,        u"NOMJF"_qs,      u"RUE1"_qs,    u"RUE2"_qs,       u"VILLE"_qs,
                             u"CODEPOST"_qs,      u"TELEPHONE"_qs,  u"FAX"_qs,     u"PROFESSION"_qs, u"CATSOCPRO"_qs,
                             u"CIVILITEE"_qs,     u"NUMSECSOC"_qs,  u"DIVERS1"_qs, u"DIVERS2"_qs,    u"DIVERS3"_qs,
                             u"PRISEENCHARGE"_qs, u"CARTESANTE"_qs, u"DCD"_qs,     u"PERDUDEVUE"_qs, u"MEDTT1"_qs,
                             u"MEDTT2"_qs,        u"MEDTT3"_qs,     u"MEDTT4"_qs,  u"CAISSE"_qs,     u"RANGGEM"_qs,
                             u"QUALITE"_qs,       u"DROITS"_qs,     u"EMAIL"_qs,   u"TIERSPAYANT"_qs};

/// Gives up the rights of root, which no read-only folder stops, for as long as it lives.
class WithoutPrivileges {
public:
    WithoutPrivileges() : privileged_(::geteuid() == 0) {
        if (privileged_ && ::seteuid(65534) != 0) {
            ADD_FAILURE() << "can't give up root";
        }
    }
    ~WithoutPrivileges() {
        if (privileged_ && ::seteuid(0) != 0) {
            std::abort();
        }
    }
    WithoutPrivileges(const WithoutPrivileges&) = delete;
    WithoutPrivileges& operator=(const WithoutPrivileges&) = delete;

private:
    bool privileged_;
};

}  // namespace

TEST(MakingAPractice, PutsTheFourFilesUnderTheirUsualNamesAndNothingElse) {
    const QTemporaryDir folder;
    makeEmpty(folder.path());
    EXPECT_EQ(namesIn(folder.path()), kFourNames);
}

TEST(MakingAPractice, GivesEachFileItsOwnKind) {
    const QTemporaryDir folder;
    makeEmpty(folder.path());
    const Paths paths = pathsIn(folder.path());
    EXPECT_EQ(store::Database::open(paths.nom).kind(), FileKind::Nom);
    EXPECT_EQ(store::Database::open(paths.echo).kind(), FileKind::Echo);
    EXPECT_EQ(store::Database::open(paths.atcd).kind(), FileKind::Atcd);
    EXPECT_EQ(store::Database::open(paths.echotek).kind(), FileKind::Echotek);
}

TEST(MakingAPractice, GivesThePatientFileItsOneModelSheet) {
    const QTemporaryDir folder;
    makeEmpty(folder.path());
    const QList<Row> sheets = rowsOf(pathsIn(folder.path()), u"FICHEPATIENT"_qs);
    ASSERT_EQ(sheets.size(), 1);
    EXPECT_EQ(sheets[0][u"NUMINT"_qs].number(), 1);
    EXPECT_EQ(sheets[0][u"NOM"_qs].text(), u"DOSSIER MODELE"_qs);
    for (const QString& field : kBlankRule) {
        EXPECT_EQ(sheets[0][field].text(), u" "_qs) << field.toStdString();
    }
    for (const QString& field : {u"DATENAISS"_qs, u"DATEFINPRISENCHARGE"_qs, u"ASSURE"_qs, u"DIVERS4"_qs}) {
        EXPECT_TRUE(sheets[0][field].isNull()) << field.toStdString();
    }
}

TEST(MakingAPractice, LeavesEveryOtherTableEmpty) {
    const QTemporaryDir folder;
    makeEmpty(folder.path());
    for (const QString& table :
         {u"1TER"_qs, u"GYNECO"_qs, u"OPTIONS"_qs, u"CIVILITES"_qs, u"FICHEATCD"_qs, u"ECHOS"_qs, u"CLEFS"_qs}) {
        EXPECT_TRUE(rowsOf(pathsIn(folder.path()), table).isEmpty()) << table.toStdString();
    }
}

TEST(MakingAPractice, MakesFilesThatTheirOwnerAloneReads) {
    const QTemporaryDir folder;
    makeEmpty(folder.path());
    const QFile::Permissions others = QFile::ReadGroup | QFile::WriteGroup | QFile::ReadOther | QFile::WriteOther;
    for (const FileKind kind : store::kAllFiles) {
        const QFile::Permissions rights = QFile::permissions(pathOf(folder.path(), kind));
        EXPECT_TRUE(rights.testFlag(QFile::ReadOwner));
        EXPECT_FALSE(rights & others) << store::usualName(kind).toStdString();
    }
}

TEST(MakingAPractice, MakesTheFolderWhenOnlyItsLastStepIsMissing) {
    const QTemporaryDir folder;
    makeEmpty(folder.filePath(u"Cabinet d'été"_qs));
    EXPECT_EQ(namesIn(folder.filePath(u"Cabinet d'été"_qs)), kFourNames);
}

TEST(MakingAPractice, RefusesAFolderWhoseParentIsMissing) {
    const QTemporaryDir folder;
    EXPECT_EQ(errorOf([&] { makeEmpty(folder.filePath(u"absent/cabinet"_qs)); }), ErrorNumber::PathNotFound);
    EXPECT_TRUE(namesIn(folder.path()).isEmpty());
}

TEST(MakingAPractice, RefusesAFileInPlaceOfTheFolder) {
    const QTemporaryDir folder;
    writeBytes(folder.filePath(u"cabinet"_qs), "lettre");
    EXPECT_EQ(errorOf([&] { makeEmpty(folder.filePath(u"cabinet"_qs)); }), ErrorNumber::PathNotFound);
    EXPECT_EQ(bytesOf(folder.filePath(u"cabinet"_qs)), "lettre");
}

TEST(MakingAPractice, TouchesNothingWhenOneOfTheFilesIsThere) {
    for (const FileKind kind : store::kAllFiles) {
        for (const auto make : {makeEmpty, makeSample}) {
            const QTemporaryDir folder;
            writeBytes(pathOf(folder.path(), kind), "ancien");
            EXPECT_EQ(errorOf([&] { make(folder.path()); }), ErrorNumber::PermissionDenied);
            EXPECT_EQ(namesIn(folder.path()), QStringList(store::usualName(kind)));
            EXPECT_EQ(bytesOf(pathOf(folder.path(), kind)), "ancien");
        }
    }
}

TEST(MakingAPractice, TellsTheFileThatIsInTheWay) {
    const QTemporaryDir folder;
    writeBytes(pathOf(folder.path(), FileKind::Atcd), "ancien");
    try {
        makeEmpty(folder.path());
        FAIL() << "no error";
    } catch (const base::RuntimeError& error) {
        EXPECT_TRUE(error.text().contains(pathOf(folder.path(), FileKind::Atcd))) << error.what();
    }
}

TEST(MakingAPractice, TakesALinkThatLeadsNowhereForAFile) {
    const QTemporaryDir folder;
    ASSERT_TRUE(QFile::link(folder.filePath(u"ailleurs"_qs), pathOf(folder.path(), FileKind::Echo)));
    EXPECT_EQ(errorOf([&] { makeEmpty(folder.path()); }), ErrorNumber::PermissionDenied);
    EXPECT_EQ(namesIn(folder.path()), QStringList(u"ECHO.MDB"_qs));
    EXPECT_FALSE(QFileInfo::exists(folder.filePath(u"ailleurs"_qs)));
}

TEST(MakingAPractice, LeavesAReadOnlyFolderAsItIs) {
    const QTemporaryDir folder;
    const QString closed = folder.filePath(u"ferme"_qs);
    ASSERT_TRUE(QDir().mkdir(closed));
    ASSERT_TRUE(QFile::setPermissions(closed, QFile::ReadOwner | QFile::ExeOwner | QFile::ReadOther | QFile::ExeOther));
    ASSERT_TRUE(QFile::setPermissions(folder.path(), QFile::Permissions(0x7755)));
    {
        const WithoutPrivileges person;
        EXPECT_EQ(errorOf([&] { makeEmpty(closed); }), ErrorNumber::PermissionDenied);
        EXPECT_EQ(errorOf([&] { makeEmpty(closed + u"/nouveau"_qs); }), ErrorNumber::PermissionDenied);
    }
    EXPECT_TRUE(namesIn(closed).isEmpty());
}

TEST(Staging, ShowsNothingBeforeItPublishes) {
    const QTemporaryDir folder;
    {
        const practice::Staging staging(folder.path());
        store::createFile(FileKind::Nom, staging.paths().nom);
        EXPECT_FALSE(QFileInfo::exists(pathOf(folder.path(), FileKind::Nom)));
    }
    EXPECT_TRUE(namesIn(folder.path()).isEmpty());
}

TEST(Staging, TakesAwayTheFolderItMadeWhenNothingComesOfIt) {
    const QTemporaryDir folder;
    { const practice::Staging staging(folder.filePath(u"cabinet"_qs)); }
    EXPECT_TRUE(namesIn(folder.path()).isEmpty());
}

TEST(Staging, PublishesNoneWhenAFileHasComeMeanwhile) {
    for (const FileKind kind : store::kAllFiles) {
        const QTemporaryDir folder;
        {
            practice::Staging staging(folder.path());
            for (const FileKind made : store::kAllFiles) {
                store::createFile(made, QDir(QFileInfo(staging.paths().nom).path()).filePath(store::usualName(made)));
            }
            writeBytes(pathOf(folder.path(), kind), "d'un autre poste");
            EXPECT_EQ(errorOf([&] { staging.publish(); }), ErrorNumber::PermissionDenied);
        }
        EXPECT_EQ(namesIn(folder.path()), QStringList(store::usualName(kind)));
        EXPECT_EQ(bytesOf(pathOf(folder.path(), kind)), "d'un autre poste");
    }
}

TEST(Staging, PublishesNoneWhenAFinishedFileIsMissing) {
    const QTemporaryDir folder;
    {
        practice::Staging staging(folder.path());
        store::createFile(FileKind::Nom, staging.paths().nom);
        store::createFile(FileKind::Echo, staging.paths().echo);
        EXPECT_EQ(errorOf([&] { staging.publish(); }), ErrorNumber::PermissionDenied);
    }
    EXPECT_TRUE(namesIn(folder.path()).isEmpty());
}
