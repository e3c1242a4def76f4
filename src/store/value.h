#pragma once

#include <QDate>
#include <QString>
#include <variant>

namespace store {

/// What a field holds: nothing (null), a whole number, a decimal number, a text or a date.
class Value {
public:
    Value() = default;
    Value(int number) : data_(qint64{number}) {}
    Value(qint64 number) : data_(number) {}
    Value(double number) : data_(number) {}
    Value(const QString& text) : data_(text) {}
    Value(const char* text) : data_(QString::fromUtf8(text)) {}
    Value(QDate date) : data_(date) {}

    bool isNull() const { return std::holds_alternative<std::monostate>(data_); }
    bool isText() const { return std::holds_alternative<QString>(data_); }
    bool isDate() const { return std::holds_alternative<QDate>(data_); }

    /// The value as text: a number in the French form, a date as DD/MM/YYYY, null as nothing. This is what joining the
    /// field to a literal gives, and what a control shows.
    QString text() const;

    /// The value as a whole number, decimals rounded with ties to even; a text through its French form. Throws
    /// InvalidNull for null, TypeMismatch for what is no number, Overflow beyond 64 bits.
    qint64 number() const;

    /// The date, or an invalid one if the value is none.
    QDate date() const;

    bool operator==(const Value&) const = default;

private:
    std::variant<std::monostate, qint64, double, QString, QDate> data_;
};

}  // namespace store
