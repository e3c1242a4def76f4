#pragma once

#include <QDate>
#include <QString>
#include <array>

#include "biometry/exam_in_view.h"
#include "biometry/percentiles.h"

namespace biometry {

/// The measures as the page has them, in reading order.
inline constexpr std::array<Measure, kMeasureCount> kPageOrder{Measure::Bip, Measure::Cc,  Measure::Orb,
                                                               Measure::Cer, Measure::Dat, Measure::Ca,
                                                               Measure::Fem, Measure::Hum, Measure::Pied};

/// The fetus whose panel is in view: 1 to 3 by panel (2 or 3 before 1, 3 before 2), 0 where the first panel shows and
/// the count doesn't read above 1, or no panel shows.
int fetusInView(const Exam& exam);

/// Where the measures of fetus 0 to 3 stand in `Exam::fetuses`: a lone fetus (0) is the first.
constexpr std::size_t placeOf(int fetus) {
    return fetus > 1 ? static_cast<std::size_t>(fetus - 1) : 0;
}

/// The printable page of an exam's biometry.
struct Page {
    /// Civility, surname and first name, parted by two blanks.
    QString patient;
    QString start;
    /// The whole week of amenorrhoea by which the measures are classified; "" if the exam gives none.
    QString week;
    QString examDate;
    /// 0 for a lone fetus, 1 to 3 otherwise, and what the page says of it.
    int fetus = 0;
    QString fetusLine;
    Measures measures;
    /// The percentile label of each measure; that of the orbital diameter is always empty.
    std::array<PercentileLabel, kMeasureCount> labels;
    /// Foot to femur; a single blank if one is missing. Orbital to biparietal diameter; "" if one is missing. Two
    /// decimals; also blank where the second measure is 0.
    QString footToFemur;
    QString orbitToBip;
    /// Grams, followed by " g"; "" if a measure is missing, or the week has no theoretical weight.
    QString weight;
    QString theoreticalWeight;

    const QString& measure(Measure which) const { return measures[indexOf(which)]; }
    const QString& percentile(Measure which) const { return labels[indexOf(which)].text; }
};

/// The page of this fetus (0 to 3) of the exam. `today` dates an exam whose own date is none. Throws Overflow for a
/// measure or a number of days beyond 16 bits, InvalidCall for a date that leaves the calendar.
Page page(const Exam& exam, int fetus, QDate today);

}  // namespace biometry
