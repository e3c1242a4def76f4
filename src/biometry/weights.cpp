#include "biometry/weights.h"

#include <QLocale>
#include <cmath>

#include "base/numbers.h"

namespace biometry {
namespace {

constexpr int kFirstWeighedWeek = 16;
constexpr int kLastWeighedWeek = 41;

// cc² x 0.053 x fem + ca² x 0.32 x fem, in milligrams, with the factors in thousandths: exact for whole millimetres.
QString weightText(QStringView ccText, QStringView caText, QStringView femText) {
    const double cc = base::leadingNumber(ccText);
    const double ca = base::leadingNumber(caText);
    const double grams = (cc * cc * 53 + ca * ca * 320) * base::leadingNumber(femText) / 1'000'000;
    return QString::number(base::roundHalfEven(grams), 'f', 0) + QStringLiteral(" g");
}

// As the number reads in decimal, so that 0.825 is a tie although its binary form lies below it.
double hundredths(double value) {
    return std::round(QString::number(value * 100, 'g', 15).toDouble()) / 100;
}

}  // namespace

Outcome estimatedWeight(QStringView cc, QStringView ca, QStringView fem) {
    if (cc.isEmpty() || ca.isEmpty() || fem.isEmpty()) {
        return Outcome::refuse(kWeightNeedsMessage);
    }
    return Outcome::write(weightText(cc, ca, fem));
}

QString theoreticalWeight(double week, const Medians& boxes) {
    if (week < kFirstWeighedWeek || week > kLastWeighedWeek) {
        return {};
    }
    return weightText(boxes[indexOf(Measure::Cc)], boxes[indexOf(Measure::Ca)], boxes[indexOf(Measure::Fem)]);
}

Outcome ratio(QStringView of, QStringView to) {
    if (of.isEmpty() || to.isEmpty()) {
        return Outcome::leave();
    }
    const double divisor = base::leadingNumber(to);
    if (divisor == 0) {
        return Outcome::fail(base::ErrorNumber::DivisionByZero);
    }
    static const QLocale french(QLocale::French, QLocale::France);
    return Outcome::write(french.toString(hundredths(base::leadingNumber(of) / divisor), 'f', 2));
}

Ratios ratios(QStringView pied, QStringView fem, QStringView orb, QStringView bip) {
    if (pied.isEmpty() || fem.isEmpty() || orb.isEmpty() || bip.isEmpty()) {
        const Outcome refusal = Outcome::refuse(kRatiosNeedMessage);
        return {refusal, refusal};
    }
    return {ratio(pied, fem), ratio(orb, bip)};
}

}  // namespace biometry
