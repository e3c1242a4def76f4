#pragma once

#include <QStringList>

namespace store {

/// How many places of the file at this path are damaged (a page that can't be read, a row that breaks the rules of its
/// table, a row that an index lost), counted up to 100. 0 is a sound file. Throws as `Database::open` does.
int damagedPlaces(const QString& path);

/// The tables and indexes of the file at this path that are missing or not defined as they should be, by what makes
/// them ("CREATE TABLE "GYNECO""). Throws as `Database::open` does.
QStringList changedDefinitions(const QString& path);

}  // namespace store
