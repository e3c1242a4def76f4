#pragma once

#include "exams/exam_life.h"
#include "gyneco/form18.h"
#include "reports/gynaecology.h"

namespace gyneco {

/// The exam that the viewing window shows, as its reports tell it, with the head of the dossier window.
reports::GynaecologyExam examOnShow(const Form18& view, const exams::ExamLife& life);

}  // namespace gyneco
