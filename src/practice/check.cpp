#include "practice/check.h"

#include <QDir>
#include <QSet>
#include <algorithm>

#include "base/errors.h"
#include "store/check.h"
#include "store/database.h"
#include "store/recordset.h"
#include "store/schema.h"

namespace practice {
namespace {

using base::ErrorNumber;
using base::RuntimeError;
using store::Database;
using store::FileKind;
using store::Recordset;

/// A table whose records belong to a patient, the field that names her, and its records in one and in many.
struct Belonging {
    FileKind file;
    const char16_t *table, *patient;
    const char16_t *one, *many;
};

constexpr Belonging kBelongings[] = {
    {FileKind::Echo, u"1TER", u"Numero", u"examen obstétrical", u"examens obstétricaux"},
    {FileKind::Echo, u"GYNECO", u"Numero", u"examen gynécologique", u"examens gynécologiques"},
    {FileKind::Atcd, u"FICHEATCD", u"Numint", u"antécédent", u"antécédents"},
};

QString pathOf(const QString& folder, FileKind kind) {
    return QDir(folder).absoluteFilePath(store::usualName(kind));
}

/// Whether the error says that the file is at fault, and not that it can't be read now.
bool blamesTheFile(const RuntimeError& error) {
    return error.number() != ErrorNumber::PermissionDenied && error.number() != ErrorNumber::RecordLocked;
}

/// "CREATE INDEX "1TER_Numero" ON ..." as a person reads it.
QString definitionFault(const QString& creation) {
    const QString name = creation.section(u' ', 2, 2).remove(u'"');
    const QString what = creation.startsWith(u"CREATE TABLE"_qs) ? u"table"_qs : u"index"_qs;
    return u"définition absente ou modifiée : %1 « %2 »."_qs.arg(what, name);
}

QStringList faultsIn(const QString& path, FileKind kind) {
    const Database database = Database::open(path);
    if (database.kind() != kind) {
        return {u"ce fichier est en réalité une base %1."_qs.arg(store::usualName(database.kind()))};
    }
    if (const int places = store::damagedPlaces(path); places > 0) {
        return {u"le contenu est endommagé (défauts trouvés : %1)."_qs.arg(places)};
    }
    QStringList faults;
    for (const QString& creation : store::changedDefinitions(path)) {
        faults << definitionFault(creation);
    }
    return faults;
}

QStringList faultsOf(const QString& path, FileKind kind) {
    try {
        return faultsIn(path, kind);
    } catch (const RuntimeError& error) {
        if (!blamesTheFile(error)) {
            throw;
        }
        return {error.text()};
    }
}

QSet<QString> columnOf(const Database& database, const QString& table, const QString& field) {
    QSet<QString> values;
    for (Recordset rows = database.openRecordset(u"SELECT*FROM "_qs + table); !rows.eof(); rows.moveNext()) {
        values.insert(rows.text(field));
    }
    return values;
}

int orphansOf(const Belonging& belonging, const QString& folder, const QSet<QString>& patients) {
    const Database database = Database::open(pathOf(folder, belonging.file));
    const QString field = QString::fromUtf16(belonging.patient);
    int orphans = 0;
    Recordset rows = database.openRecordset(u"SELECT*FROM "_qs + QString::fromUtf16(belonging.table));
    for (; !rows.eof(); rows.moveNext()) {
        orphans += patients.contains(rows.text(field)) ? 0 : 1;
    }
    return orphans;
}

QStringList brokenTies(const QString& folder) {
    const QSet<QString> patients =
        columnOf(Database::open(pathOf(folder, FileKind::Nom)), u"FICHEPATIENT"_qs, u"Numint"_qs);
    QStringList faults;
    for (const Belonging& belonging : kBelongings) {
        if (const int count = orphansOf(belonging, folder, patients); count > 0) {
            faults << u"%1 %2 sans dossier patient."_qs.arg(count).arg(
                QString::fromUtf16(count == 1 ? belonging.one : belonging.many));
        }
    }
    return faults;
}

}  // namespace

std::vector<Finding> checkFiles(const Paths& files) {
    std::vector<Finding> findings;
    for (const auto& [kind, path] :
         {std::pair(FileKind::Nom, files.nom), std::pair(FileKind::Echo, files.echo),
          std::pair(FileKind::Atcd, files.atcd), std::pair(FileKind::Echotek, files.echotek)}) {
        findings.push_back({store::usualName(kind), faultsOf(path, kind)});
    }
    return findings;
}

std::vector<Finding> check(const QString& folder) {
    if (!QDir(folder).exists()) {
        throw RuntimeError(ErrorNumber::PathNotFound, base::errorText(ErrorNumber::PathNotFound, folder));
    }
    std::vector<Finding> findings = checkFiles(pathsIn(folder));
    const bool sound = std::ranges::all_of(findings, &QStringList::isEmpty, &Finding::faults);
    const QStringList faults = sound ? brokenTies(folder) : QStringList(u"non contrôlés, une base est en défaut."_qs);
    findings.push_back({u"Liens entre les bases"_qs, faults});
    return findings;
}

}  // namespace practice
