// What must not cost a record: a station that dies, several that write, a full disk, a file that may not be written.

#include <sqlite3.h>

#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QThread>
#include <iostream>
#include <random>

#include "store/collation.h"
#include "store/files.h"
#include "store/other_station.h"

using base::ErrorNumber;
using store::Database;
using store::FileKind;
using store::Recordset;

namespace {

const auto kExams = u"SELECT*FROM 1TER"_qs;

/// The file of exams with one exam whose text fields all hold the same text.
class OneExam : public testing::Test {
protected:
    OneExam() { add(Database::open(path), u"1TER"_qs, exam(u"0 "_qs)); }

    static Record exam(const QString& text) {
        Record record{{u"Numero"_qs, 1}, {u"NUMECHO"_qs, 1}};
        for (const store::Field& field : store::fieldsOf(u"1TER"_qs)) {
            if (field.kind == store::FieldKind::Text) {
                record[field.name] = text;
            }
        }
        return record;
    }

    /// The number that all text fields of the first exam hold; -1 if they don't hold one and the same.
    int wholeNumber() const {
        const Recordset rows = Database::open(path).openRecordset(kExams);
        const QString text = rows.text(u"BMI"_qs);
        for (const auto& [name, value] : exam(QString())) {
            if (value.isText() && rows.text(name) != text) {
                return -1;
            }
        }
        return text.section(u' ', 0, 0).toInt();
    }

    std::string integrity() const {
        sqlite3* database = nullptr;
        sqlite3_open(path.toUtf8().constData(), &database);
        store::addCollation(database);
        std::string told;
        sqlite3_exec(
            database, "PRAGMA integrity_check",
            [](void* to, int, char** values, char**) {
                *static_cast<std::string*>(to) += values[0];
                return 0;
            },
            &told, nullptr);
        sqlite3_close(database);
        return told;
    }

    Files files;
    QString path = files.made(FileKind::Echo);
};

/// A station that holds the file for writing: a connection of its own with a transaction open.
class WriteLock {
public:
    explicit WriteLock(const QString& path) {
        sqlite3_open(path.toUtf8().constData(), &database_);
        const int code = sqlite3_exec(database_, "BEGIN EXCLUSIVE", nullptr, nullptr, nullptr);
        EXPECT_EQ(code, SQLITE_OK);
    }
    ~WriteLock() { release(); }
    WriteLock(const WriteLock&) = delete;
    WriteLock& operator=(const WriteLock&) = delete;

    void release() {
        sqlite3_close(database_);
        database_ = nullptr;
    }

private:
    sqlite3* database_ = nullptr;
};

}  // namespace

TEST_F(OneExam, IsWholeAfterAHundredKillsOfItsWriter) {
    std::mt19937 random(1);
    int acknowledged = 0;
    int written = 0;
    int between = 0;
    for (int i = 0; i < 100; ++i) {
        const int length = i % 2 == 0 ? 20 : 3000;
        OtherStation station(u"rewrite"_qs, path, {QString::number(length)});
        const int first = station.line().toInt();
        ASSERT_GT(first, acknowledged);
        QThread::usleep(random() % 15000);
        const QStringList rest = station.kill();
        acknowledged = rest.isEmpty() ? first : rest.last().toInt();
        written += static_cast<int>(rest.size()) + 1;
        const int now = wholeNumber();
        ASSERT_TRUE(now == acknowledged || now == acknowledged + 1) << now << " after " << acknowledged;
        between += now - acknowledged;
        acknowledged = now;
    }
    EXPECT_EQ(integrity(), "ok");
    EXPECT_GE(written, 100);
    std::cout << "kill -9: 100 times, " << written << " records acknowledged, 0 lost, 0 torn; " << between
              << " written but not yet acknowledged\n";
}

