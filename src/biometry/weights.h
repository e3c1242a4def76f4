#pragma once

#include <QString>

#include "biometry/medians.h"
#include "biometry/outcome.h"

namespace biometry {

/// The refusal of a weight that lacks a measure.
inline constexpr QStringView kWeightNeedsMessage =
    u"Veuillez saisir une valeur pour Circonf. céphalique, Circonf. abdominale et Fémur.";

/// The refusal of ratios that lack a measure.
inline constexpr QStringView kRatiosNeedMessage = u"Veuillez saisir une valeur pour Pied, Fémur, Orbites et Bip";

/// The estimated fetal weight from the texts of the head circumference, the abdominal circumference and the femur, in
/// millimetres, by their leading numbers: (cc² x 0.053 + ca² x 0.32) x fem / 1000 as whole grams, ties to even,
/// followed by " g". Refuses if one of them is "". Source: the practice's formula, which names none.
Outcome estimatedWeight(QStringView cc, QStringView ca, QStringView fem);

/// The same formula on the median boxes, from week 16 to 41 of amenorrhoea inclusive; "" outside.
QString theoreticalWeight(double week, const Medians& boxes);

/// One ratio of two measures by their leading numbers, two decimals, thousands grouped; a tie goes up. Leaves the field
/// if either is "", fails with DivisionByZero if the second is 0.
Outcome ratio(QStringView of, QStringView to);

/// The two ratios of the calculator, each with its own failure.
struct Ratios {
    Outcome footToFemur;
    Outcome orbitToBip;
};

/// Both ratios, or both refused if one of the four measures is "".
Ratios ratios(QStringView pied, QStringView fem, QStringView orb, QStringView bip);

}  // namespace biometry
