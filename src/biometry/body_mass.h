#pragma once

#include <QStringView>

#include "biometry/outcome.h"

namespace biometry {

/// `BMI` from a weight in kilograms and a height in centimetres: weight / (height / 100) squared, one decimal, ties to
/// even. "" unless both are numeric. Fails with DivisionByZero for a height of 0.
Outcome bodyMass(QStringView weight, QStringView height);

}  // namespace biometry
