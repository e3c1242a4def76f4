#pragma once

#include "biometry/exam_in_view.h"
#include "exams/exam_life.h"
#include "exams/form10.h"
#include "reports/later_trimesters.h"

namespace exams {

/// The exam that the viewing window shows, as its biometry is computed from it, without what the dossier window alone
/// knows of the patient.
biometry::Exam measuredExam(const Form10& view);

/// The exam that the viewing window shows, as its report tells it, with the head of the dossier window and the
/// percentile words of its first fetus. Throws what `biometry::page` throws.
reports::LaterExam examOnShow(const Form10& view, const ExamLife& life);

}  // namespace exams
