#pragma once

#include <gtest/gtest.h>

#include <QDate>
#include <QMap>
#include <optional>

#include "base/errors.h"
#include "practice/practice.h"
#include "store/schema.h"
#include "store/value.h"

/// One record: its fields by their names in capitals.
using Row = QMap<QString, store::Value>;

/// Every record of a table, in the store's order.
QList<Row> rowsOf(const practice::Paths& files, const QString& table);

/// The full path of the file of this kind.
QString pathOf(const QString& folder, store::FileKind kind);

/// The names of what lies in a folder, hidden things included.
QStringList namesIn(const QString& folder);

QByteArray bytesOf(const QString& path);
void writeBytes(const QString& path, const QByteArray& bytes);

/// The date that a text of the form DD/MM/YYYY holds; invalid for anything else.
QDate dateOf(const QString& text);

/// The number of the error in which a step ends, nothing if it ends well.
template <class Step>
std::optional<base::ErrorNumber> errorOf(Step step) {
    try {
        step();
        return std::nullopt;
    } catch (const base::RuntimeError& error) {
        return error.number();
    }
}

void PrintTo(const QString& text, std::ostream* stream);
