#pragma once

#include <array>

#include "reports/sections.h"

namespace reports {

/// What the viewing window of the second and third trimesters shows of one fetus. A number at the end of a control's
/// name, its index, is left out.
struct Fetus {
    QString TxtPres;
    QString TxtBip;
    QString TxtDio;
    QString TxtCerv;
    QString TxtCc;
    QString TxtDat;
    QString TxtCa;
    QString TxtPied;
    QString TxtFem;
    QString TxtTibia;
    QString TxtHum;
    QString TxtAC;
    QString CmbMa;
    QString TxtArtO;
    QString TxtArtC;
    /// From `Txt1T`, whose indexes do not follow the order of the fetuses.
    QString morphology;
};

/// The percentile words of the first fetus, by the labels of the biometry page.
struct PercentileWords {
    QString LblCBip;
    QString LblCCer;
    QString LblCCc;
    QString LblCDat;
    QString LblCCa;
    QString LblCPied;
    QString LblCFem;
};

/// What the viewing window of the second and third trimesters shows, as it stands, by the names of its controls; from
/// the dossier window the letterhead and the patient; from the biometry page the percentile words.
struct LaterExam {
    Letterhead letterhead;
    Patient patient;
    Device device;
    QString LblIMC;
    QString LblDatExam;
    QString LblDDR;
    QString LblDG;
    QString LblDGUS;
    QString LblAgeGesta;
    QString LblOperateur;
    QString LblModalites;
    QString LblConditions;
    QString TxtIndic;
    QString TxtUterus;
    QString TxtAnnexes;
    QString TxtDouglas;
    QString TxtUtD;
    QString TxtUtG;
    QString TxtNbrE;
    /// `Txt1T(5)` and `Txt1T(6)`.
    QString liquid;
    QString placenta;
    QString TxtConclu1;
    std::array<Fetus, 3> fetuses;
    PercentileWords percentiles;
};

/// The title of the editor while it shows this report.
inline const QString kLaterTrimestersTitle = QStringLiteral("Impression Echo 2ème 3ème trimestre");

/// The report of the second and third trimesters. `introduction` is what the introduction file holds, empty if there is
/// none; nothing where the report is to go without. Fails where the number of fetuses is no whole number.
Report CptRendu2T(const LaterExam& exam, Detail detail, const std::optional<QString>& introduction);

}  // namespace reports
