#pragma once

#include "pictures/form20.h"
#include "qt/form_window.h"

namespace qt {

void layOutForm20(pictures::Form20& form, FormWindow& window);

}  // namespace qt
