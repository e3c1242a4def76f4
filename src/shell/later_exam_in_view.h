#pragma once

#include "biometry/exam_in_view.h"
#include "forms/desk.h"

namespace shell {

/// The exam that the later family's viewing window shows, with the patient of the dossier window. Neither is loaded
/// for it.
class LaterExamInView final : public biometry::ExamInView {
public:
    explicit LaterExamInView(const forms::Desk& desk) : desk_(desk) {}

    biometry::Exam exam() const override;

private:
    const forms::Desk& desk_;
};

}  // namespace shell
