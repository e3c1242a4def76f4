#pragma once

#include "forms/control.h"

namespace dossier {

/// Turns the letters a to z into capitals as they are typed; other letters stay.
void capitals(forms::KeyPress& key);

/// Swallows all but the digits.
void digitsOnly(forms::KeyPress& key);

}  // namespace dossier
