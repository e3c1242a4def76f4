#pragma once

#include <QDate>
#include <QStringView>

#include "biometry/outcome.h"

namespace biometry {

// What turns one date or age of a pregnancy into another. Dates are texts as they stand in their fields; `today` gives
// the year of a date typed without one. Failures are TypeMismatch (the exam date is no date), Overflow (the days
// between two dates leave 16 bits) and InvalidCall (a date leaves the calendar).

/// Shown for every failed date arithmetic by the windows that recover from it.
inline constexpr QStringView kDateFormatMessage = u"Veuillez saisir les dates selon le format JJ/MM/AA";

/// The refusal of a crown-rump length above 85 mm.
inline constexpr QStringView kCrownRumpTooLongMessage =
    u"Valeur de LCC trop élevée, Calculez l 'âge gestationnel à l'aide du Fémur et du Bip";

/// `DG` from `DDR`: 14 days later. Leaves the field if `DDR` is no date.
Outcome theoreticalStart(QStringView ddr, QDate today);

/// `AGESTA` as weeks of amenorrhoea, two more than since the start, with the days (0 to 6) behind the comma: 12 weeks
/// 3 days is "12,3". "" if the start is no date. A start after the exam gives a low or negative age.
Outcome ageText(QStringView start, QStringView examDate, QDate today);

/// `AGESTA` as the correction window writes it: the number of `ageText` rounded to a whole one, ties to even. "" if
/// `dgus` is no date.
Outcome roundedAge(QStringView dgus, QStringView examDate, QDate today);

/// `DGUS` from a crown-rump length in whole millimetres, counted back from today, whenever the exam was. Leaves the
/// field if the text is "", refuses a length above 85 or beyond 16 bits. A length without a row counts 0 days. Fails
/// with TypeMismatch if the text is no number. Source: the practice's dating table, `biometry/tables/crown_rump.h`.
Outcome startFromCrownRump(QStringView lcc, QDate today);

/// `SAF3`, the whole week of amenorrhoea by which measures are looked up: 3 days round down, 4 up. Leaves the field
/// unless both texts are dates.
Outcome wholeWeek(QStringView start, QStringView day, QDate today);

}  // namespace biometry
