#pragma once

#include "dossier/form4.h"
#include "qt/form_window.h"

namespace qt {

void layOutForm4(dossier::Form4& form, FormWindow& window);

}  // namespace qt
