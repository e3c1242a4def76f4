#pragma once

#include <array>

#include "reports/sections.h"

namespace reports {

/// What the viewing window of gynaecology shows, as it stands, by the names of its controls; and from the dossier
/// window the letterhead and the patient.
struct GynaecologyExam {
    Letterhead letterhead;
    Patient patient;
    Device device;
    QString TxtDate;
    QString CmbMedecin;
    QString CmbModExam;
    QString CmbCondExam;
    // The pelvic exam.
    std::array<QString, 22> TxtGyneco;
    // The monitoring of ovulation.
    QString TxtJStim;
    QString TxtDimD;
    QString TxtNbrFolD;
    QString TxtTFolD;
    QString TxtDimG;
    QString TxtNbrFolG;
    QString TxtTFolG;
    QString TxtEndom;
};

/// The titles of the editor while it shows these reports.
inline const QString kPelvicTitle = QStringLiteral("Impression Echo Pelvienne");
inline const QString kOvulationTitle = QStringLiteral("Impression Monitorage Ovulation");

/// The report of a pelvic exam. It can't fail.
Report CptRenduGyneco(const GynaecologyExam& exam);

/// The report of a monitoring of ovulation. It can't fail.
Report CptRenduOvulation(const GynaecologyExam& exam);

}  // namespace reports
