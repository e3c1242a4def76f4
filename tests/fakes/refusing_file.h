#pragma once

#include <sqlite3.h>

#include <QFile>
#include <QString>

namespace fakes {

/// While it lives, a database file refuses an action on a table ("INSERT", "UPDATE", "DELETE"): a disk that fails in
/// the middle of things. `when` narrows it down ("old.NUMECHO=2").
class RefusingFile {
public:
    RefusingFile(QString path, const QString& action, const QString& table, const QString& when = {})
        : path_(std::move(path)) {
        run(QStringLiteral("CREATE TRIGGER refusing BEFORE %1 ON \"%2\" %3 BEGIN SELECT RAISE(ABORT,'refused'); END")
                .arg(action, table, when.isEmpty() ? when : "WHEN " + when));
    }
    ~RefusingFile() { run(QStringLiteral("DROP TRIGGER refusing")); }
    RefusingFile(const RefusingFile&) = delete;
    RefusingFile& operator=(const RefusingFile&) = delete;

private:
    void run(const QString& sql) const {
        sqlite3* database = nullptr;
        sqlite3_open(QFile::encodeName(path_).constData(), &database);
        sqlite3_create_collation(database, "FR", SQLITE_UTF8, nullptr,
                                 [](void*, int, const void*, int, const void*) { return 0; });
        sqlite3_exec(database, sql.toUtf8().constData(), nullptr, nullptr, nullptr);
        sqlite3_close(database);
    }

    QString path_;
};

}  // namespace fakes
