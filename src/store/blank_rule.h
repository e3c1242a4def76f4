#pragma once

#include <QString>

namespace store {

/// Whether an empty entry of this field of FICHEPATIENT is stored as one blank. It holds for every text field but the
/// obligatory surname, the two that are told by marks, and the two that are skipped when they are no number.
bool blankWhenEmpty(const QString& field);

/// The text as such a field takes it: one blank for none.
QString orBlank(const QString& text);

}  // namespace store
