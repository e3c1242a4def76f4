#pragma once

#include "biometry/exam_in_view.h"

/// An exam at 22 whole weeks (140 days and two weeks) of one fetus; a second and a third stand ready.
inline biometry::Exam sampleExam() {
    biometry::Exam exam;
    exam.civility = "Madame";
    exam.surname = "DUPONT";
    exam.firstName = "Marie";
    exam.dossierNumber = "2";
    exam.examNumber = "3";
    exam.start = "01/01/2002";
    exam.examDate = "21/05/2002";
    exam.fetusCount = "1";
    exam.panels = {true, false, false};
    // Bip, Cc, Dat, Ca, Fem, Pied, Hum, Cer, Orb
    exam.fetuses[0] = {"53", "196", "52", "173", "38", "38", "35", "23", "24"};
    exam.fetuses[1] = {"47", "217", "59", "160", "33", "37", "40", "24", "22"};
    exam.fetuses[2] = {"60", "", "", "", "", "", "", "", ""};
    return exam;
}
