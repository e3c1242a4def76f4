#include "gyneco/gynaecology_reports.h"

#include "exams/report_head.h"

namespace gyneco {

reports::GynaecologyExam examOnShow(const Form18& view, const exams::ExamLife& life) {
    reports::GynaecologyExam exam{.letterhead = exams::letterheadOf(life),
                                  .patient = exams::patientOf(life),
                                  .device = {view.LblMachine.text(), view.LblDateCirc.text()},
                                  .TxtDate = view.TxtDate.text(),
                                  .CmbMedecin = view.CmbMedecin.text(),
                                  .CmbModExam = view.CmbModExam.text(),
                                  .CmbCondExam = view.CmbCondExam.text(),
                                  .TxtGyneco = {},
                                  .TxtJStim = view.TxtJStim.text(),
                                  .TxtDimD = view.TxtDimD.text(),
                                  .TxtNbrFolD = view.TxtNbrFolD.text(),
                                  .TxtTFolD = view.TxtTFolD.text(),
                                  .TxtDimG = view.TxtDimG.text(),
                                  .TxtNbrFolG = view.TxtNbrFolG.text(),
                                  .TxtTFolG = view.TxtTFolG.text(),
                                  .TxtEndom = view.TxtEndom.text()};
    for (int i = 0; i <= kLastShownField; ++i) {
        exam.TxtGyneco.at(static_cast<std::size_t>(i)) = view.TxtGyneco(i).text();
    }
    return exam;
}

}  // namespace gyneco
