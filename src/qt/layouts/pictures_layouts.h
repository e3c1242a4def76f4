#pragma once

#include "pictures/form19.h"
#include "pictures/frm_cpr.h"
#include "qt/form_window.h"

namespace qt {

void layOutForm19(pictures::Form19& form, FormWindow& window);
void layOutFrmCpr(pictures::FrmCpr& form, FormWindow& window);

}  // namespace qt
