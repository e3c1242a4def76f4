#pragma once

#include <array>

#include "reports/sections.h"

namespace reports {

/// What the viewing window of the first trimester shows of one embryo. A number at the end of a control's name, its
/// index, is left out.
struct Embryo {
    QString LblLCC;
    QString LblBip;
    QString LblFem;
    QString LblNuque;
    QString LblOPN;
    QString LblAC;
    QString LblMA;
    QString TxtMorpho;
};

/// What the viewing window of the first trimester shows, as it stands, by the names of its controls; and from the
/// dossier window the letterhead and the patient.
struct FirstTrimesterExam {
    Letterhead letterhead;
    Patient patient;
    Device device;
    QString LblIMC;
    QString LblDatExam;
    QString LblDDR;
    QString LblDG;
    QString LblAgeGesta;
    QString LblDGUS;
    QString LblOperateur;
    QString LblModalites;
    QString LblConditions;
    QString LblSituation;
    QString LblNbrE;
    QString LblAspect;
    QString LblDim;
    QString TxtIndic;
    QString TxtUterus;
    QString TxtAnnexes;
    QString TxtDouglas;
    QString TxtPl;
    QString TxtLA;
    QString TxtConclu1;
    std::array<Embryo, 3> embryos;
};

/// The titles of the editor while it shows these reports.
inline const QString kFirstTrimesterTitle = QStringLiteral("Impression Echo 1er Trimestre");
inline const QString kDatingTitle = QStringLiteral("Impression Echo de datation");

/// The full first-trimester report. `introduction` is what the introduction file holds, empty if there is none; nothing
/// where the report is to go without. Fails where the number of embryos is no whole number.
Report CptRendu1T(const FirstTrimesterExam& exam, Detail detail, const std::optional<QString>& introduction);

/// The short report of a dating. It tells of the first embryo alone, and can't fail.
Report CptRenduDat(const FirstTrimesterExam& exam);

}  // namespace reports
