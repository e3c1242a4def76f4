#pragma once

#include <QHash>
#include <array>
#include <memory>

#include "store/query.h"

namespace store {

enum class Direction { Forward, Backward };

/// The order in which a cursor walks: fields, then the row number.
struct Order {
    std::vector<OrderField> fields;
    bool rowDescending = false;
    /// Whether an index gives this order under the query's filter, so that no step sorts.
    bool served = true;
};

/// The order of a query made whole. Fields that the filter holds to one value drop out; what an index that serves the
/// rest has behind it comes in, then the row number: rows that a query leaves level stand in the order of the index.
Order completeOrder(const Table& table, const std::vector<OrderField>& asked, const std::vector<int>& fixed);

/// The statements of all queries that differ in their literals alone, each prepared when it is first needed.
class Shape {
public:
    Shape(sqlite3* database, const Query& query);

    const Table& table() const { return table_; }
    const Order& order() const { return order_; }
    /// Whether each step is a search of its own; otherwise the row numbers are fetched once.
    bool isLazy() const { return lazy_; }
    /// The parameter from which those of a criterion count.
    int criterionParameter() const { return (lazy_ ? filterParameters_ : kBlock) + 1; }

    /// The first row of the query in this direction, of those that meet the criterion if there is one. Parameters:
    /// filter, criterion.
    Statement& seek(Direction direction, const QByteArray& criterion);
    /// The row after (before) a place. Parameters: filter, the place's order fields, its row number.
    Statement& step(Direction direction);
    /// The row of a number: the one parameter.
    Statement& byNumber();
    /// The row numbers of the query in its order. Parameters: filter.
    Statement& numbers();
    /// All rows of the query in its order. Parameters: filter.
    Statement& rows();
    /// Which of `kBlock` row numbers meet the criterion. Parameters: the numbers, criterion.
    Statement& amongNumbers(const QByteArray& criterion);
    /// The number of rows. Parameters: filter.
    Statement& count();

    /// Gives up all statements, so that the file can be closed.
    void finalise();

    static constexpr int kBlock = 64;

    // The texts of the statements above.
    QByteArray seekSql(Direction direction, const QByteArray& criterion) const;
    QByteArray findSql(Direction direction, const QByteArray& criterion) const;
    QByteArray stepSql(Direction direction) const;
    QByteArray numbersSql() const;

private:
    QByteArray amongNumbersSql(const QByteArray& criterion) const;
    QByteArray selectRow() const;
    QByteArray where(const QByteArray& more) const;
    QByteArray orderBy(std::size_t from, Direction direction) const;
    QByteArray branch(const QByteArray& condition, std::size_t from, Direction direction) const;
    QByteArrayList levelBranches(std::size_t level, Direction direction) const;
    QByteArray levelBefore(std::size_t level) const;
    QByteArray parameterOf(std::size_t level) const;
    bool isNullable(std::size_t level) const;
    QByteArray columnOf(std::size_t level) const { return table_.column(order_.fields[level].place); }

    Statement& prepared(Statement& statement, const QByteArray& sql);

    sqlite3* database_;
    const Table& table_;
    QByteArray filter_;
    int filterParameters_;
    Order order_;
    bool lazy_;

    std::array<QHash<QByteArray, std::shared_ptr<Statement>>, 2> seeks_;
    QHash<QByteArray, std::shared_ptr<Statement>> amongNumbers_;
    std::array<Statement, 2> steps_;
    Statement byNumber_;
    Statement numbers_;
    Statement rows_;
    Statement count_;
};

/// What tells shapes apart: the text of the query with its literals taken out.
QByteArray shapeKey(const Query& query);

}  // namespace store
