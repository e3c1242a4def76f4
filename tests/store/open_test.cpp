#include <sqlite3.h>

#include <QFile>
#include <QFileInfo>

#include "store/check.h"
#include "store/collation.h"
#include "store/files.h"

using base::ErrorNumber;
using store::Database;
using store::FileKind;
using store::Recordset;

namespace {

const auto kByName = u"SELECT*FROM FICHEPATIENT ORDER BY NOM, PRENOM"_qs;

/// A file opened by another program, without the store.
class Outside {
public:
    explicit Outside(const QString& path) { sqlite3_open(path.toUtf8().constData(), &database_); }
    ~Outside() { sqlite3_close(database_); }
    Outside(const Outside&) = delete;
    Outside& operator=(const Outside&) = delete;

    void run(const char* sql) {
        ASSERT_EQ(sqlite3_exec(database_, sql, nullptr, nullptr, nullptr), SQLITE_OK) << sqlite3_errmsg(database_);
    }
    QString text(const char* sql) {
        QString told;
        const auto keep = [](void* to, int, char** values, char**) {
            *static_cast<QString*>(to) = QString::fromUtf8(values[0]);
            return 0;
        };
        sqlite3_exec(database_, sql, keep, &told, nullptr);
        return told;
    }
    sqlite3* database() const { return database_; }

private:
    sqlite3* database_ = nullptr;
};

void write(const QString& path, const QByteArray& bytes) {
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(bytes);
}

QByteArray read(const QString& path) {
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    return file.readAll();
}

/// Expects the file to be refused, and left as it is.
void expectRefused(const QString& path, ErrorNumber number, const QString& text) {
    const QByteArray before = read(path);
    try {
        Database::open(path);
        ADD_FAILURE() << "opened";
    } catch (const base::RuntimeError& error) {
        EXPECT_EQ(error.number(), number);
        EXPECT_EQ(error.text(), text);
    }
    EXPECT_EQ(read(path), before);
}

QString unknownFormat(const QString& path) {
    return u"Ce fichier n'est pas une base de données reconnue, ou il est endommagé (%1)."_qs.arg(path);
}

// A sort order that turns everything round, under the right name.
int backwards(void*, int sizeA, const void* a, int sizeB, const void* b) {
    return -store::compareTexts({static_cast<const char*>(a), static_cast<std::size_t>(sizeA)},
                                {static_cast<const char*>(b), static_cast<std::size_t>(sizeB)});
}

}  // namespace

TEST(Opening, NamesAFileThatIsNotThereAndMakesNone) {
    const Files files;
    for (const QString& path :
         {files.path(u"NOM.MDB"_qs), files.path(u"none/NOM.MDB"_qs), files.path(u"."_qs), QString()}) {
        try {
            Database::open(path);
            FAIL();
        } catch (const base::RuntimeError& error) {
            EXPECT_EQ(error.number(), ErrorNumber::DatabaseNotFound);
            EXPECT_EQ(error.text(), u"Base de données introuvable (%1)."_qs.arg(path));
        }
    }
    EXPECT_FALSE(QFile::exists(files.path(u"NOM.MDB"_qs)));
}

TEST(Opening, RefusesAnEmptyFileATextAndAFileOfAnotherProgram) {
    const Files files;
    const QString path = files.path(u"NOM.MDB"_qs);
    write(path, "");
    expectRefused(path, ErrorNumber::UnknownFormat, unknownFormat(path));
    write(path, QByteArray(5000, 'x'));
    expectRefused(path, ErrorNumber::UnknownFormat, unknownFormat(path));
    write(path, "x");
    expectRefused(path, ErrorNumber::UnknownFormat, unknownFormat(path));
    QFile::remove(path);
    Outside(path).run("PRAGMA journal_mode=WAL; CREATE TABLE FICHEPATIENT(NOM)");
    expectRefused(path, ErrorNumber::UnknownFormat, unknownFormat(path));
}

