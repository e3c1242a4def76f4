#include "store/value.h"

#include "base/dates.h"
#include "base/errors.h"
#include "base/numbers.h"

namespace store {
namespace {

qint64 toWhole(double number) {
    constexpr double kLimit = 9223372036854775808.0;  // 2^63
    const double rounded = base::roundHalfEven(number);
    if (!(rounded >= -kLimit && rounded < kLimit)) {
        throw base::RuntimeError(base::ErrorNumber::Overflow);
    }
    return static_cast<qint64>(rounded);
}

struct ToText {
    QString operator()(std::monostate) const { return {}; }
    QString operator()(qint64 number) const { return QString::number(number); }
    QString operator()(double number) const { return base::decimalText(number); }
    QString operator()(const QString& text) const { return text; }
    QString operator()(QDate date) const { return base::shortDate(date); }
};

struct ToNumber {
    qint64 operator()(std::monostate) const { throw base::RuntimeError(base::ErrorNumber::InvalidNull); }
    qint64 operator()(qint64 number) const { return number; }
    qint64 operator()(double number) const { return toWhole(number); }
    qint64 operator()(const QString& text) const {
        bool whole = false;
        const qint64 number = text.toLongLong(&whole);
        return whole ? number : toWhole(base::toNumber(text));
    }
    qint64 operator()(QDate) const { throw base::RuntimeError(base::ErrorNumber::TypeMismatch); }
};

}  // namespace

QString Value::text() const {
    return std::visit(ToText(), data_);
}

qint64 Value::number() const {
    return std::visit(ToNumber(), data_);
}

QDate Value::date() const {
    const auto* date = std::get_if<QDate>(&data_);
    return date != nullptr ? *date : QDate();
}

}  // namespace store
