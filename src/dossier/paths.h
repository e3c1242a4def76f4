#pragma once

#include <QString>

#include "ports/surroundings.h"
#include "store/state.h"

namespace dossier {

/// Reads the places of the four databases from the settings into the shared state, and copies the working paths from
/// them. Without a setting the program's own folder stands in, but for the album's, which is then empty.
void readPaths(const ports::Surroundings& around, store::State& state);

/// The setting that holds the path of the exam base, or the program's own folder.
QString echoPath(const ports::Surroundings& around);

/// Whether a path ends in this file name, without regard to case. The disk is not looked at.
bool endsInName(const QString& path, const QString& name);

/// The message of a base whose path is refused: "Echo.mdb", "Nom.mdb", "ATCD.MDB" or "ECHOTEK.MDB".
QString missingBaseMessage(const QString& name);

}  // namespace dossier
