#include "exams/later_trimesters_reports.h"

#include "biometry/page.h"
#include "exams/report_head.h"

namespace exams {
namespace {

using biometry::Measure;

biometry::Measures measuresOf(const Form10& view, int fetus) {
    biometry::Measures measures;
    const auto take = [&](Measure measure, const forms::TextBox& box) {
        measures[biometry::indexOf(measure)] = box.text();
    };
    take(Measure::Orb, view.TxtDio(fetus));
    take(Measure::Bip, view.TxtBip(fetus));
    take(Measure::Cc, view.TxtCc(fetus));
    take(Measure::Dat, view.TxtDat(fetus));
    take(Measure::Ca, view.TxtCa(fetus));
    take(Measure::Fem, view.TxtFem(fetus));
    take(Measure::Pied, view.TxtPied(fetus));
    take(Measure::Hum, view.TxtHum(fetus));
    take(Measure::Cer, view.TxtCerv(fetus));
    return measures;
}

// The page of the exam as it stands, whatever the biometry window showed before.
reports::PercentileWords wordsOf(const Form10& view, const ExamLife& life) {
    const biometry::Page page = biometry::page(measuredExam(view), 0, life.around().clock.today());
    return {.LblCBip = page.percentile(Measure::Bip),
            .LblCCer = page.percentile(Measure::Cer),
            .LblCCc = page.percentile(Measure::Cc),
            .LblCDat = page.percentile(Measure::Dat),
            .LblCCa = page.percentile(Measure::Ca),
            .LblCPied = page.percentile(Measure::Pied),
            .LblCFem = page.percentile(Measure::Fem)};
}

reports::Fetus fetusOnShow(const Form10& view, int which) {
    return {.TxtPres = view.TxtPres(which).text(),
            .TxtBip = view.TxtBip(which).text(),
            .TxtDio = view.TxtDio(which).text(),
            .TxtCerv = view.TxtCerv(which).text(),
            .TxtCc = view.TxtCc(which).text(),
            .TxtDat = view.TxtDat(which).text(),
            .TxtCa = view.TxtCa(which).text(),
            .TxtPied = view.TxtPied(which).text(),
            .TxtFem = view.TxtFem(which).text(),
            .TxtTibia = view.TxtTibia(which).text(),
            .TxtHum = view.TxtHum(which).text(),
            .TxtAC = view.TxtAC(which).text(),
            .CmbMa = view.CmbMa(which).text(),
            .TxtArtO = view.TxtArtO(which).text(),
            .TxtArtC = view.TxtArtC(which).text(),
            .morphology = view.morphology(which).text()};
}

}  // namespace

biometry::Exam measuredExam(const Form10& view) {
    return {.civility = {},
            .surname = view.LblNom.text(),
            .firstName = view.LblPrenom.text(),
            .dossierNumber = {},
            .examNumber = view.LblNumEcho.text(),
            .start = view.LblDGUS.text(),
            .examDate = view.LblDatExam.text(),
            .fetusCount = view.TxtNbrE.text(),
            .panels = {view.FrameJ1.visible(), view.FrameJ2.visible(), view.FrameJ3.visible()},
            .fetuses = {measuresOf(view, 0), measuresOf(view, 1), measuresOf(view, 2)}};
}

reports::LaterExam examOnShow(const Form10& view, const ExamLife& life) {
    return {.letterhead = letterheadOf(life),
            .patient = patientOf(life),
            .device = {view.LblMachine.text(), view.LblDateCirc.text()},
            .LblIMC = view.LblIMC.text(),
            .LblDatExam = view.LblDatExam.text(),
            .LblDDR = view.LblDDR.text(),
            .LblDG = view.LblDG.text(),
            .LblDGUS = view.LblDGUS.text(),
            .LblAgeGesta = view.LblAgeGesta.text(),
            .LblOperateur = view.LblOperateur.text(),
            .LblModalites = view.LblModalites.text(),
            .LblConditions = view.LblConditions.text(),
            .TxtIndic = view.TxtIndic.text(),
            .TxtUterus = view.TxtUterus.text(),
            .TxtAnnexes = view.TxtAnnexes.text(),
            .TxtDouglas = view.TxtDouglas.text(),
            .TxtUtD = view.TxtUtD.text(),
            .TxtUtG = view.TxtUtG.text(),
            .TxtNbrE = view.TxtNbrE.text(),
            .liquid = view.Txt1T(5).text(),
            .placenta = view.Txt1T(6).text(),
            .TxtConclu1 = view.TxtConclu1.text(),
            .fetuses = {fetusOnShow(view, 0), fetusOnShow(view, 1), fetusOnShow(view, 2)},
            .percentiles = wordsOf(view, life)};
}

}  // namespace exams
