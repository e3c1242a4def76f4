// Query texts: each is refused by one of four errors, or becomes a condition that holds no text of the input.

#include "store/query.h"

#include "base/errors.h"
#include "target.h"

namespace {

using base::ErrorNumber;

bool isRefusal(ErrorNumber number) {
    return number == ErrorNumber::QuerySyntax || number == ErrorNumber::UnknownTable ||
           number == ErrorNumber::UnknownParameter || number == ErrorNumber::TypeMismatch;
}

void check(const store::Condition& condition, const QString& text) {
    fuzz::demand(!condition.sql.contains('\'') && !condition.sql.contains(';') && !condition.sql.contains("--"),
                 "a condition holds neither a text nor a second statement", text);
    fuzz::demand(condition.sql.isEmpty() || condition.sql.count('(') == condition.sql.count(')'),
                 "the brackets of a condition match", text);
    fuzz::demand(condition.literals.size() <= static_cast<std::size_t>(text.size()), "each literal was in the text",
                 text);
}

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const QString text = QString::fromUtf8(fuzz::bytes(data, size));
    try {
        const store::Query query = store::readQuery(text);
        check(query.condition, text);
        check(store::readCriterion(text, *query.table, 1), text);
    } catch (const base::RuntimeError& error) {
        fuzz::demand(isRefusal(error.number()), "a text is refused for its form", text);
    }
    return 0;
}
