#pragma once

#include "exams/first_trimester_fields.h"
#include "exams/obstetric_sheet.h"

namespace exams {

/// What the writing and the correction window of the first trimester have in common beyond every obstetric sheet.
class FirstTrimesterSheet : public ObstetricSheet {
public:
    FirstTrimesterSheet(forms::Form& form, ObstetricExams& exams);

    forms::TextBox TxtTypecho;
    forms::Label LblAgeGesta;
    forms::TextBox& TxtDate = examDate;
    forms::Array<forms::TextBox>& Txt1Ter = fields;
};

}  // namespace exams
