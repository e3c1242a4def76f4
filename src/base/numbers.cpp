#include "base/numbers.h"

#include <QLocale>
#include <algorithm>
#include <cmath>
#include <limits>
#include <optional>

#include "base/errors.h"

namespace base {
namespace {

bool isDigit(QChar c) {
    return c >= u'0' && c <= u'9';
}

qsizetype digitsFrom(QStringView text, qsizetype at) {
    qsizetype end = at;
    while (end < text.size() && isDigit(text[end])) {
        ++end;
    }
    return end;
}

constexpr qsizetype kExactDigits = 15;

// The number that digits with at most one mark among them write.
double digitsToNumber(QStringView digits) {
    if (digits.size() > kExactDigits) {
        return digits.toString().replace(u',', u'.').toDouble();
    }
    qint64 mantissa = 0;
    qint64 scale = 1;
    bool isFraction = false;
    for (const QChar c : digits) {
        if (!isDigit(c)) {
            isFraction = true;
            continue;
        }
        mantissa = 10 * mantissa + (c.unicode() - u'0');
        scale *= isFraction ? 10 : 1;
    }
    // Both are exact, so that the quotient is the nearest number there is.
    return static_cast<double>(mantissa) / static_cast<double>(scale);
}

struct SignedDigits {
    bool isNegative;
    QStringView digits;
};

std::optional<SignedDigits> readNumber(QStringView text) {
    const QStringView trimmed = text.trimmed();
    const bool isNegative = trimmed.startsWith(u'-');
    const QStringView digits = trimmed.sliced(isNegative || trimmed.startsWith(u'+') ? 1 : 0);
    qsizetype at = digitsFrom(digits, 0);
    qsizetype count = at;
    if (at < digits.size() && (digits[at] == u',' || digits[at] == u'.')) {
        const qsizetype fraction = digitsFrom(digits, at + 1);
        count += fraction - at - 1;
        at = fraction;
    }
    return count > 0 && at == digits.size() ? std::optional(SignedDigits{isNegative, digits}) : std::nullopt;
}

template <class Int>
Int toInteger(double value) {
    const double rounded = roundHalfEven(value);
    if (!(rounded >= std::numeric_limits<Int>::min() && rounded <= std::numeric_limits<Int>::max())) {
        throw RuntimeError(ErrorNumber::Overflow);
    }
    return static_cast<Int>(rounded);
}

}  // namespace

double leadingNumber(QStringView text) {
    qsizetype end = digitsFrom(text, 0);
    if (end == 0) {
        return 0;
    }
    if (end < text.size() && text[end] == u'.') {
        end = digitsFrom(text, end + 1);
    }
    return digitsToNumber(text.first(end));
}

bool isNumeric(QStringView text) {
    return readNumber(text).has_value();
}

double toNumber(QStringView text) {
    const auto number = readNumber(text);
    if (!number) {
        throw RuntimeError(ErrorNumber::TypeMismatch);
    }
    const double size = digitsToNumber(number->digits);
    return number->isNegative ? -size : size;
}

double roundHalfEven(double value) {
    const double below = std::floor(value);
    const double rest = value - below;
    if (rest < 0.5) {
        return below;
    }
    if (rest > 0.5) {
        return below + 1;
    }
    return std::fmod(below, 2) == 0 ? below : below + 1;
}

std::int16_t toInt16(double value) {
    return toInteger<std::int16_t>(value);
}

std::int32_t toInt32(double value) {
    return toInteger<std::int32_t>(value);
}

QString decimalText(double value) {
    static const QLocale french = [] {
        QLocale locale(QLocale::French, QLocale::France);
        locale.setNumberOptions(QLocale::OmitGroupSeparator);
        return locale;
    }();
    return french.toString(value == 0 ? 0.0 : value, 'g', 15);
}

QString queryNumber(QStringView text) {
    // Hundreds of digits are no number of a record, but must stay digits.
    const double number = std::min(leadingNumber(text.trimmed()), std::numeric_limits<double>::max());
    return QString::number(number, 'f', 0);
}

}  // namespace base
