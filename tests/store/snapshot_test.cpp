// A backup must hold a file as it was at one moment, and must cost nothing when it fails.

#include "store/snapshot.h"

#include <sqlite3.h>
#include <sys/resource.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QThread>
#include <csignal>

#include "store/check.h"
#include "store/files.h"
#include "store/other_station.h"

using base::ErrorNumber;
using store::Database;
using store::FileKind;
using store::Recordset;
using store::Snapshot;
using store::SnapshotStep;

namespace {

const auto kExams = u"SELECT*FROM 1TER"_qs;

class SnapshotTest : public testing::Test {
protected:
    SnapshotTest() { addExam(u"0 "_qs); }

    void addExam(const QString& text) const {
        Record record{{u"Numero"_qs, 1}, {u"NUMECHO"_qs, 1}};
        for (const store::Field& field : store::fieldsOf(u"1TER"_qs)) {
            if (field.kind == store::FieldKind::Text) {
                record[field.name] = text;
            }
        }
        add(Database::open(path), u"1TER"_qs, record);
    }
    /// Exams that fill some megabytes.
    void addManyExams() const {
        QString text(20000, u'x');
        for (int i = 0; i < 8; ++i) {
            addExam(text);
        }
    }
    void copy() const { Snapshot(path, FileKind::Echo, target).publish(); }
    static int examsIn(const QString& file) { return Database::open(file).openRecordset(kExams).recordCount(); }
    /// What lies beside the file; the empty journal of its last save is left out.
    QStringList names() const {
        QStringList all = QDir(QFileInfo(path).path()).entryList(QDir::Files | QDir::Hidden, QDir::Name);
        all.removeOne(u"ECHO.MDB-journal"_qs);
        return all;
    }
    static QByteArray content(const QString& file) {
        QFile opened(file);
        return opened.open(QIODevice::ReadOnly) ? opened.readAll() : QByteArray();
    }
    void write(const QString& file, const QByteArray& bytes) const {
        QFile opened(file);
        ASSERT_TRUE(opened.open(QIODevice::WriteOnly));
        ASSERT_EQ(opened.write(bytes), bytes.size());
    }

