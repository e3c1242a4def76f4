#include "store/shape.h"

#include <algorithm>
#include <iterator>

namespace store {
namespace {

// Statements of criteria kept beside a query. A program uses a handful; more come from generated texts alone.
constexpr qsizetype kMostCriteria = 64;

bool isAmong(int place, const std::vector<int>& places) {
    return std::ranges::find(places, place) != places.end();
}

bool isUniform(const std::vector<OrderField>& fields) {
    return std::ranges::all_of(fields, [&](const OrderField& f) { return f.descending == fields.front().descending; });
}

// The fields by which an index still sorts once some are fixed.
std::vector<int> withoutFixed(const std::vector<int>& index, const std::vector<int>& fixed) {
    std::vector<int> rest;
    std::ranges::copy_if(index, std::back_inserter(rest), [&](int place) { return !isAmong(place, fixed); });
    return rest;
}

bool startsWith(const std::vector<int>& index, const std::vector<OrderField>& fields) {
    return index.size() >= fields.size() &&
           std::equal(fields.begin(), fields.end(), index.begin(),
                      [](const OrderField& field, int place) { return field.place == place; });
}

// Takes in what the first index that serves the fields has behind them; false if none serves them.
bool completeByIndex(const Table& table, const std::vector<int>& fixed, bool endsInRow,
                     std::vector<OrderField>& fields) {
    for (const std::vector<int>& index : table.indexes) {
        const std::vector<int> rest = withoutFixed(index, fixed);
        if (startsWith(rest, fields) && (!endsInRow || rest.size() == fields.size())) {
            for (std::size_t i = fields.size(); i < rest.size(); ++i) {
                fields.push_back({rest[i], fields.front().descending});
            }
            return true;
        }
    }
    return false;
}

}  // namespace

Order completeOrder(const Table& table, const std::vector<OrderField>& asked, const std::vector<int>& fixed) {
    Order order;
    bool endsInRow = false;
    for (const OrderField& field : asked) {
        if (isAmong(field.place, fixed)) {
            continue;
        }
        order.rowDescending = field.descending;
        endsInRow = field.place == table.rowField;
        if (endsInRow) {
            break;
        }
        order.fields.push_back(field);
    }
    if (!order.fields.empty()) {
        const bool uniform = isUniform(order.fields) && order.rowDescending == order.fields.front().descending;
        order.served = uniform && completeByIndex(table, fixed, endsInRow, order.fields);
    }
    return order;
}

Shape::Shape(sqlite3* database, const Query& query)
    : database_(database),
      table_(*query.table),
      filter_(query.condition.sql),
      filterParameters_(static_cast<int>(query.condition.literals.size())),
      order_(completeOrder(table_, query.order, query.condition.fixed)),
      lazy_(query.condition.plain && order_.served) {}

QByteArray Shape::selectRow() const {
    QByteArray sql = "SELECT " + table_.rowColumn();
    for (int i = 0; i < static_cast<int>(table_.fields.size()); ++i) {
        sql += ',' + table_.column(i);
    }
    return sql + " FROM \"" + table_.name.toUtf8() + '"';
}

QByteArray Shape::where(const QByteArray& more) const {
    if (filter_.isEmpty() || more.isEmpty()) {
        return filter_.isEmpty() && more.isEmpty() ? QByteArray() : " WHERE " + filter_ + more;
    }
    return " WHERE " + filter_ + " AND " + more;
}

QByteArray Shape::orderBy(std::size_t from, Direction direction) const {
    const auto way = [direction](bool descending) {
        return descending != (direction == Direction::Backward) ? " DESC" : "";
    };
    QByteArray sql = " ORDER BY ";
    for (std::size_t level = from; level < order_.fields.size(); ++level) {
        sql += columnOf(level) + way(order_.fields[level].descending) + ',';
    }
    return sql + table_.rowColumn() + way(order_.rowDescending);
}

QByteArray Shape::seekSql(Direction direction, const QByteArray& criterion) const {
    return selectRow() + where(criterion) + orderBy(0, direction) + " LIMIT 1";
}

QByteArray Shape::parameterOf(std::size_t level) const {
    return '?' + QByteArray::number(filterParameters_ + static_cast<int>(level) + 1);
}

bool Shape::isNullable(std::size_t level) const {
    return !table_.fields[static_cast<std::size_t>(order_.fields[level].place)].required;
}

// The rows level with the place in all fields before this one.
QByteArray Shape::levelBefore(std::size_t level) const {
    QByteArray sql;
    for (std::size_t i = 0; i < level; ++i) {
        sql += columnOf(i) + (isNullable(i) ? " IS " : "=") + parameterOf(i) + " AND ";
    }
    return sql;
}

QByteArray Shape::branch(const QByteArray& condition, std::size_t from, Direction direction) const {
    return "(SELECT " + table_.rowColumn() + " FROM \"" + table_.name.toUtf8() + '"' + where(condition) +
           orderBy(from, direction) + " LIMIT 1)";
}

// The rows level with the place up to a field and beyond it there. Nulls come before all values.
QByteArrayList Shape::levelBranches(std::size_t level, Direction direction) const {
    const bool up = order_.fields[level].descending == (direction == Direction::Backward);
    const QByteArray column = columnOf(level);
    const QByteArray parameter = parameterOf(level);
    const QByteArray before = levelBefore(level);
    QByteArrayList branches{branch(before + column + (up ? ">" : "<") + parameter, level, direction)};
    if (isNullable(level)) {
        const QByteArray beyondNull = up ? column + " IS NOT NULL AND " + parameter + " IS NULL"
                                         : column + " IS NULL AND " + parameter + " IS NOT NULL";
        branches << branch(before + beyondNull, level, direction);
    }
    return branches;
}

QByteArray Shape::stepSql(Direction direction) const {
    const std::size_t levels = order_.fields.size();
    const bool up = order_.rowDescending == (direction == Direction::Backward);
    const QByteArray sameFields = levelBefore(levels) + table_.rowColumn() + (up ? ">" : "<") + parameterOf(levels);
    QByteArrayList branches{branch(sameFields, levels, direction)};
    for (std::size_t level = levels; level-- > 0;) {
        branches << levelBranches(level, direction);
    }
    const QByteArray number = branches.size() == 1 ? branches.front() : "coalesce(" + branches.join(',') + ')';
    return selectRow() + " WHERE " + table_.rowColumn() + '=' + number;
}

QByteArray Shape::numbersSql() const {
    return "SELECT " + table_.rowColumn() + " FROM \"" + table_.name.toUtf8() + '"' + where({}) +
           orderBy(0, Direction::Forward);
}

QByteArray Shape::amongNumbersSql(const QByteArray& criterion) const {
    QByteArrayList parameters;
    for (int i = 1; i <= kBlock; ++i) {
        parameters << '?' + QByteArray::number(i);
    }
    return "SELECT " + table_.rowColumn() + " FROM \"" + table_.name.toUtf8() + "\" WHERE " + table_.rowColumn() +
           " IN (" + parameters.join(',') + ") AND " + criterion;
}

QByteArray Shape::findSql(Direction direction, const QByteArray& criterion) const {
    return lazy_ ? seekSql(direction, criterion) : amongNumbersSql(criterion);
}

Statement& Shape::prepared(Statement& statement, const QByteArray& sql) {
    statement = Statement(database_, sql);
    return statement;
}

Statement& Shape::seek(Direction direction, const QByteArray& criterion) {
    auto& seeks = seeks_[static_cast<std::size_t>(direction)];
    if (const auto found = seeks.constFind(criterion); found != seeks.cend()) {
        return **found;
    }
    if (seeks.size() >= kMostCriteria) {
        seeks.clear();
    }
    return **seeks.insert(criterion, std::make_shared<Statement>(database_, seekSql(direction, criterion)));
}

Statement& Shape::step(Direction direction) {
    Statement& statement = steps_[static_cast<std::size_t>(direction)];
    return statement.isPrepared() ? statement : prepared(statement, stepSql(direction));
}

Statement& Shape::byNumber() {
    return byNumber_.isPrepared() ? byNumber_
                                  : prepared(byNumber_, selectRow() + " WHERE " + table_.rowColumn() + "=?1");
}

Statement& Shape::numbers() {
    return numbers_.isPrepared() ? numbers_ : prepared(numbers_, numbersSql());
}

Statement& Shape::rows() {
    return rows_.isPrepared() ? rows_ : prepared(rows_, selectRow() + where({}) + orderBy(0, Direction::Forward));
}

Statement& Shape::amongNumbers(const QByteArray& criterion) {
    if (const auto found = amongNumbers_.constFind(criterion); found != amongNumbers_.cend()) {
        return **found;
    }
    if (amongNumbers_.size() >= kMostCriteria) {
        amongNumbers_.clear();
    }
    return **amongNumbers_.insert(criterion, std::make_shared<Statement>(database_, amongNumbersSql(criterion)));
}

Statement& Shape::count() {
    return count_.isPrepared() ? count_
                               : prepared(count_, "SELECT count(*) FROM \"" + table_.name.toUtf8() + '"' + where({}));
}

void Shape::finalise() {
    for (auto& seeks : seeks_) {
        seeks.clear();
    }
    amongNumbers_.clear();
    for (Statement* statement : {&steps_[0], &steps_[1], &byNumber_, &numbers_, &rows_, &count_}) {
        *statement = Statement();
    }
}

QByteArray shapeKey(const Query& query) {
    QByteArray key = query.table->name.toUtf8() + '|' + query.condition.sql + '|';
    for (const OrderField& field : query.order) {
        key += QByteArray::number(field.place) + (field.descending ? '-' : '+');
    }
    return key;
}

}  // namespace store
