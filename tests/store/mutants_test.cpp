// Query texts broken at random: whatever comes out is refused, or is a single statement that only reads.

#include <sqlite3.h>

#include <random>

#include "store/collation.h"
#include "store/files.h"
#include "store/like.h"
#include "store/query.h"
#include "store/shape.h"

using base::RuntimeError;
using store::Database;
using store::Direction;
using store::FileKind;
using store::Query;
using store::Recordset;
using store::Shape;

namespace {

const QStringList kTexts{
    u"SELECT*FROM FICHEPATIENT ORDER BY NOM, PRENOM"_qs,
    u"SELECT*FROM FICHEPATIENT WHERE NOM='DUPONT' ORDER BY NOM, PRENOM"_qs,
    u"SELECT*FROM FICHEPATIENT WHERE NUMINT=5"_qs,
    u"SELECT*FROM FICHEPATIENT WHERE NOM LIKE '*DUP*' ORDER BY NOM DESC"_qs,
    u"SELECT*FROM FICHEPATIENT WHERE NUMINT=5AND VILLE='1'"_qs,
    u"SELECT*FROM FICHEPATIENT WHERE NUMINT = 26OR NUMINT = 27 OR NUMINT = 28 ORDER BY VILLE, NUMINT"_qs,
    u"SELECT * FROM FICHEPATIENT WHERE NOT (NOM='A' AND PRENOM IS NOT NULL) OR [VILLE]>=\"B\""_qs,
};

// What an attack or a slip would join in.
const QStringList kPieces{u"'"_qs,          u"''"_qs,      u"\""_qs,   u"("_qs,        u")"_qs,
                          u";"_qs,          u"--"_qs,      u"/*"_qs,   u"*"_qs,        u"="_qs,
                          u"<>"_qs,         u","_qs,       u" OR "_qs, u" AND "_qs,    u" NOT "_qs,
                          u" LIKE "_qs,     u"IS NULL"_qs, u"NOM"_qs,  u"[NUMINT]"_qs, u"7"_qs,
                          u"-1.5"_qs,       u"x'00'"_qs,   u"?1"_qs,   u" UNION "_qs,  u"; DROP TABLE FICHEPATIENT"_qs,
                          u" ORDER BY "_qs, u"WHERE"_qs,   u"\0"_qs,   u"é漢"_qs,      u" DESC"_qs};

class Mutator {
public:
    explicit Mutator(unsigned seed) : random_(seed) {}

    QString mutant() {
        QString text = pick(kTexts);
        for (int changes = 1 + below(4); changes > 0; --changes) {
            change(text);
        }
        return text;
    }

private:
    int below(qsizetype limit) { return static_cast<int>(random_() % static_cast<unsigned>(limit)); }
    const QString& pick(const QStringList& list) { return list[below(list.size())]; }

    void change(QString& text) {
        const int at = below(text.size() + 1);
        switch (below(4)) {
            case 0:
                text.insert(at, pick(kPieces));
                break;
            case 1:
                text.remove(at, 1 + below(6));
                break;
            case 2:
                text = text.first(at) + pick(kTexts).sliced(at % 30);
                break;
            default:
                text.insert(at, QChar(static_cast<char16_t>(1 + below(0x17F))));
        }
    }

    std::mt19937 random_;
};

/// A database in memory with the patients' table, on which nothing but reading is allowed once it is made.
class ReadOnlyPatients {
public:
    ReadOnlyPatients() {
        sqlite3_open(":memory:", &database_);
        store::addCollation(database_);
        store::addLike(database_);
        for (const QByteArray& statement : store::creationOf(FileKind::Nom)) {
            store::run(database_, statement.constData());
        }
        sqlite3_set_authorizer(database_, &ReadOnlyPatients::authorize, this);
    }
    ~ReadOnlyPatients() { sqlite3_close(database_); }
    ReadOnlyPatients(const ReadOnlyPatients&) = delete;
    ReadOnlyPatients& operator=(const ReadOnlyPatients&) = delete;

    sqlite3* database() const { return database_; }
    int refusals() const { return refusals_; }

private:
    static int authorize(void* self, int action, const char* first, const char*, const char*, const char*) {
        const bool reads = action == SQLITE_SELECT || action == SQLITE_FUNCTION ||
                           (action == SQLITE_READ && qstrcmp(first, "FICHEPATIENT") == 0);
        if (!reads) {
            ++static_cast<ReadOnlyPatients*>(self)->refusals_;
        }
        return reads ? SQLITE_OK : SQLITE_DENY;
    }

    sqlite3* database_ = nullptr;
    int refusals_ = 0;
};

}  // namespace

TEST(Mutants, OfQueriesAreRefusedOrOnlyRead) {
    const ReadOnlyPatients patients;
    Mutator mutator(1);
    int read = 0;
    for (int i = 0; i < 100000; ++i) {
        const QString text = mutator.mutant();
        try {
            const Query query = store::readQuery(text);
            if (query.table->name != u"FICHEPATIENT"_qs) {
                continue;
            }
            Shape shape(patients.database(), query);
            for (const store::Statement* statement :
                 {&shape.seek(Direction::Backward, {}),
                  shape.isLazy() ? &shape.step(Direction::Forward) : &shape.numbers(), &shape.count()}) {
                ASSERT_NE(sqlite3_stmt_readonly(statement->handle()), 0) << text.toStdString();
                ASSERT_LE(sqlite3_bind_parameter_count(statement->handle()), 16) << text.toStdString();
            }
            ++read;
        } catch (const RuntimeError& error) {
            ASSERT_TRUE(error.number() == base::ErrorNumber::QuerySyntax ||
                        error.number() == base::ErrorNumber::UnknownTable ||
                        error.number() == base::ErrorNumber::UnknownParameter ||
                        error.number() == base::ErrorNumber::TypeMismatch)
                << text.toStdString() << ": " << error.what();
        }
    }
    EXPECT_EQ(patients.refusals(), 0);
    EXPECT_GT(read, 5000);
}

TEST(Mutants, LeaveTheRecordsAsTheyAre) {
    const Files files;
    const Database nom = files.open(FileKind::Nom);
    for (int i = 1; i <= 30; ++i) {
        addPatient(nom, i, i % 2 == 0 ? u"DUPONT"_qs : u"MARTIN"_qs);
    }
    Mutator mutator(2);
    int walked = 0;
    for (int i = 0; i < 20000; ++i) {
        try {
            for (Recordset rows = nom.openRecordset(mutator.mutant()); !rows.eof(); rows.moveNext()) {
                ++walked;
            }
        } catch (const RuntimeError&) {
            continue;
        }
    }
    EXPECT_GT(walked, 5000);
    EXPECT_EQ(nom.openRecordset(u"SELECT*FROM FICHEPATIENT"_qs).recordCount(), 30);
    EXPECT_EQ(nom.openRecordset(u"SELECT*FROM FICHEPATIENT WHERE NOM='DUPONT'"_qs).recordCount(), 15);
}