    Files files;
    QString path = files.made(FileKind::Echo);
    QString target = files.path(u"SauveECHO.MDB"_qs);
};

TEST_F(SnapshotTest, TakesItsNameWhenItIsPublishedOnly) {
    {
        Snapshot snapshot(path, FileKind::Echo, target);
        EXPECT_FALSE(QFile::exists(target));
        EXPECT_EQ(names().size(), 2);
        snapshot.publish();
    }
    EXPECT_EQ(names(), QStringList({u"ECHO.MDB"_qs, u"SauveECHO.MDB"_qs}));
    EXPECT_EQ(examsIn(target), 1);
    EXPECT_EQ(store::damagedPlaces(target), 0);
}

TEST_F(SnapshotTest, IsGoneWhenItIsNotPublished) {
    { const Snapshot snapshot(path, FileKind::Echo, target); }
    EXPECT_EQ(names(), QStringList({u"ECHO.MDB"_qs}));
}

TEST_F(SnapshotTest, ReplacesAnEarlierOneWithoutAQuestion) {
    copy();
    addExam(u"1 "_qs);
    copy();
    EXPECT_EQ(examsIn(target), 2);
    write(target, "autre chose");
    copy();
    EXPECT_EQ(examsIn(target), 2);
}

TEST_F(SnapshotTest, IsReadableByItsOwnerOnly) {
    copy();
    EXPECT_FALSE(QFile::permissions(target) &
                 (QFile::ReadGroup | QFile::WriteGroup | QFile::ReadOther | QFile::WriteOther));
}

TEST_F(SnapshotTest, DropsTheJournalsOfAnEarlierFileOfItsName) {
    write(target + u"-journal"_qs, "reste");
    write(target + u"-wal"_qs, "reste");
    copy();
    EXPECT_EQ(names(), QStringList({u"ECHO.MDB"_qs, u"SauveECHO.MDB"_qs}));
}

TEST_F(SnapshotTest, TakesWhatADeadStationLeftWithoutItsUnfinishedSave) {
    // A station dies between the pages of a save: the journal tells how the file was.
    addManyExams();
    const QByteArray whole = content(path);
    sqlite3* station = nullptr;
    sqlite3_open(path.toUtf8().constData(), &station);
    sqlite3_exec(station,
                 "PRAGMA synchronous=OFF; PRAGMA cache_size=1; BEGIN; UPDATE \"1TER\" SET MORPHO=MORPHO||'déchiré'",
                 nullptr, nullptr, nullptr);
    const QByteArray torn = content(path);
    const QByteArray journal = content(path + u"-journal"_qs);
    sqlite3_close(station);
    ASSERT_GT(journal.size(), 512);
    ASSERT_NE(torn, whole);
    write(path, torn);
    write(path + u"-journal"_qs, journal);
    copy();
    const Recordset exams = Database::open(target).openRecordset(kExams);
    EXPECT_EQ(exams.text(u"MORPHO"_qs), u"0 "_qs);
    EXPECT_EQ(store::damagedPlaces(target), 0);
}

TEST_F(SnapshotTest, IsOneMomentOfAFileThatAnotherStationKeepsWriting) {
    addManyExams();
    OtherStation station(u"rewrite-calmly"_qs, path, {u"3000"_qs});
    int before = station.line().toInt();
    ASSERT_GT(before, 0);
    for (int i = 0; i < 20; ++i) {
        QThread::msleep(5);
        copy();
        const Recordset exam = Database::open(target).openRecordset(kExams);
        const int number = exam.text(u"BMI"_qs).section(u' ', 0, 0).toInt();
        EXPECT_GE(number, before);
        before = number;
        for (const store::Field& field : store::fieldsOf(u"1TER"_qs)) {
            if (field.kind == store::FieldKind::Text) {
                EXPECT_EQ(exam.text(field.name), exam.text(u"BMI"_qs));
            }
        }
    }
    const QStringList written = station.kill();
    EXPECT_FALSE(written.isEmpty());
    EXPECT_GE(written.last().toInt(), before);
}

TEST_F(SnapshotTest, TellsHowFarItIs) {
    addManyExams();
    std::vector<int> copying;
    std::vector<int> checking;
    Snapshot(path, FileKind::Echo, target, [&](SnapshotStep step, int percent) {
        (step == SnapshotStep::Copying ? copying : checking).push_back(percent);
    });
    ASSERT_GT(QFileInfo(path).size(), 8 * 1024 * 1024);
    EXPECT_GE(copying.size(), 3U);
    EXPECT_GT(copying.front(), 0);
    EXPECT_LT(copying.front(), 100);
    EXPECT_TRUE(std::is_sorted(copying.begin(), copying.end()));
    EXPECT_EQ(copying.back(), 100);
    EXPECT_EQ(checking, std::vector<int>({0, 100}));
}

/// A backup that fails for whatever reason: the one before it is as it was, and nothing else lies about.
class FailedSnapshot : public SnapshotTest {
protected:
    FailedSnapshot() {
        copy();
        addExam(u"1 "_qs);
        before_ = content(target);
    }
    ~FailedSnapshot() override {
        EXPECT_EQ(content(target), before_);
        EXPECT_EQ(names().filter(QRegularExpression(u"SauveECHO"_qs)), QStringList{u"SauveECHO.MDB"_qs});
    }
    void expectFailure(ErrorNumber number, const QString& source, FileKind kind = FileKind::Echo) const {
        expectError(number, [&] { Snapshot(source, kind, target).publish(); });
    }

private:
    QByteArray before_;
};

TEST_F(FailedSnapshot, OfAMissingFile) {
    expectFailure(ErrorNumber::DatabaseNotFound, files.path(u"absent/ECHO.MDB"_qs));
    expectFailure(ErrorNumber::DatabaseNotFound, QString());
}

TEST_F(FailedSnapshot, OfAForeignOrAnEmptyFile) {
    const QString foreign = files.path(u"lisezmoi.txt"_qs);
    write(foreign, QByteArray(5000, 'x'));
    expectFailure(ErrorNumber::UnknownFormat, foreign);
    write(foreign, {});
    expectFailure(ErrorNumber::UnknownFormat, foreign);
}

TEST_F(FailedSnapshot, OfAFileOfAnotherKind) {
    expectFailure(ErrorNumber::UnknownFormat, files.made(FileKind::Nom));
}

TEST_F(FailedSnapshot, OfADamagedFile) {
    addManyExams();
    QByteArray bytes = content(path);
    bytes.replace(bytes.size() / 2, 4096, QByteArray(4096, '\xAA'));
    write(path, bytes);
    expectFailure(ErrorNumber::UnknownFormat, path);
}

TEST_F(FailedSnapshot, OfAFileThatAnotherStationHoldsTooLong) {
    sqlite3* station = nullptr;
    sqlite3_open(path.toUtf8().constData(), &station);
    ASSERT_EQ(sqlite3_exec(station, "BEGIN EXCLUSIVE", nullptr, nullptr, nullptr), SQLITE_OK);
    expectFailure(ErrorNumber::RecordLocked, path);
    sqlite3_close(station);
}

TEST_F(FailedSnapshot, OnAFullDisk) {
    addManyExams();
    std::signal(SIGXFSZ, SIG_IGN);
    rlimit old{};
    getrlimit(RLIMIT_FSIZE, &old);
    rlimit small = old;
    small.rlim_cur = 1024 * 1024;
    setrlimit(RLIMIT_FSIZE, &small);
    try {
        Snapshot(path, FileKind::Echo, target).publish();
        ADD_FAILURE() << "no error";
    } catch (const base::RuntimeError&) {
    }
    setrlimit(RLIMIT_FSIZE, &old);
}

TEST_F(SnapshotTest, FailsWhereItCannotStand) {
    expectError(ErrorNumber::PathNotFound, [&] { Snapshot(path, FileKind::Echo, u"/nulle/part/ECHO.MDB"_qs); });
    QDir().mkpath(target);
    expectError(ErrorNumber::PermissionDenied, [&] { Snapshot(path, FileKind::Echo, target); });
    EXPECT_EQ(names(), QStringList({u"ECHO.MDB"_qs}));
}

TEST_F(SnapshotTest, NeverReplacesTheFileThatItCopies) {
    const QString link = files.path(u"lien.MDB"_qs);
    QFile::link(path, link);
    for (const QString& same : {path, QFileInfo(path).path() + u"/./ECHO.MDB"_qs, link}) {
        expectError(ErrorNumber::PermissionDenied, [&] { Snapshot(path, FileKind::Echo, same); });
    }
    EXPECT_EQ(examsIn(path), 1);
}

TEST_F(SnapshotTest, LeavesAnOpenFileInTheHandsOfItsUsers) {
    // Another handle of this program on the same file keeps its locks and its cursor.
    Recordset open = Database::open(path).openRecordset(kExams);
    copy();
    open.edit();
    open.set(u"BMI"_qs, u"22"_qs);
    open.update();
    EXPECT_EQ(column(Database::open(path), kExams, u"BMI"_qs), QStringList({u"22"_qs}));
    EXPECT_EQ(column(Database::open(target), kExams, u"BMI"_qs), QStringList({u"0 "_qs}));
}

}  // namespace
