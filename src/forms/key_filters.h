#pragma once

#include "forms/control.h"

/// What some boxes let through of what is typed.
namespace forms {

/// The character as which the Backspace key comes to a filter.
inline constexpr QChar kBackspace{8};

/// Turns the letters a to z into capitals; all else stays.
void capitals(KeyPress& key);

/// Swallows all but the digits and Backspace.
void digitsOnly(KeyPress& key);

}  // namespace forms
