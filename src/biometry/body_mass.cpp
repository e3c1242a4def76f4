#include "biometry/body_mass.h"

#include "base/numbers.h"

namespace biometry {

Outcome bodyMass(QStringView weight, QStringView height) {
    if (!base::isNumeric(weight) || !base::isNumeric(height)) {
        return Outcome::write({});
    }
    const double centimetres = base::toNumber(height);
    if (centimetres == 0) {
        return Outcome::fail(base::ErrorNumber::DivisionByZero);
    }
    // In tenths, from whole numbers: the metre squared is seldom exact in binary, and would hide the ties.
    const double tenths = base::toNumber(weight) * 100'000 / (centimetres * centimetres);
    return Outcome::write(base::decimalText(base::roundHalfEven(tenths) / 10));
}

}  // namespace biometry
