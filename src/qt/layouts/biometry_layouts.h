#pragma once

#include "biometry/form12.h"
#include "biometry/form13.h"
#include "qt/form_window.h"

namespace qt {

void layOutForm12(biometry::Form12& form, FormWindow& window);
void layOutForm13(biometry::Form13& form, FormWindow& window);

}  // namespace qt
