// The record store beside single prepared statements on the same files.

#include <fcntl.h>
#include <sqlite3.h>
#include <unistd.h>

#include <QFile>
#include <map>
#include <memory>
#include <random>

#include "large_practice.h"
#include "side_by_side.h"
#include "store/database.h"
#include "store/recordset.h"
#include "store/schema.h"
#include "yardstick.h"

using store::Database;
using store::Field;
using store::FieldKind;
using store::Recordset;

namespace {

constexpr int kFlushedBytes = 4096;

/// The patients, opened by the store and by a bare connection.
struct Patients {
    explicit Patients(int count)
        : database(Database::open(large_practice::patients(count))), bare(large_practice::patients(count)) {
        std::mt19937 random(9);
        for (int i = 0; i < 1000; ++i) {
            prefixes << large_practice::invented(random, 2).first(3).replace(u'\'', u'E');
        }
    }

    static Patients& of(int count) {
        static std::map<int, std::unique_ptr<Patients>> all;
        std::unique_ptr<Patients>& patients = all[count];
        if (!patients) {
            patients = std::make_unique<Patients>(count);
        }
        return *patients;
    }

    Database database;
    yardstick::Connection bare;
    QStringList prefixes;
};

struct Exams {
    static Exams& all() {
        static Exams exams;
        return exams;
    }

