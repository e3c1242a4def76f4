#pragma once

#include "dossier/form2.h"
#include "dossier/form3.h"
#include "qt/form_window.h"

namespace qt {

void layOutForm2(dossier::Form2& form, FormWindow& window);
void layOutForm3(dossier::Form3& form, FormWindow& window);

}  // namespace qt
