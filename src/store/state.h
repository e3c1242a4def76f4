#pragma once

#include <QString>

#include "store/database.h"
#include "store/recordset.h"

namespace store {

/// What all windows share about the store: the paths, the handles, the last query texts and the current cursors.
struct State {
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