TEST(Opening, RefusesAFileCutShortOrDamaged) {
    const Files files;
    const QString path = files.made(FileKind::Echo);
    const QByteArray whole = read(path);
    ASSERT_GT(whole.size(), 8192);
    for (const qsizetype size :
         {whole.size() - 1, whole.size() - 4096, qsizetype{4096}, qsizetype{5000}, qsizetype{100}}) {
        write(path, whole.first(size));
        expectRefused(path, ErrorNumber::UnknownFormat, unknownFormat(path));
    }
    write(path, QByteArray(whole).replace(0, 16, QByteArray(16, 'x')));
    expectRefused(path, ErrorNumber::UnknownFormat, unknownFormat(path));
    write(path, QByteArray(whole).replace(100, 1000, QByteArray(1000, '\xFF')));
    expectRefused(path, ErrorNumber::UnknownFormat, unknownFormat(path));
}

TEST(Opening, RefusesAFileOfANewerVersion) {
    const Files files;
    const QString path = files.made(FileKind::Nom);
    Outside(path).run("PRAGMA user_version=2");
    expectRefused(path, ErrorNumber::UnknownFormat,
                  u"Ce fichier vient d'une version plus récente du programme (%1)."_qs.arg(path));
}

TEST(Opening, FailsInTheSameWayEachTime) {
    const Files files;
    const QString path = files.path(u"NOM.MDB"_qs);
    write(path, "x");
    expectRefused(path, ErrorNumber::UnknownFormat, unknownFormat(path));
    expectRefused(path, ErrorNumber::UnknownFormat, unknownFormat(path));
    QFile::remove(path);
    EXPECT_TRUE(files.open(FileKind::Nom).isOpen());
}

TEST(Opening, TellsADamagedPageWhenItIsRead) {
    const Files files;
    const QString path = files.made(FileKind::Nom);
    {
        Outside outside(path);
        store::addCollation(outside.database());
        outside.run(
            "WITH n(i) AS (SELECT 1 UNION ALL SELECT i+1 FROM n WHERE i<300) "
            "INSERT INTO FICHEPATIENT(Numint,Nom,VILLE) SELECT i,'PATIENTE '||i,hex(zeroblob(100)) FROM n");
    }
    const QByteArray whole = read(path);
    write(path,
          QByteArray(whole).replace(8 * 4096, whole.size() - 8 * 4096, QByteArray(whole.size() - 8 * 4096, '\x55')));
    expectError(ErrorNumber::UnknownFormat, [&] {
        for (Recordset rows = Database::open(path).openRecordset(kByName); !rows.eof(); rows.moveNext()) {
        }
    });
}

TEST(Opening, TellsAMissingTable) {
    const Files files;
    const QString path = files.made(FileKind::Echotek);
    Outside(path).run("DROP TABLE CLEFS");
    const Database album = Database::open(path);
    EXPECT_TRUE(album.openRecordset(u"SELECT*FROM ECHOS "_qs).eof());
    expectError(ErrorNumber::UnknownFormat, [&] { album.openRecordset(u"SELECT * FROM CLEFS "_qs).eof(); });
}

TEST(Definitions, AreAllThereInANewFile) {
    const Files files;
    for (const FileKind kind : store::kAllFiles) {
        EXPECT_EQ(store::changedDefinitions(files.made(kind)), QStringList());
    }
}

TEST(Definitions, AreToldWhenTheyAreMissingOrChanged) {
    const Files files;
    const QString path = files.made(FileKind::Echo);
    Outside(path).run("DROP TABLE CIVILITES; ALTER TABLE GYNECO ADD COLUMN AUTRE TEXT");
    EXPECT_EQ(store::changedDefinitions(path),
              QStringList({u"CREATE TABLE \"GYNECO\""_qs, u"CREATE TABLE \"CIVILITES\""_qs,
                           u"CREATE INDEX \"CIVILITES_Nom_Prenom\" ON \"CIVILITES\""_qs}));
}

