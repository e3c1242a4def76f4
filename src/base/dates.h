#pragma once

#include <QDate>
#include <QString>
#include <optional>

namespace base {

/// What reads as a date, everywhere in the program: day, month and year parted by slashes, points, dashes or blanks;
/// the month a number or a French name, whole or cut to three letters or more ("1er mars 2002", "01-03-02"). A year has
/// two digits (00 to 29 are 2000 to 2029, 30 to 99 are 1930 to 1999) or four; a date without year is of the year of
/// `today`. The calendar runs to 31/12/9999. Nothing else is a date, nor is a day that its month doesn't have.
std::optional<QDate> readDate(QStringView text, QDate today);

/// The short form of a date: DD/MM/YYYY. Empty for an invalid date.
QString shortDate(QDate date);

}  // namespace base
