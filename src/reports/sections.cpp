#include "reports/sections.h"

#include "base/numbers.h"

namespace reports {

using forms::Alignment;

const QString kExaminedSentence = QStringLiteral(
    "Ont été examinés : la tête et ses structures, l'abdomen et ses organes, le thorax, le rachis et les membres. Il "
    "n'a pas été mis en évidence d'anomalie compte tenu des limites actuelles de l'échographie, de la position "
    "foetale, des conditions maternelles et des circonstances de l'examen.");

void addLetterhead(Writer& writer, const Letterhead& letterhead) {
    writer.align(Alignment::Centre).size(14).bold(true);
    writer.text(letterhead.TxtEta + kLineEnd + letterhead.TxtNom + kLineEnd);
    writer.size(12).text(letterhead.TxtAdress + kLineEnd + letterhead.TxtVille + kLineEnd);
    writer.bold(false).text(letterhead.TxtTel + lineEnds(2));
}

void addTitle(Writer& writer, const QString& title, const Device& device, int gap) {
    writer.size(14).text(title + kLineEnd);
    writer.size(10).text(QStringLiteral("Appareil: ") + device.LblMachine + kLineEnd);
    writer.text(QStringLiteral("1ère mise en service le ") + device.LblDateCirc + lineEnds(gap));
}

void addIntroduction(Writer& writer, const QString& introduction) {
    writer.align(Alignment::Left).size(12).text(introduction + lineEnds(3));
}

void addPatient(Writer& writer, const Patient& patient, int indent, int gap) {
    writer.align(Alignment::Left).size(14).bold(true);
    writer.text(blanks(indent) + patient.LblCivilite + u' ' + patient.PrenomLbl + u' ' + patient.NomLbl +
                lineEnds(gap));
    writer.size(12).bold(false);
}

void addObstetricHeader(Writer& writer, const ObstetricHeader& header) {
    constexpr int kTitleGap = 3;
    constexpr int kPatientIndent = 15;
    constexpr int kPatientGap = 2;
    addLetterhead(writer, header.letterhead);
    addTitle(writer, header.title, header.device, kTitleGap);
    if (header.introduction) {
        addIntroduction(writer, *header.introduction);
    }
    addPatient(writer, header.patient, kPatientIndent, kPatientGap);
}

void addIndented(Writer& writer, const QString& heading, int indent, const QString& text) {
    writer.heading(heading + kLineEnd + blanks(indent)).text(text);
}

void addExam(Writer& writer, const QString& indication, const QString& modalities, const QString& conditions) {
    writer.heading(QStringLiteral("EXAMEN") + kLineEnd);
    writer.item(QStringLiteral("Indication : ") + indication);
    writer.item(QStringLiteral("Modalités : ") + modalities);
    writer.item(QStringLiteral("Conditions : ") + conditions).text(kLineEnd);
}

void addPelvis(Writer& writer, const QString& uterus, const QString& adnexa, const QString& douglas) {
    writer.heading(QStringLiteral("PELVIS") + kLineEnd);
    writer.item(QStringLiteral("Utérus : ") + uterus);
    writer.item(QStringLiteral("Annexes : ") + adnexa);
    writer.item(QStringLiteral("Douglas : ") + douglas).text(kLineEnd);
}

void addSignature(Writer& writer, const QString& who, const QString& date) {
    writer.align(Alignment::Centre).text(who + QStringLiteral(" le ") + date);
}

int readCount(const QString& text) {
    return base::toInt16(base::toNumber(text));
}

}  // namespace reports
