#include "exams/report_head.h"

#include "responses/introduction.h"

namespace exams {

reports::Letterhead letterheadOf(const ExamLife& life) {
    const dossier::Form4& head = life.dossierWindow();
    return {head.TxtEta.text(), head.TxtNom.text(), head.TxtAdress.text(), head.TxtVille.text(), head.TxtTel.text()};
}

reports::Patient patientOf(const ExamLife& life) {
    const dossier::Form4& head = life.dossierWindow();
    return {head.LblCivilite.text(), head.PrenomLbl.text(), head.NomLbl.text()};
}

QString introductionOf(const ExamLife& life) {
    try {
        return responses::Introduction(life.around().programFolder).read();
    } catch (const base::RuntimeError&) {
        return {};
    }
}

}  // namespace exams
