#pragma once

#include <QString>
#include <utility>

#include "store/database.h"
#include "store/recordset.h"

namespace pictures {

/// The file of the album. Each step opens it anew.
class AlbumBase {
public:
    void setPath(QString path) { path_ = std::move(path); }

    /// The rows of a query. Throws as `store::Database::open` and `openRecordset` do.
    store::Recordset open(const QString& query) const { return store::Database::open(path_).openRecordset(query); }

private:
    QString path_;
};

}  // namespace pictures
