#pragma once

#include "exams/exam_life.h"
#include "exams/form6.h"
#include "reports/first_trimester.h"

namespace exams {

/// The exam that the viewing window shows, as a report tells it, with the head of the dossier window.
reports::FirstTrimesterExam examOnShow(const Form6& view, const ExamLife& life);

}  // namespace exams
