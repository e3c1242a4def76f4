#pragma once

#include <QString>

#include "store/database.h"

namespace store {

/// How the engine would run a query: a line for each search or sort, beginning with what asks for it ("first", "next",
/// "find", or "numbers" where the row numbers are fetched at once). For tests that watch over the indexes. Throws as
/// `Database::openRecordset` does.
QString explain(const Database& database, const QString& query, const QString& criterion = QString());

}  // namespace store
