#include "exams/first_trimester_reports.h"

#include "exams/report_head.h"

namespace exams {
namespace {

reports::Embryo embryoOnShow(const Form6& view, int which) {
    return {.LblLCC = view.LblLCC(which).text(),
            .LblBip = view.LblBip(which).text(),
            .LblFem = view.LblFem(which).text(),
            .LblNuque = view.LblNuque(which).text(),
            .LblOPN = view.LblOPN(which).text(),
            .LblAC = view.LblAC(which).text(),
            .LblMA = view.LblMA(which).text(),
            .TxtMorpho = view.TxtMorpho(which).text()};
}

}  // namespace

reports::FirstTrimesterExam examOnShow(const Form6& view, const ExamLife& life) {
    return {.letterhead = letterheadOf(life),
            .patient = patientOf(life),
            .device = {view.LblMachine.text(), view.LblDateCirc.text()},
            .LblIMC = view.LblIMC.text(),
            .LblDatExam = view.LblDatExam.text(),
            .LblDDR = view.LblDDR.text(),
            .LblDG = view.LblDG.text(),
            .LblAgeGesta = view.LblAgeGesta.text(),
            .LblDGUS = view.LblDGUS.text(),
            .LblOperateur = view.LblOperateur.text(),
            .LblModalites = view.LblModalites.text(),
            .LblConditions = view.LblConditions.text(),
            .LblSituation = view.LblSituation.text(),
            .LblNbrE = view.LblNbrE.text(),
            .LblAspect = view.LblAspect.text(),
            .LblDim = view.LblDim.text(),
            .TxtIndic = view.TxtIndic.text(),
            .TxtUterus = view.TxtUterus.text(),
            .TxtAnnexes = view.TxtAnnexes.text(),
            .TxtDouglas = view.TxtDouglas.text(),
            .TxtPl = view.TxtPl.text(),
            .TxtLA = view.TxtLA.text(),
            .TxtConclu1 = view.TxtConclu1.text(),
            .embryos = {embryoOnShow(view, 0), embryoOnShow(view, 1), embryoOnShow(view, 2)}};
}

}  // namespace exams
