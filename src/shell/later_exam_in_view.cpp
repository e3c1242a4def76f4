#include "shell/later_exam_in_view.h"

#include "dossier/form4.h"
#include "exams/form10.h"

namespace shell {
namespace {

using biometry::Measure;

struct MeasureBoxes {
    Measure measure;
    forms::Array<forms::TextBox> exams::Form10::*boxes;
};

constexpr std::array<MeasureBoxes, biometry::kMeasureCount> kMeasureBoxes{{
    {Measure::Orb, &exams::Form10::TxtDio},
    {Measure::Bip, &exams::Form10::TxtBip},
    {Measure::Cc, &exams::Form10::TxtCc},
    {Measure::Dat, &exams::Form10::TxtDat},
    {Measure::Ca, &exams::Form10::TxtCa},
    {Measure::Fem, &exams::Form10::TxtFem},
    {Measure::Pied, &exams::Form10::TxtPied},
    {Measure::Hum, &exams::Form10::TxtHum},
    {Measure::Cer, &exams::Form10::TxtCerv},
}};

void readView(const exams::Form10& view, biometry::Exam& exam) {
    exam.surname = view.LblNom.text();
    exam.firstName = view.LblPrenom.text();
    exam.examNumber = view.LblNumEcho.text();
    exam.start = view.LblDGUS.text();
    exam.examDate = view.LblDatExam.text();
    exam.fetusCount = view.TxtNbrE.text();
    exam.panels = {view.FrameJ1.visible(), view.FrameJ2.visible(), view.FrameJ3.visible()};
    for (std::size_t i = 0; i < biometry::kFetusCount; ++i) {
        for (const auto& [measure, boxes] : kMeasureBoxes) {
            exam.fetuses[i][biometry::indexOf(measure)] = (view.*boxes)(static_cast<int>(i)).text();
        }
    }
}

}  // namespace

biometry::Exam LaterExamInView::exam() const {
    biometry::Exam exam;
    if (const auto* dossier = desk_.peek<dossier::Form4>()) {
        exam.civility = dossier->LblCivilite.text();
        exam.dossierNumber = dossier->NumLbl.text();
    }
    if (const auto* view = desk_.peek<exams::Form10>()) {
        readView(*view, exam);
    }
    return exam;
}

}  // namespace shell
