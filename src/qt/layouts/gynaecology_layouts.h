#pragma once

#include "gyneco/form16.h"
#include "gyneco/form17.h"
#include "gyneco/form18.h"
#include "qt/form_window.h"

namespace qt {

void layOutForm16(gyneco::Form16& form, FormWindow& window);
void layOutForm17(gyneco::Form17& form, FormWindow& window);
void layOutForm18(gyneco::Form18& form, FormWindow& window);

}  // namespace qt
