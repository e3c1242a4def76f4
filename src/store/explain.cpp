#include "store/explain.h"

#include "store/connection.h"

namespace store {
namespace {

constexpr int kDetailColumn = 3;

QString planOf(sqlite3* database, const QString& step, const QByteArray& sql) {
    Statement statement(database, "EXPLAIN QUERY PLAN " + sql);
    QString plan;
    while (statement.step()) {
        plan += QStringLiteral("%1: %2\n").arg(step, statement.text(kDetailColumn));
    }
    return plan;
}

}  // namespace

QString explain(const Database& database, const QString& query, const QString& criterion) {
    sqlite3* file = database.connection_->database();
    const std::shared_ptr<Shape> shape = database.connection_->shape(readQuery(query));
    QString plan;
    if (shape->isLazy()) {
        plan = planOf(file, QStringLiteral("first"), shape->seekSql(Direction::Forward, {})) +
               planOf(file, QStringLiteral("next"), shape->stepSql(Direction::Forward));
    } else {
        plan = planOf(file, QStringLiteral("numbers"), shape->numbersSql());
    }
    if (!criterion.isEmpty()) {
        const Condition condition = readCriterion(criterion, shape->table(), shape->criterionParameter());
        plan += planOf(file, QStringLiteral("find"), shape->findSql(Direction::Forward, condition.sql));
    }
    return plan;
}

}  // namespace store