TEST(Opening, SortsAFileOfAnotherOrderAnew) {
    const Files files;
    const QString path = files.made(FileKind::Nom);
    {
        Outside outside(path);
        sqlite3_create_collation_v2(outside.database(), "FR", SQLITE_UTF8, nullptr, backwards, nullptr);
        outside.run("UPDATE VERANOX_META SET COLLATION=0; REINDEX FR");
        outside.run("INSERT INTO FICHEPATIENT(Numint,Nom) VALUES(1,'MARTIN'),(2,'ABEL'),(3,'ÉLISE'),(4,'DUPONT')");
    }
    EXPECT_EQ(column(Database::open(path), kByName, u"NUMINT"_qs), QStringList({u"2"_qs, u"4"_qs, u"3"_qs, u"1"_qs}));
    Outside outside(path);
    store::addCollation(outside.database());
    EXPECT_EQ(outside.text("PRAGMA integrity_check"), u"ok"_qs);
    EXPECT_EQ(outside.text("SELECT COLLATION FROM VERANOX_META"), QString::number(store::kCollationVersion));
}

TEST(Opening, TurnsAFileLeftWithASharedLogBackToAJournal) {
    const Files files;
    const QString path = files.made(FileKind::Nom);
    {
        Outside outside(path);
        store::addCollation(outside.database());
        outside.run("PRAGMA journal_mode=WAL; INSERT INTO FICHEPATIENT(Numint,Nom) VALUES(1,'MARTIN')");
    }
    EXPECT_EQ(column(Database::open(path), kByName, u"NOM"_qs), QStringList{u"MARTIN"_qs});
    EXPECT_EQ(Outside(path).text("PRAGMA journal_mode"), u"delete"_qs);
}

TEST(Opening, GivesOneConnectionHoweverTheFileIsNamed) {
    const Files files;
    const QString path = files.made(FileKind::Nom);
    ASSERT_TRUE(QFile::link(path, files.path(u"lien.mdb"_qs)));
    const Database direct = Database::open(path);
    const Database byLink = Database::open(files.path(u"lien.mdb"_qs));
    Database roundabout = Database::open(QFileInfo(path).path() + u"/./NOM.MDB"_qs);
    roundabout.close();
    EXPECT_FALSE(direct.isOpen());
    EXPECT_FALSE(byLink.isOpen());
}

TEST(Opening, OutlivesAHandleThatIsReplaced) {
    const Files files;
    Database echo = files.open(FileKind::Nom);
    addPatient(echo, 1, u"MARTIN"_qs);
    Recordset rows = echo.openRecordset(kByName);
    echo = files.open(FileKind::Atcd);
    EXPECT_EQ(echo.kind(), FileKind::Atcd);
    EXPECT_EQ(rows.text(u"NOM"_qs), u"MARTIN"_qs);
    echo = files.open(FileKind::Nom);
    EXPECT_EQ(echo.openRecordset(kByName).recordCount(), 1);
}

TEST(Opening, FollowsAFileThatWasReplacedOnTheDisk) {
    const Files files;
    const Database old = files.open(FileKind::Nom);
    addPatient(old, 1, u"MARTIN"_qs);
    store::createFile(FileKind::Nom, files.path(u"neuf.mdb"_qs));
    addPatient(Database::open(files.path(u"neuf.mdb"_qs)), 2, u"DUPONT"_qs);
    QFile::remove(files.path(FileKind::Nom));
    ASSERT_TRUE(QFile::rename(files.path(u"neuf.mdb"_qs), files.path(FileKind::Nom)));
    EXPECT_EQ(column(files.open(FileKind::Nom), kByName, u"NOM"_qs), QStringList{u"DUPONT"_qs});
    EXPECT_EQ(column(old, kByName, u"NOM"_qs), QStringList{u"MARTIN"_qs});
}

TEST(Opening, LeavesTheFileFreeForOthersBetweenSteps) {
    const Files files;
    const Database nom = files.open(FileKind::Nom);
    addPatient(nom, 1, u"MARTIN"_qs);
    addPatient(nom, 2, u"DUPONT"_qs);
    Recordset rows = nom.openRecordset(kByName);
    Recordset found = nom.openRecordset(u"SELECT*FROM FICHEPATIENT WHERE NOM LIKE '*' ORDER BY NOM"_qs);
    EXPECT_EQ(rows.text(u"NOM"_qs), u"DUPONT"_qs);
    found.findFirst(u"NOM LIKE 'M*'"_qs);
    rows.edit();
    Outside outside(files.path(FileKind::Nom));
    store::addCollation(outside.database());
    outside.run("BEGIN EXCLUSIVE; COMMIT");
}