    Database database = Database::open(large_practice::exams());
    yardstick::Connection bare{large_practice::exams()};
};

Patients& patientsOf(const benchmark::State& state) {
    return Patients::of(static_cast<int>(state.range(0)));
}

// What the dossier window shows of a patient.
const QStringList kShown{
    u"Numint"_qs,    u"CIVILITEE"_qs,  u"Nom"_qs,     u"Prenom"_qs,        u"NOMJF"_qs,
    u"DATENAISS"_qs, u"SEXE"_qs,       u"RUE1"_qs,    u"RUE2"_qs,          u"VILLE"_qs,
    u"CODEPOST"_qs,  u"TELEPHONE"_qs,  u"FAX"_qs,     u"PROFESSION"_qs,    u"CATSOCPRO"_qs,
    u"MEDTT1"_qs,    u"MEDTT2"_qs,     u"MEDTT3"_qs,  u"MEDTT4"_qs,        u"QUALITE"_qs,
    u"ASSURE"_qs,    u"NUMSECSOC"_qs,  u"CAISSE"_qs,  u"PRISEENCHARGE"_qs, u"DATEFINPRISENCHARGE"_qs,
    u"Ranggem"_qs,   u"CARTESANTE"_qs, u"DIVERS1"_qs, u"DIVERS2"_qs,       u"DIVERS3"_qs,
    u"DIVERS4"_qs,   u"EMAIL"_qs};

void keystrokeOurs(benchmark::State& state) {
    Patients& patients = patientsOf(state);
    qsizetype at = 0;
    for (auto _ : state) {
        Recordset rows = patients.database.openRecordset(u"SELECT*FROM FICHEPATIENT ORDER BY NOM, PRENOM"_qs);
        rows.findFirst(u"NOM>='"_qs + patients.prefixes[at] + u"'"_qs);
        if (!rows.noMatch()) {
            for (const QString& field : kShown) {
                benchmark::DoNotOptimize(rows.text(field));
            }
        }
        at = (at + 1) % patients.prefixes.size();
    }
}

void keystrokeBare(benchmark::State& state) {
    Patients& patients = patientsOf(state);
    yardstick::Statement statement(patients.bare, "SELECT*FROM FICHEPATIENT WHERE NOM>=? ORDER BY NOM,PRENOM LIMIT 1");
    QByteArrayList prefixes;
    for (const QString& prefix : patients.prefixes) {
        prefixes << prefix.toUtf8();
    }
    qsizetype at = 0;
    for (auto _ : state) {
        statement.bind(1, prefixes[at]);
        statement.fetch();
        statement.reset();
        at = (at + 1) % prefixes.size();
    }
}

const auto kByName = u"SELECT*FROM FICHEPATIENT ORDER BY NOM"_qs;

void nextOurs(benchmark::State& state) {
    Recordset rows = patientsOf(state).database.openRecordset(kByName);
    for (auto _ : state) {
        rows.moveNext();
        if (rows.eof()) {
            rows.moveFirst();
        }
        benchmark::DoNotOptimize(rows.text(u"NOM"_qs));
    }
}

void previousOurs(benchmark::State& state) {
    Recordset rows = patientsOf(state).database.openRecordset(kByName);
    for (auto _ : state) {
        rows.movePrevious();
        if (rows.bof()) {
            rows.moveLast();
        }
        benchmark::DoNotOptimize(rows.text(u"NOM"_qs));
    }
}

// Walks by the key of the row before; from the end it starts anew.
void walkBare(benchmark::State& state, const char* sql, const QByteArray& start, qint64 startNumber) {
    yardstick::Statement statement(patientsOf(state).bare, sql);
    QByteArray name = start;
    QByteArray firstName = start;
    qint64 number = startNumber;
    for (auto _ : state) {
        statement.bind(1, name);
        statement.bind(2, firstName);
        statement.bind(3, number);
        const bool found = statement.fetch();
        const QByteArray nextName = found ? statement.text(1) : start;
        const QByteArray nextFirstName = found ? statement.text(2) : start;
        number = found ? statement.number(0) : startNumber;
        statement.reset();
        name = nextName;
        firstName = nextFirstName;
    }
}

void nextBare(benchmark::State& state) {
    walkBare(state, "SELECT*FROM FICHEPATIENT WHERE (NOM,PRENOM,NUMINT)>(?,?,?) ORDER BY NOM,PRENOM,NUMINT LIMIT 1", {},
             0);
}

void previousBare(benchmark::State& state) {
    walkBare(state,
             "SELECT*FROM FICHEPATIENT WHERE (NOM,PRENOM,NUMINT)<(?,?,?) ORDER BY NOM DESC,PRENOM DESC,NUMINT DESC "
             "LIMIT 1",
             "ZZZ", 0);
}

void firstOurs(benchmark::State& state) {
    Recordset rows = patientsOf(state).database.openRecordset(kByName);
    for (auto _ : state) {
        rows.moveFirst();
        benchmark::DoNotOptimize(rows.text(u"NOM"_qs));
    }
}

void lastOurs(benchmark::State& state) {
    Recordset rows = patientsOf(state).database.openRecordset(kByName);
    for (auto _ : state) {
        rows.moveLast();
        benchmark::DoNotOptimize(rows.text(u"NOM"_qs));
    }
}

void numberOurs(benchmark::State& state) {
    const Database& database = patientsOf(state).database;
    for (auto _ : state) {
        Recordset rows = database.openRecordset(u"SELECT*FROM FICHEPATIENT ORDER BY NUMINT"_qs);
        rows.moveLast();
        benchmark::DoNotOptimize(rows.field(u"NUMINT"_qs).number() + 1);
    }
}

void oneRowBare(benchmark::State& state, const char* sql) {
    yardstick::Statement statement(patientsOf(state).bare, sql);
    for (auto _ : state) {
        statement.fetch();
        statement.reset();
    }
}

void firstBare(benchmark::State& state) {
    oneRowBare(state, "SELECT*FROM FICHEPATIENT ORDER BY NOM,PRENOM,NUMINT LIMIT 1");
}

void lastBare(benchmark::State& state) {
    oneRowBare(state, "SELECT*FROM FICHEPATIENT ORDER BY NOM DESC,PRENOM DESC,NUMINT DESC LIMIT 1");
}

void numberBare(benchmark::State& state) {
    oneRowBare(state, "SELECT*FROM FICHEPATIENT ORDER BY NUMINT DESC LIMIT 1");
}

int anyDossier(std::mt19937& random) {
    return static_cast<int>(random() % (large_practice::kExams / large_practice::kExamsOfADossier)) + 1;
}

void examListOurs(benchmark::State& state) {
    const Database& database = Exams::all().database;
    std::mt19937 random(10);
    for (auto _ : state) {
        const QString dossier = QString::number(anyDossier(random));
        Recordset rows =
            database.openRecordset(u"SELECT*FROM 1TER WHERE NUMERO="_qs + dossier + u" ORDER BY NUMECHO"_qs);
        rows.findFirst(u"NUMERO="_qs + dossier);
        for (rows.moveFirst(); !rows.eof(); rows.moveNext()) {
            benchmark::DoNotOptimize(rows.text(u"DATEXAM"_qs));
        }
    }
}

void examListBare(benchmark::State& state) {
    yardstick::Statement statement(Exams::all().bare, "SELECT*FROM \"1TER\" WHERE NUMERO=? ORDER BY NUMECHO");
    std::mt19937 random(10);
    for (auto _ : state) {
        statement.bind(1, anyDossier(random));
        while (statement.fetch()) {
        }
        statement.reset();
    }
}

void savedExamOurs(benchmark::State& state) {
    Recordset rows = Exams::all().database.openRecordset(u"SELECT*FROM 1TER WHERE NUMERO=5 ORDER BY NUMECHO"_qs);
    int save = 0;
    for (auto _ : state) {
        rows.edit();
        ++save;
        for (const Field& field : store::fieldsOf(u"1TER"_qs)) {
            rows.set(field.name, field.kind == FieldKind::Text ? QString::number(save) : u"5"_qs);
        }
        rows.update();
    }
}

void savedExamBare(benchmark::State& state) {
    const QByteArray path = QFile::encodeName(large_practice::place(u"flush"_qs));
    const int file = ::open(path.constData(), O_CREAT | O_RDWR, 0600);
    QByteArray bytes(kFlushedBytes, 'x');
    for (auto _ : state) {
        bytes[0] = static_cast<char>(bytes[0] + 1);
        benchmark::DoNotOptimize(::pwrite(file, bytes.constData(), kFlushedBytes, 0));
        ::fdatasync(file);
    }
    ::close(file);
}

}  // namespace

int main(int count, char** arguments) {
    const std::vector<int> sizes{1000, 8000, 32767};
    side_by_side::pair("keystroke", keystrokeOurs, keystrokeBare, 3, sizes);
    side_by_side::pair("next", nextOurs, nextBare, 3, sizes);
    side_by_side::pair("previous", previousOurs, previousBare, 3, sizes);
    side_by_side::pair("first", firstOurs, firstBare, 3, sizes);
    side_by_side::pair("last", lastOurs, lastBare, 3, sizes);
    side_by_side::pair("number allocation", numberOurs, numberBare, 3, sizes);
    side_by_side::pair("exam list of 10", examListOurs, examListBare, 4);
    side_by_side::pair("saved exam, bare flush", savedExamOurs, savedExamBare, std::nullopt);
    return side_by_side::run(count, arguments);
}
