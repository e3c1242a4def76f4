#include "store/row.h"

#include "store/schema.h"

namespace store {

void Row::read(const Statement& statement) {
    sqlite3_stmt* handle = statement.handle();
    const int count = sqlite3_column_count(handle) - 1;
    number_ = statement.number(0);
    cells_.clear();
    texts_.resize(0);
    for (int column = 1; column <= count; ++column) {
        Cell cell{sqlite3_column_type(handle, column), 0, 0, 0};
        if (cell.type == SQLITE_TEXT) {
            const auto* bytes = reinterpret_cast<const char*>(sqlite3_column_text(handle, column));
            cell.number = texts_.size();
            cell.size = sqlite3_column_bytes(handle, column);
            texts_.append(bytes, cell.size);
        } else if (cell.type == SQLITE_INTEGER) {
            cell.number = sqlite3_column_int64(handle, column);
        } else if (cell.type == SQLITE_FLOAT) {
            cell.decimal = sqlite3_column_double(handle, column);
        }
        cells_.push_back(cell);
    }
}

Bound Row::bound(int place) const {
    const Cell& cell = cells_[static_cast<std::size_t>(place)];
    switch (cell.type) {
        case SQLITE_INTEGER:
            return cell.number;
        case SQLITE_FLOAT:
            return cell.decimal;
        case SQLITE_TEXT:
            return texts_.sliced(cell.number, cell.size);
        default:
            return {};
    }
}

Value toValue(const Bound& stored, FieldKind kind) {
    if (const auto* number = std::get_if<qint64>(&stored)) {
        return *number;
    }
    if (const auto* decimal = std::get_if<double>(&stored)) {
        return *decimal;
    }
    if (const auto* text = std::get_if<QByteArray>(&stored)) {
        const QString string = QString::fromUtf8(*text);
        return kind == FieldKind::Date ? Value(QDate::fromString(string, Qt::ISODate)) : Value(string);
    }
    return {};
}

QString textOf(const Statement& statement, int column, FieldKind kind) {
    switch (sqlite3_column_type(statement.handle(), column)) {
        case SQLITE_INTEGER:
            return QString::number(statement.number(column));
        case SQLITE_FLOAT:
            return toValue(sqlite3_column_double(statement.handle(), column), kind).text();
        case SQLITE_TEXT:
            return kind == FieldKind::Text ? statement.text(column)
                                           : toValue(statement.text(column).toUtf8(), kind).text();
        default:
            return {};
    }
}

}  // namespace store