// For longer than a station waits: none of them may be left without its turn.
TEST_F(OneExam, IsJoinedByAllThatTwoStationsWriteAtOnce) {
    constexpr int kCount = 300;
    OtherStation second(u"add"_qs, path, {u"2"_qs, QString::number(kCount)});
    OtherStation third(u"add"_qs, path, {u"3"_qs, QString::number(kCount)});
    EXPECT_EQ(second.line(), u"ready"_qs);
    EXPECT_EQ(third.line(), u"ready"_qs);
    const Database echo = Database::open(path);
    for (int i = 2; i <= kCount; ++i) {
        Record record = exam(u"ici"_qs);
        record[u"NUMECHO"_qs] = i;
        add(echo, u"1TER"_qs, record);
    }
    EXPECT_EQ(second.finish(), QStringList{u"done"_qs});
    EXPECT_EQ(third.finish(), QStringList{u"done"_qs});
    QStringList numbers;
    for (int i = 1; i <= kCount; ++i) {
        numbers << QString::number(i);
    }
    qsizetype kept = 0;
    for (const auto& dossier : {u"1"_qs, u"2"_qs, u"3"_qs}) {
        const auto query = u"SELECT*FROM 1TER WHERE NUMERO=%1 ORDER BY NUMECHO"_qs.arg(dossier);
        const QStringList stored = column(echo, query, u"NUMECHO"_qs);
        EXPECT_EQ(stored, numbers);
        kept += stored.size();
    }
    EXPECT_EQ(integrity(), "ok");
    std::cout << "writers at once: 3 stations, " << 3 * kCount << " records, " << 3 * kCount - kept << " lost\n";
}

TEST_F(OneExam, WaitsFiveSecondsForAnotherStationThenSaysSo) {
    Recordset rows = Database::open(path).openRecordset(kExams);
    rows.edit();
    rows.set(u"BMI"_qs, u"22"_qs);
    WriteLock lock(path);
    QElapsedTimer timer;
    timer.start();
    try {
        rows.update();
        FAIL();
    } catch (const base::RuntimeError& error) {
        EXPECT_EQ(error.number(), ErrorNumber::RecordLocked);
        EXPECT_EQ(error.text(), u"La base de données est occupée par un autre poste."_qs);
    }
    const qint64 waited = timer.elapsed();
    EXPECT_GE(waited, 4500);
    EXPECT_LT(waited, 15000);
    lock.release();
    rows.update();
    EXPECT_EQ(rows.text(u"BMI"_qs), u"22"_qs);
    EXPECT_EQ(column(Database::open(path), kExams, u"BMI"_qs), QStringList{u"22"_qs});
    std::cout << "file held by another station: refused after " << waited << " ms, saved once it is free\n";
}

TEST_F(OneExam, ShowsWhatAnotherStationWroteAtTheNextMove) {
    Recordset rows = Database::open(path).openRecordset(kExams + u" WHERE NUMERO=2 ORDER BY NUMECHO"_qs);
    EXPECT_TRUE(rows.eof());
    EXPECT_EQ(OtherStation(u"add"_qs, path, {u"2"_qs, u"3"_qs}).finish().last(), u"done"_qs);
    rows.moveLast();
    EXPECT_EQ(rows.text(u"NUMECHO"_qs), u"3"_qs);
}

TEST_F(OneExam, IsReportedAsDeletedWhenAnotherStationDidIt) {
    EXPECT_EQ(OtherStation(u"add"_qs, path, {u"2"_qs, u"2"_qs}).finish().last(), u"done"_qs);
    Recordset rows = Database::open(path).openRecordset(kExams + u" WHERE NUMERO=2 ORDER BY NUMECHO"_qs);
    EXPECT_EQ(rows.text(u"NUMECHO"_qs), u"1"_qs);
    rows.edit();
    rows.set(u"BMI"_qs, u"22"_qs);
    EXPECT_EQ(OtherStation(u"remove"_qs, path, {u"2"_qs}).finish(), QStringList{u"done"_qs});
    expectError(ErrorNumber::RecordDeleted, [&] { rows.update(); });
    expectError(ErrorNumber::RecordDeleted, [&] { rows.edit(); });
    rows.moveNext();
    EXPECT_TRUE(rows.eof());
}

TEST_F(OneExam, KeepsItsOldTextOnAFullDisk) {
    const qint64 kilobytes = QFileInfo(path).size() / 1024;
    int refused = 0;
    // The limit stops the file, then the journal too.
    for (const qint64 limit : {kilobytes + 8, kilobytes, qint64{4}, qint64{0}}) {
        SCOPED_TRACE(limit);
        OtherStation station(u"full"_qs, path, {QString::number(limit)});
        const QStringList lines = station.finish();
        ASSERT_EQ(lines.size(), 1);
        EXPECT_EQ(lines.first(), errorLine(ErrorNumber::DiskFull) + u"Le disque est plein."_qs);
        EXPECT_EQ(wholeNumber(), 0);
        ++refused;
    }
    EXPECT_EQ(integrity(), "ok");
    OtherStation station(u"full"_qs, path, {u"100000"_qs});
    EXPECT_EQ(station.finish(), QStringList{u"done"_qs});
    std::cout << "full disk: " << refused << " saves refused, the old record whole " << refused << " times\n";
}

