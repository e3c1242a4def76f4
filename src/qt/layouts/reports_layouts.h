#pragma once

#include "qt/form_window.h"
#include "reports/riche_t.h"

namespace qt {

void layOutRicheT(reports::RicheT& form, FormWindow& window);

}  // namespace qt
