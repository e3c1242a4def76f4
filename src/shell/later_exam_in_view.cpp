#include "shell/later_exam_in_view.h"

#include "exams/later_trimesters_reports.h"

namespace shell {

biometry::Exam LaterExamInView::exam() const {
    const auto* dossier = desk_.peek<dossier::Form4>();
    const auto* view = desk_.peek<exams::Form10>();
    return dossier && view ? exams::measuredExam(*view, *dossier) : biometry::Exam();
}

}  // namespace shell
