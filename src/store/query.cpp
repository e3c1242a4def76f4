#include "store/query.h"

#include <algorithm>
#include <optional>

#include "base/dates.h"
#include "base/errors.h"
#include "base/numbers.h"
#include "store/scanner.h"

namespace store {
namespace {

using base::ErrorNumber;
using base::RuntimeError;

// Far above any text in use, and below what SQLite allows an expression.
constexpr int kMostTerms = 200;
constexpr int kDeepest = 50;

[[noreturn]] void failOn(ErrorNumber number, const QString& name) {
    throw RuntimeError(number, base::errorText(number, name));
}

/// A literal as the text has it.
struct Literal {
    QString text;
    bool isNumber;
};

Bound numberBound(const Literal& literal, const Field& field) {
    bool whole = false;
    const qint64 number = literal.text.trimmed().toLongLong(&whole);
    if (whole) {
        return number;
    }
    if (!base::isNumeric(literal.text)) {
        failOn(ErrorNumber::TypeMismatch, field.name);
    }
    return base::toNumber(literal.text);
}

Bound dateBound(const Literal& literal, const Field& field) {
    const auto date = base::readDate(literal.text, QDate());
    if (literal.isNumber || !date) {
        failOn(ErrorNumber::TypeMismatch, field.name);
    }
    return date->toString(Qt::ISODate).toUtf8();
}

Bound boundFor(const Literal& literal, const Field& field) {
    switch (field.kind) {
        case FieldKind::Number:
            return numberBound(literal, field);
        case FieldKind::Date:
            return dateBound(literal, field);
        case FieldKind::Text:
            break;
    }
    return literal.text.toUtf8();
}

/// Reads conditions by recursive descent and writes their SQL as it goes.
class ConditionReader {
public:
    ConditionReader(Scanner& scanner, const Table& table, int firstParameter)
        : scanner_(scanner), table_(table), nextParameter_(firstParameter) {}

    Condition read() {
        readOr();
        if (!condition_.plain) {
            condition_.fixed.clear();
        }
        return std::move(condition_);
    }

private:
    void write(const char* sql) { condition_.sql += sql; }

    void readOr() {
        write("(");
        readAnd();
        while (scanner_.word(u"OR")) {
            condition_.plain = false;
            write(" OR ");
            readAnd();
        }
        write(")");
    }

    void readAnd() {
        readTerm();
        while (scanner_.word(u"AND")) {
            write(" AND ");
            readTerm();
        }
    }

    void readTerm() {
        if (++terms_ > kMostTerms || ++depth_ > kDeepest) {
            scanner_.fail();
        }
        if (scanner_.word(u"NOT")) {
            condition_.plain = false;
            write("NOT ");
            readTerm();
        } else if (scanner_.sign(u"(")) {
            readOr();
            scanner_.expectSign(u")");
        } else {
            readComparison();
        }
        --depth_;
    }

    void readComparison() {
        const int place = readField();
        if (scanner_.word(u"IS")) {
            const bool negated = scanner_.word(u"NOT");
            scanner_.expectWord(u"NULL");
            condition_.sql += table_.column(place) + (negated ? " IS NOT NULL" : " IS NULL");
        } else if (scanner_.word(u"NOT")) {
            scanner_.expectWord(u"LIKE");
            write("NOT ");
            readLike(place);
        } else if (scanner_.word(u"LIKE")) {
            readLike(place);
        } else {
            readRelation(place);
        }
    }

    void readLike(int place) {
        condition_.plain = false;
        const std::optional<QString> pattern = scanner_.quotedText();
        if (!pattern) {
            scanner_.fail();
        }
        const QByteArray column = table_.column(place);
        const bool isDate = fieldAt(place).kind == FieldKind::Date;
        write("RESSEMBLE(");
        writeParameter(pattern->toUtf8());
        condition_.sql += isDate ? ",strftime('%d/%m/%Y'," + column + "))" : ',' + column + ')';
    }

    void readRelation(int place) {
        static constexpr std::u16string_view kRelations[] = {u"<>", u"<=", u">=", u"=", u"<", u">"};
        const auto relation = std::ranges::find_if(kRelations, [this](auto sign) { return scanner_.sign(sign); });
        if (relation == std::end(kRelations)) {
            scanner_.fail();
        }
        condition_.sql += table_.column(place) + QStringView(*relation).toUtf8();
        writeParameter(boundFor(readLiteral(), fieldAt(place)));
        if (*relation == u"=") {
            condition_.fixed.push_back(place);
        }
    }

    int readField() {
        const std::optional<QString> name = scanner_.name();
        if (!name) {
            scanner_.fail();
        }
        const int place = table_.place(*name);
        if (place < 0) {
            failOn(ErrorNumber::UnknownParameter, *name);
        }
        return place;
    }

    Literal readLiteral() {
        if (const auto text = scanner_.quotedText()) {
            return {*text, false};
        }
        if (const auto number = scanner_.number()) {
            return {*number, true};
        }
        scanner_.fail();
    }

    void writeParameter(Bound value) {
        condition_.sql += '?' + QByteArray::number(nextParameter_++);
        condition_.literals.push_back(std::move(value));
    }

    const Field& fieldAt(int place) const { return table_.fields[static_cast<std::size_t>(place)]; }

    Scanner& scanner_;
    const Table& table_;
    int nextParameter_;
    int terms_ = 0;
    int depth_ = 0;
    Condition condition_;
};

const Table& readTable(Scanner& scanner) {
    const std::optional<QString> name = scanner.tableName();
    if (!name) {
        scanner.fail();
    }
    const Table* table = findTable(*name);
    if (table == nullptr) {
        failOn(ErrorNumber::UnknownTable, *name);
    }
    return *table;
}

OrderField readOrderField(Scanner& scanner, const Table& table) {
    const std::optional<QString> name = scanner.name();
    if (!name) {
        scanner.fail();
    }
    const int place = table.place(*name);
    if (place < 0) {
        failOn(ErrorNumber::UnknownParameter, *name);
    }
    const bool descending = scanner.word(u"DESC");
    if (!descending) {
        scanner.word(u"ASC");
    }
    return {place, descending};
}

std::vector<OrderField> readOrder(Scanner& scanner, const Table& table) {
    std::vector<OrderField> order;
    scanner.expectWord(u"BY");
    do {
        const OrderField field = readOrderField(scanner, table);
        if (std::ranges::find(order, field.place, &OrderField::place) == order.end()) {
            order.push_back(field);
        }
    } while (scanner.sign(u","));
    return order;
}

}  // namespace

Query readQuery(QStringView text) {
    Scanner scanner(text);
    scanner.expectWord(u"SELECT");
    scanner.expectSign(u"*");
    scanner.expectWord(u"FROM");
    const Table& table = readTable(scanner);
    Query query{&table, {}, {}};
    if (scanner.word(u"WHERE")) {
        query.condition = ConditionReader(scanner, table, 1).read();
    }
    if (scanner.word(u"ORDER")) {
        query.order = readOrder(scanner, table);
    }
    scanner.expectEnd();
    return query;
}

Condition readCriterion(QStringView text, const Table& table, int firstParameter) {
    Scanner scanner(text);
    Condition condition = ConditionReader(scanner, table, firstParameter).read();
    scanner.expectEnd();
    return condition;
}

}  // namespace store
