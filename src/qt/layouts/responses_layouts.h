#pragma once

#include "qt/form_window.h"
#include "responses/form9.h"

namespace qt {

void layOutForm9(responses::Form9& form, FormWindow& window);

}  // namespace qt
