// What a person types into a field: dates, numbers, patterns, names.

#include "base/dates.h"
#include "base/errors.h"
#include "base/numbers.h"
#include "biometry/dating.h"
#include "store/collation.h"
#include "store/like.h"
#include "target.h"

namespace {

const QDate kToday(2002, 6, 14);

void checkDate(const QString& text) {
    const auto date = base::readDate(text, kToday);
    if (date) {
        fuzz::demand(date->isValid() && date->year() <= 9999, "a date is one of the calendar", text);
        fuzz::demand(base::readDate(base::shortDate(*date), kToday) == date, "the short form reads as its date", text);
    }
    biometry::theoreticalStart(text, kToday);
    biometry::ageText(text, QStringLiteral("01/03/2002"), kToday);
    biometry::ageText(QStringLiteral("01/03/2002"), text, kToday);
}

void checkNumber(const QString& text) {
    fuzz::demand(base::leadingNumber(text) >= 0, "a leading number has no sign", text);
    for (const QChar c : base::queryNumber(text)) {
        fuzz::demand(c >= u'0' && c <= u'9', "a number that is joined into a query is of digits", text);
    }
    if (base::isNumeric(text)) {
        base::toNumber(text);
        return;
    }
    try {
        base::toNumber(text);
        fuzz::demand(false, "a text that isn't numeric has no number", text);
    } catch (const base::RuntimeError& error) {
        fuzz::demand(error.number() == base::ErrorNumber::TypeMismatch, "it is refused as of the wrong type", text);
    }
}

int sign(int value) {
    return (value > 0) - (value < 0);
}

void checkOrder(const QByteArray& all) {
    const std::string_view a(all.constData(), static_cast<std::size_t>(all.size() / 2));
    const std::string_view b(all.constData() + all.size() / 2, static_cast<std::size_t>(all.size() - all.size() / 2));
    fuzz::demand(store::compareTexts(a, a) == 0, "a text is equal to itself");
    fuzz::demand(sign(store::compareTexts(a, b)) == -sign(store::compareTexts(b, a)), "the order has no favourite");
    store::Pattern(a).matches(b);
    fuzz::demand(store::Pattern("*").matches(b), "the wild card matches everything");
}

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const QByteArray all = fuzz::bytes(data, size);
    const QString text = QString::fromUtf8(all);
    checkDate(text);
    checkNumber(text);
    checkOrder(all);
    return 0;
}
