#pragma once

#include "exams/form10.h"
#include "exams/form11.h"
#include "exams/form5.h"
#include "exams/form6.h"
#include "exams/form7.h"
#include "exams/form8.h"
#include "qt/form_window.h"

namespace qt {

void layOutForm5(exams::Form5& form, FormWindow& window);
void layOutForm6(exams::Form6& form, FormWindow& window);
void layOutForm7(exams::Form7& form, FormWindow& window);
void layOutForm8(exams::Form8& form, FormWindow& window);
void layOutForm10(exams::Form10& form, FormWindow& window);
void layOutForm11(exams::Form11& form, FormWindow& window);

}  // namespace qt
