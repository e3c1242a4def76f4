#pragma once

#include <QString>
#include <cstdint>

namespace base {

/// The number at the start of a text, with the point as decimal mark: "12.5 mm" is 12.5, "12,5" is 12. A text that
/// starts with no digit (a blank, a sign, a point, a letter, nothing) is 0.
double leadingNumber(QStringView text);

/// Whether the whole text is a number in the French form: blanks around, a sign, digits, a comma or a point.
bool isNumeric(QStringView text);

/// The number that a text in the French form holds. Throws TypeMismatch for a text that isn't numeric.
double toNumber(QStringView text);

/// The nearest whole number; ties go to the even one (2.5 is 2, 3.5 is 4).
double roundHalfEven(double value);

/// The nearest 16-bit number (-32768 to 32767), ties to even. Throws Overflow outside.
std::int16_t toInt16(double value);

/// The nearest 32-bit number, ties to even. Throws Overflow outside.
std::int32_t toInt32(double value);

/// A number as text in the French form: decimal comma, no grouping, no trailing zeros ("12,3", "12", "-0,5").
QString decimalText(double value);

/// A dossier or exam number as it is joined into a query: the whole number at the start of the text, blanks before it
/// set aside, as text; "0" if there is none.
QString queryNumber(QStringView text);

}  // namespace base