TEST_F(OneExam, LeavesNoHalfFileOnAFullDisk) {
    const QString fresh = files.path(u"NEUF.MDB"_qs);
    int refused = 0;
    for (const auto& limit : {u"0"_qs, u"1"_qs, u"12"_qs}) {
        const QStringList lines = OtherStation(u"create-full"_qs, fresh, {limit}).finish();
        ASSERT_EQ(lines.size(), 1);
        EXPECT_TRUE(lines.first().startsWith(errorLine(ErrorNumber::DiskFull))) << lines.first().toStdString();
        EXPECT_FALSE(QFile::exists(fresh));
        EXPECT_FALSE(QFile::exists(fresh + u"-journal"_qs));
        ++refused;
    }
    EXPECT_EQ(OtherStation(u"create-full"_qs, fresh, {u"1000"_qs}).finish(), QStringList{u"done"_qs});
    std::cout << "full disk: " << refused << " new files refused, 0 half files left\n";
}

namespace {

constexpr auto kReadByAll = QFile::ReadOwner | QFile::ReadGroup | QFile::ReadOther;
constexpr auto kWrittenByAll = QFile::WriteOwner | QFile::WriteGroup | QFile::WriteOther;
constexpr auto kEnteredByAll = QFile::ExeOwner | QFile::ExeGroup | QFile::ExeOther;

}  // namespace

TEST_F(OneExam, CanBeReadButNotWrittenInAReadOnlyFile) {
    const QString folder = QFileInfo(path).path();
    QFile::setPermissions(folder, kReadByAll | kWrittenByAll | kEnteredByAll);
    QFile::setPermissions(path, kReadByAll);
    const QStringList lines = OtherStation(u"nobody"_qs, path).finish();
    EXPECT_EQ(lines, QStringList(
                         {u"0"_qs, errorLine(ErrorNumber::ReadOnly) + u"La base de données est en lecture seule."_qs}));
    EXPECT_EQ(wholeNumber(), 0);
}

TEST_F(OneExam, CanBeReadButNotWrittenInAReadOnlyFolder) {
    const QString folder = QFileInfo(path).path();
    QFile::setPermissions(path, kReadByAll | kWrittenByAll);
    QFile::remove(path + u"-journal"_qs);
    QFile::setPermissions(folder, kReadByAll | kEnteredByAll);
    const QStringList lines = OtherStation(u"nobody"_qs, path).finish();
    QFile::setPermissions(folder, kReadByAll | kWrittenByAll | kEnteredByAll);
    EXPECT_EQ(lines, QStringList(
                         {u"0"_qs, errorLine(ErrorNumber::ReadOnly) + u"La base de données est en lecture seule."_qs}));
    EXPECT_EQ(wholeNumber(), 0);
}

TEST_F(OneExam, IsOutOfReachInAFileOfSomebodyElse) {
    const QString folder = QFileInfo(path).path();
    QFile::setPermissions(folder, kReadByAll | kWrittenByAll | kEnteredByAll);
    QFile::setPermissions(path, QFile::Permissions());
    const QStringList lines = OtherStation(u"nobody"_qs, path).finish();
    EXPECT_EQ(lines, QStringList{errorLine(ErrorNumber::PermissionDenied) + u"Accès refusé (%1)."_qs.arg(path)});
}

TEST_F(OneExam, HasNoNewNeighbourInAReadOnlyFolder) {
    const QString folder = QFileInfo(path).path();
    const QString fresh = folder + u"/NEUF.MDB"_qs;
    QFile::setPermissions(folder, kReadByAll | kEnteredByAll);
    const QStringList lines = OtherStation(u"create-nobody"_qs, fresh).finish();
    QFile::setPermissions(folder, kReadByAll | kWrittenByAll | kEnteredByAll);
    EXPECT_EQ(lines, QStringList{errorLine(ErrorNumber::PermissionDenied) + u"Accès refusé (%1)."_qs.arg(fresh)});
    EXPECT_FALSE(QFile::exists(fresh));
}
