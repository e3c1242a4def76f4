#pragma once

#include <QByteArray>
#include <span>
#include <vector>

#include "store/names.h"
#include "store/schema.h"

namespace store {

/// What marks a file as one of this program, in its header: "VRNX".
inline constexpr int kApplicationId = 0x56524E58;
/// The version of the tables below, in the file's header.
inline constexpr int kSchemaVersion = 1;
/// The table that keeps the kind of the file and the version of its sort order. No query reaches it.
inline constexpr auto kMetaTable = "VERANOX_META";

/// A table with all that the store knows of it. Fields are named by their place.
struct Table {
    QString name;
    FileKind file;
    std::vector<Field> fields;
    NameIndex places;
    /// The field that is the row number, or -1: the number then stands in a column that is no field.
    int rowField = -1;
    /// The indexes, beside the row numbers and the unique fields: the fields of each in their order.
    std::vector<std::vector<int>> indexes;

    /// The place of a field, -1 if there is none of that name.
    int place(QStringView field) const;
    /// The column of a field, quoted for SQL.
    QByteArray column(int place) const;
    /// The column of the row number, quoted for SQL.
    QByteArray rowColumn() const;
};

std::span<const Table> allTables();

/// The table of this name, case apart, or null.
const Table* findTable(QStringView name);

/// The statements that make the tables of a file, in their order.
std::vector<QByteArray> creationOf(FileKind kind);

}  // namespace store
