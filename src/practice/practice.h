#pragma once

#include <QString>

namespace practice {

/// The full paths of a practice's four files.
struct Paths {
    QString nom, echo, atcd, echotek;
};

/// The four files under their usual names in `folder`.
Paths pathsIn(const QString& folder);

/// Makes the four files of a new practice in `folder`, which is made too if only its last step is missing. Every table
/// is empty but FICHEPATIENT, which holds the one record that a new file must hold: Numint 1, "DOSSIER MODELE".
/// All four files or none: nothing is overwritten, and after a failure the folder is as it was. Throws PathNotFound,
/// PermissionDenied (one of the files stands there already, or the folder can't be written), DiskFull.
void makeEmpty(const QString& folder);

/// Makes the sample practice in `folder`: the files of `makeEmpty` with 40 invented patients, their histories and
/// exams, the stored responses and the album's key words. Always the same rows. Fails as `makeEmpty` does.
void makeSample(const QString& folder);

}  // namespace practice
