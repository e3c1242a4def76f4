#include "shell/later_exam_in_view.h"

#include "dossier/form4.h"
#include "exams/later_trimesters_reports.h"

namespace shell {

biometry::Exam LaterExamInView::exam() const {
    biometry::Exam exam;
    if (const auto* view = desk_.peek<exams::Form10>()) {
        exam = exams::measuredExam(*view);
    }
    if (const auto* dossier = desk_.peek<dossier::Form4>()) {
        exam.civility = dossier->LblCivilite.text();
        exam.dossierNumber = dossier->NumLbl.text();
    }
    return exam;
}

}  // namespace shell
