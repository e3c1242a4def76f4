#pragma once

#include "exams/obstetric_sheet.h"

namespace exams {

/// The dating of a new exam: a last period gives the theoretical start, and whichever start changed last gives the age.
/// It hangs its steps on the three fields of the sheet and lives as long as it.
class DatingSteps {
public:
    DatingSteps(ObstetricSheet& sheet, forms::Label& age, ExamLife& life);

    /// Computes the age from the start in this field; a failed arithmetic is told and empties what led to it.
    void ageFrom(int start);

private:
    void startFromLastPeriod();
    void refuse(std::initializer_list<int> cleared);

    ObstetricSheet& sheet_;
    forms::Label& age_;
    ExamLife& life_;
};

}  // namespace exams
