#include "store/check.h"

#include "base/errors.h"
#include "store/connection.h"
#include "store/statement.h"
#include "store/tables.h"

namespace store {
namespace {

constexpr int kMostPlaces = 100;

// One row for each damaged place, or the one row "ok".
int placesListed(Statement& statement, int& places) {
    const Run run(statement);
    while (statement.step()) {
        places += statement.text(0) == QStringLiteral("ok") ? 0 : 1;
    }
    return places;
}

}  // namespace

int damagedPlaces(const QString& path) {
    const std::shared_ptr<Connection> connection = Connection::open(path);
    int places = 0;
    try {
        Statement statement(connection->database(), "PRAGMA integrity_check(" + QByteArray::number(kMostPlaces) + ')');
        return placesListed(statement, places);
    } catch (const base::RuntimeError& error) {
        // The walk itself stumbles over a badly damaged file.
        if (error.number() != base::ErrorNumber::UnknownFormat) {
            throw;
        }
        return places + 1;
    }
}

QStringList changedDefinitions(const QString& path) {
    const std::shared_ptr<Connection> connection = Connection::open(path);
    Statement statement(connection->database(), QByteArrayLiteral("SELECT sql FROM sqlite_schema"));
    QStringList found;
    while (statement.step()) {
        found << statement.text(0);
    }
    QStringList changed;
    for (const QByteArray& creation : creationOf(connection->kind())) {
        const QString expected = QString::fromUtf8(creation);
        if (!found.contains(expected)) {
            changed << expected.section(u'(', 0, 0);
        }
    }
    return changed;
}

}  // namespace store
