#pragma once

#include "exams/exam_life.h"
#include "reports/sections.h"

namespace exams {

// What every report takes from the dossier window.
reports::Letterhead letterheadOf(const ExamLife& life);
reports::Patient patientOf(const ExamLife& life);

/// What the introduction file says; a file that can't be read counts as missing.
QString introductionOf(const ExamLife& life);

}  // namespace exams
