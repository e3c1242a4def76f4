#pragma once

#include "qt/form_window.h"
#include "shell/form1.h"
#include "shell/form14.h"
#include "shell/form15.h"
#include "shell/form21.h"
#include "shell/form22.h"

namespace qt {

void layOutForm1(shell::Form1& form, FormWindow& window);
void layOutForm14(shell::Form14& form, FormWindow& window);
void layOutForm15(shell::Form15& form, FormWindow& window);
void layOutForm21(shell::Form21& form, FormWindow& window);
void layOutForm22(shell::Form22& form, FormWindow& window);

}  // namespace qt
