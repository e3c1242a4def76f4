#pragma once

#include <QString>

#include "store/state.h"

namespace dossier {

/// Deletes a dossier in three files: the patient, the first record of her history, her obstetric exams, her
/// gynaecological exams. A failure leaves what is deleted already, and its error says what that is. `DbEcho` and `Rs`
/// serve the steps; `Rs` is left on the last of them.
void deleteDossier(store::State& state, const QString& number);

}  // namespace dossier
