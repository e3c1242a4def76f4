#include "practice/practice.h"

#include <QDir>

#include "practice/sample_rows.h"
#include "practice/sample_writer.h"
#include "practice/sheet_writer.h"
#include "practice/staging.h"
#include "store/database.h"
#include "store/schema.h"

namespace practice {
namespace {

using store::FileKind;

void createFiles(const Paths& paths) {
    store::createFile(FileKind::Nom, paths.nom);
    store::createFile(FileKind::Echo, paths.echo);
    store::createFile(FileKind::Atcd, paths.atcd);
    store::createFile(FileKind::Echotek, paths.echotek);
    store::Recordset sheets =
        store::Database::open(paths.nom).openRecordset(u"SELECT*FROM FICHEPATIENT ORDER BY NUMINT"_qs);
    addSheet(sheets, {.number = 1, .name = u"DOSSIER MODELE", .more = kNoExtras});
}

}  // namespace

Paths pathsIn(const QString& folder) {
    const QDir dir(folder);
    const auto path = [&](FileKind kind) { return dir.absoluteFilePath(store::usualName(kind)); };
    return {path(FileKind::Nom), path(FileKind::Echo), path(FileKind::Atcd), path(FileKind::Echotek)};
}

void makeEmpty(const QString& folder) {
    Staging staging(folder);
    createFiles(staging.paths());
    staging.publish();
}

void makeSample(const QString& folder) {
    Staging staging(folder);
    createFiles(staging.paths());
    writeSample(staging.paths());
    staging.publish();
}

}  // namespace practice
