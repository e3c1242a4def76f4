#pragma once

#include "exams/later_fields.h"
#include "exams/obstetric_sheet.h"

namespace exams {

/// What the writing and the correction window of the later trimesters have in common beyond every obstetric sheet.
class LaterSheet : public ObstetricSheet {
public:
    /// `rows` say what each field offers in this window; they outlive the sheet.
    LaterSheet(forms::Form& form, ObstetricExams& exams, std::span<const responses::ExamField> rows);

    forms::TextBox TxtNbrE;
    forms::TextBox& txtDatexam = examDate;
    forms::Array<forms::TextBox>& Txt2T = fields;

    /// The morphology of fetus 0, 1 or 2.
    forms::TextBox& morphology(int fetus) { return fields(morphologyIndex(fetus)); }
    static constexpr int morphologyIndex(int fetus) {
        return later::kFirstOfFetus[static_cast<std::size_t>(fetus)] + later::kMorphologyPlace;
    }
};

inline constexpr QStringView kTooManyFetuses = u"Désolé le logiciel ne traite pas plus de 3 foetus";

}  // namespace exams
