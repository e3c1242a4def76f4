#pragma once

#include <QDateTime>
#include <QString>

#include "practice/practice.h"

namespace practice {

/// The four files of a backup: those in the folder `place`, or, since a backup joins its place to the names as it
/// stands, those whose full names begin with `place`.
Paths backupAt(const QString& place);

/// Puts a backup in the place of the practice's files in `folder`, which is made if only its last step is missing. The
/// backup is checked first and stays as it is; the present files and their journals are moved to a subfolder that bears
/// the time; the restored files are checked once more where they stand. All four or none: after a failure the present
/// files are back in their places. No station may have them open.
///
/// Returns the subfolder, or nothing if no file was there. Throws UnknownFormat if the backup is not whole and sound,
/// PathNotFound, PermissionDenied or DiskFull.
QString restore(const QString& backup, const QString& folder, const QDateTime& now);

}  // namespace practice
