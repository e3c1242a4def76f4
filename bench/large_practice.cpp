#include "large_practice.h"

#include <QDate>
#include <QFile>
#include <QTemporaryDir>
#include <functional>
#include <vector>

#include "store/schema.h"
#include "yardstick.h"

namespace large_practice {
namespace {

constexpr int kRubrics = 55;
constexpr int kIndications = 7;
constexpr int kUterus = 8;
constexpr int kDevice = 14;
constexpr int kDeviceDate = 15;
constexpr int kLetterhead = 19;
constexpr int kLetterheadEnd = 23;

using store::Field;
using store::FieldKind;
using store::FileKind;

/// The value of a field of the record with this number, from 0.
using ValueOf = std::function<QByteArray(int record, const Field& field)>;

/// An INSERT for every field of a table.
QByteArray insertion(const QString& table) {
    QByteArrayList columns;
    QByteArrayList marks;
    for (const Field& field : store::fieldsOf(table)) {
        columns << '"' + field.name.toUtf8() + '"';
        marks << QByteArrayLiteral("?");
    }
    return "INSERT INTO \"" + table.toUtf8() + "\"(" + columns.join(',') + ")VALUES(" + marks.join(',') + ')';
}

void fill(const QString& path, const QString& table, int count, const ValueOf& valueOf) {
    yardstick::Connection connection(path);
    connection.run("PRAGMA synchronous=OFF; BEGIN");
    {
        yardstick::Statement statement(connection, insertion(table).constData());
        const auto& fields = store::fieldsOf(table);
        std::vector<QByteArray> values(fields.size());
        for (int record = 0; record < count; ++record) {
            for (std::size_t i = 0; i < fields.size(); ++i) {
                values[i] = valueOf(record, fields[i]);
                statement.bind(static_cast<int>(i) + 1, values[i]);
            }
            statement.fetch();
            statement.reset();
        }
    }
    connection.run("COMMIT");
}

// The exams of a dossier lie years apart: here the first ones of all dossiers, then the second ones, and so on.
void fillExams(const QString& path, const QString& table, int count, int ofADossier) {
    std::mt19937 random(8);
    const int dossiers = count / ofADossier;
    fill(path, table, count, [=, &random](int record, const Field& field) {
        const int number = record / dossiers + 1;
        if (field.kind == FieldKind::Number) {
            return QByteArray::number(field.name == u"Numero"_qs ? record % dossiers + 1 : number);
        }
        if (field.name == u"DATEXAM"_qs) {
            return dateOfExam(number).toUtf8();
        }
        if (field.name == u"TYPECHO"_qs) {
            return QByteArray(2 * number <= ofADossier ? "1" : "0");
        }
        return field.name == u"NBRE"_qs ? QByteArrayLiteral("1") : invented(random, 4).toUtf8();
    });
}

/// How many stored responses a rubric has: the letterhead and the device are one line each.
int phrasesOf(int rubric) {
    if (rubric == kIndications || rubric == kUterus) {
        return kManyPhrases;
    }
    return rubric == kDevice || rubric == kDeviceDate || (rubric >= kLetterhead && rubric <= kLetterheadEnd) ? 1
                                                                                                             : kPhrases;
}

void fillResponses(const QString& path) {
    std::mt19937 random(11);
    std::vector<int> rubrics;
    for (int rubric = 1; rubric <= kRubrics; ++rubric) {
        rubrics.insert(rubrics.end(), static_cast<std::size_t>(phrasesOf(rubric)), rubric);
    }
    fill(path, u"OPTIONS"_qs, static_cast<int>(rubrics.size()), [&](int record, const Field& field) {
        if (field.kind == FieldKind::Number) {
            const bool rubric = field.name == u"NUMEROS"_qs;
            return QByteArray::number(rubric ? rubrics[static_cast<std::size_t>(record)] : record + 1);
        }
        return field.name == u"TERMINAIS"_qs ? QByteArrayLiteral("A") : invented(random, 12).toUtf8();
    });
}

/// The path of a file of this name with one table filled.
QString made(const QString& name, FileKind kind, const QString& table, int count, const ValueOf& valueOf) {
    const QString path = place(name);
    if (!QFile::exists(path)) {
        store::createFile(kind, path);
        fill(path, table, count, valueOf);
    }
    return path;
}

/// The path of an ECHO.MDB with so many exams of this table, and the stored responses.
QString madeExams(const QString& table, int count, int ofADossier) {
    const QString path = place(u"ECHO-%1-%2-%3.MDB"_qs.arg(table).arg(count).arg(ofADossier));
    if (!QFile::exists(path)) {
        store::createFile(FileKind::Echo, path);
        fillExams(path, table, count, ofADossier);
        fillResponses(path);
    }
    return path;
}

}  // namespace

QString place(const QString& name) {
    static const QTemporaryDir folder;
    return folder.filePath(name);
}

QString invented(std::mt19937& random, int syllables) {
    static const QStringList kSyllables{u"BER"_qs, u"DU"_qs,  u"LA"_qs,  u"MON"_qs, u"PÉ"_qs,  u"RI"_qs, u"SAN"_qs,
                                        u"TER"_qs, u"VAL"_qs, u"QUE"_qs, u"NOU"_qs, u"GRA"_qs, u"LÈ"_qs, u"CHE"_qs,
                                        u"FON"_qs, u"D'A"_qs, u"LIN"_qs, u"MAR"_qs, u"TI"_qs,  u"RO"_qs};
    QString name;
    for (; syllables > 0; --syllables) {
        name += kSyllables[static_cast<qsizetype>(random() % static_cast<unsigned>(kSyllables.size()))];
    }
    return name;
}

QString patients(int count) {
    std::mt19937 random(7);
    return made(u"NOM%1.MDB"_qs.arg(count), FileKind::Nom, u"FICHEPATIENT"_qs, count,
                [&random](int record, const Field& field) {
                    if (field.kind == FieldKind::Number) {
                        return QByteArray::number(record + 1);
                    }
                    if (field.kind == FieldKind::Date) {
                        return QByteArrayLiteral("1970-02-28");
                    }
                    const bool name = field.name == u"Nom"_qs || field.name == u"Prenom"_qs;
                    return invented(random, name ? 3 : 2).toUtf8();
                });
}

QString dateOfExam(int number) {
    return QDate(1990, 4, 16).addDays(qint64{120} * number).toString(u"dd/MM/yyyy"_qs);
}

QString exams(int count, int ofADossier) {
    return madeExams(u"1TER"_qs, count, ofADossier);
}

QString gynaecologyExams(int count, int ofADossier) {
    return madeExams(u"GYNECO"_qs, count, ofADossier);
}

QString histories() {
    std::mt19937 random(9);
    return made(u"ATCD.MDB"_qs, FileKind::Atcd, u"FICHEATCD"_qs, kPatients, [&random](int record, const Field& field) {
        if (field.kind == FieldKind::Number) {
            return QByteArray::number(record + 1);
        }
        return field.name == u"Type"_qs ? QByteArrayLiteral("1") : invented(random, 40).toUtf8();
    });
}

QString classedPictures() {
    static const QStringList kDiagnoses{
        u"Normal"_qs,          u"Grossesse gémellaire"_qs, u"Clarté nucale augmentée"_qs,
        u"Macrosomie"_qs,      u"Retard de croissance"_qs, u"Cardiopathie"_qs,
        u"Fibrome utérin"_qs,  u"Kyste de l'ovaire"_qs,    u"Endométriome"_qs,
        u"Placenta praevia"_qs};
    static const QStringList kWords{u"Coeur"_qs, u"Reins"_qs, u"Ovaire droit"_qs, u"Axiale"_qs, u"À revoir"_qs};
    std::mt19937 random(12);
    const auto any = [&random](const QStringList& words) {
        return words[static_cast<qsizetype>(random() % static_cast<unsigned>(words.size()))].toUtf8();
    };
    return made(u"ECHOTEK-CLASSED.MDB"_qs, FileKind::Echotek, u"ECHOS"_qs, kClassedPictures,
                [&random, any](int record, const Field& field) {
                    const QByteArray number = QByteArray::number(record + 1);
                    if (field.kind == FieldKind::Number) {
                        return number;
                    }
                    if (field.name == u"NOMFICH"_qs || field.name == u"NOMPATH"_qs) {
                        return (field.name == u"NOMPATH"_qs ? "/srv/veranox/VIDEOTEK/" : "") + number + ".jpg";
                    }
                    if (field.name == u"DATEXAM"_qs) {
                        return QByteArray("16/04/") + QByteArray::number(1990 + record / 8000);
                    }
                    if (field.name == u"Typexam"_qs) {
                        return QByteArray::number(record % 4 + 1);
                    }
                    if (field.name == u"DIAGNO"_qs) {
                        return any(kDiagnoses);
                    }
                    return field.name.startsWith(u"CRIT"_qs) ? any(kWords) : invented(random, 3).toUtf8();
                });
}

QString album() {
    std::mt19937 random(10);
    return made(u"ECHOTEK.MDB"_qs, FileKind::Echotek, u"ECHOS"_qs, kPictures,
                [&random](int record, const Field& field) {
                    const QByteArray number = QByteArray::number(record + 1);
                    return field.kind == FieldKind::Number ? number : invented(random, 3).toUtf8() + number;
                });
}

}  // namespace large_practice
