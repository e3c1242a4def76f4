#pragma once

#include <QByteArray>
#include <vector>

#include "store/statement.h"
#include "store/value.h"

namespace store {

enum class FieldKind;

/// One row as it was read: its number and its fields, turned into values only when somebody asks.
class Row {
public:
    /// Reads the current row of a statement: the row number in the first column, the fields behind it.
    void read(const Statement& statement);

    qint64 number() const { return number_; }
    /// A field as it is bound again.
    Bound bound(int place) const;

private:
    struct Cell {
        int type;
        qint64 number;  // or where the text begins
        qsizetype size;
        double decimal;
    };

    qint64 number_ = 0;
    std::vector<Cell> cells_;
    QByteArray texts_;
};

/// What a field of this kind shows for a stored value.
Value toValue(const Bound& stored, FieldKind kind);

/// The text of a field of this kind in the current row of a statement, null as nothing.
QString textOf(const Statement& statement, int column, FieldKind kind);

}  // namespace store
