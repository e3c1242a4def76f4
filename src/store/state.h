#pragma once

#include <QString>

#include "store/database.h"
#include "store/recordset.h"

namespace store {

/// What all windows share about the store: the paths, the handles, the last query texts and the current cursors.
struct State {
    /// Opens the base of the exams anew at the path of its setting: a backup may have closed it.
    void openExams() {
        WorkEcho = PathEcho;
        DbEcho = Database::open(WorkEcho);
    }
    /// Runs a query on the base of the exams, or on that of the patients, into the one current cursor.
    void queryExams(const QString& text) {
        SqlEcho = text;
        Rs = DbEcho.openRecordset(text);
    }
    void queryPatients(const QString& text) {
        SqlNom = text;
        Rs = DbNom.openRecordset(text);
    }

    // The settings as the dossier window read them at its load, and the backup folder.
    QString PathEcho, PathNom, PathAtcd, PathEchotek, PathSauve;
    // The paths through which the handlers open.
    QString WorkEcho, WorkNom, WorkAtcd;
    // The last opened handle of each file.
    Database DbEcho, DbNom, DbAtcd;
    // The last query text sent to each.
    QString SqlEcho, SqlNom, SqlAtcd;
    // The one current cursor of the program, and the one on the medical history.
    Recordset Rs, RsAtcd;
};

}  // namespace store
