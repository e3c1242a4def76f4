#pragma once

#include <gtest/gtest.h>

#include <QTemporaryDir>
#include <map>

#include "base/errors.h"
#include "store/database.h"
#include "store/recordset.h"
#include "store/schema.h"

/// A folder that goes with the test, with files of the practice made on demand.
class Files {
public:
    QString path(const QString& name) const { return folder_.filePath(name); }
    QString path(store::FileKind kind) const { return path(store::usualName(kind)); }

    /// The path of a file of this kind, made if it isn't there.
    QString made(store::FileKind kind) const;
    store::Database open(store::FileKind kind) const { return store::Database::open(made(kind)); }

private:
    QTemporaryDir folder_;
};

using Record = std::map<QString, store::Value>;

/// Adds a record through a recordset on the whole table.
void add(const store::Database& database, const QString& table, const Record& record);

/// Adds a patient whose other text fields hold the blank that the sheet writes.
void addPatient(const store::Database& database, int number, const QString& name, const QString& firstName = u" "_qs);

/// The texts of a field, from the first row of a query to the last.
QStringList column(const store::Database& database, const QString& query, const QString& field);

/// Expects the step to end with an error of this number.
template <class Step>
void expectError(base::ErrorNumber number, Step&& step) {
    try {
        step();
        ADD_FAILURE() << "no error, expected " << static_cast<int>(number);
    } catch (const base::RuntimeError& error) {
        EXPECT_EQ(static_cast<int>(error.number()), static_cast<int>(number)) << error.what();
    }
}

void PrintTo(const QString& text, std::ostream* stream);

namespace store {
void PrintTo(const Value& value, std::ostream* stream);
}  // namespace store
