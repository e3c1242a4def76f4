#pragma once

#include <QStringView>

#include "store/statement.h"
#include "store/tables.h"

namespace store {

/// A condition on the rows of a table, as SQL. Every literal is a numbered parameter, every name one of the table's.
struct Condition {
    QByteArray sql;
    Bounds literals;
    /// Comparisons joined by AND alone: an index can serve it at each step.
    bool plain = true;
    /// The fields that it holds to one value each; of a plain condition only.
    std::vector<int> fixed;
};

struct OrderField {
    int place;
    bool descending;
};

/// What a query text asks for.
struct Query {
    const Table* table;
    /// Without SQL if the text names no condition. Its parameters count from 1.
    Condition condition;
    std::vector<OrderField> order;
};

/// Reads a query text:
///
///     SELECT * FROM table [WHERE condition] [ORDER BY field [ASC|DESC], ...]
///
/// A condition compares fields with literals (= <> < > <= >=, LIKE, IS [NOT] NULL), joined by AND, OR, NOT and
/// brackets. A name may stand in square brackets, a text in single or double quotes, doubled inside. A number ends at
/// the first character that is no digit or point, so that "NUMERO=5And NUMECHO=2" reads. Throws QuerySyntax for any
/// other text, UnknownTable, UnknownParameter for an unknown field, TypeMismatch for a field compared with what it
/// cannot hold.
Query readQuery(QStringView text);

/// Reads a condition alone, its parameters counting from `firstParameter`. Throws as `readQuery` does.
Condition readCriterion(QStringView text, const Table& table, int firstParameter);

}  // namespace store
