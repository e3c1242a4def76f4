#include "reports/first_trimester.h"

namespace reports {
namespace {

const QString kTitle = QStringLiteral("ECHOGRAPHIE du 1° Ter");
constexpr int kSectionIndent = 10;

QString measure(const QString& caption, const QString& value, const QString& unit = {}) {
    return blanks(15) + caption + value + unit + kLineEnd;
}

QString group(const QString& title) {
    return blanks(10) + title + kLineEnd;
}

// `gap` stands between the groups.
QString embryoText(const Embryo& embryo, const QString& gap) {
    const QString mm = QStringLiteral(" mm");
    return group(QStringLiteral("BIOMETRIE")) +
           measure(QStringLiteral("Longueur cranio-caudale: "), embryo.LblLCC, mm) +
           measure(QStringLiteral("Bi Pariétal: "), embryo.LblBip, mm) +
           measure(QStringLiteral("Fémur: "), embryo.LblFem, mm) + measure(QStringLiteral("OPN: "), embryo.LblOPN) +
           measure(QStringLiteral("Clarté nucale: "), embryo.LblNuque, mm) + gap + group(QStringLiteral("ACTIVITE")) +
           measure(QStringLiteral("Rythme cardiaque: "), embryo.LblAC, QStringLiteral(" bat/mn")) +
           measure(QStringLiteral("Mouvements actifs: "), embryo.LblMA) + gap + group(QStringLiteral("MORPHOLOGIE")) +
           blanks(15) + embryo.TxtMorpho;
}

QString multipleText(const FirstTrimesterExam& exam, const QString& each, std::size_t count) {
    QStringList texts;
    for (std::size_t k = 0; k < count; ++k) {
        texts << QStringLiteral("%1 N°%2 :").arg(each).arg(k + 1) + kLineEnd + embryoText(exam.embryos[k], {});
    }
    return texts.join(lineEnds(2));
}

/// The text on the embryos; none where their number is unusual.
std::optional<QString> embryonText(const FirstTrimesterExam& exam, int count) {
    const QString number = QStringLiteral("Nombre : ") + exam.LblNbrE + lineEnds(2);
    if (count <= 1) {
        return number + embryoText(exam.embryos[0], kLineEnd);
    }
    if (count == 2) {
        return number + multipleText(exam, QStringLiteral("JUMEAU"), 2);
    }
    if (count == 3) {
        return number + multipleText(exam, QStringLiteral("TRIPLE"), 3);
    }
    return std::nullopt;
}

void addHeader(Writer& writer, const FirstTrimesterExam& exam, const std::optional<QString>& introduction) {
    addObstetricHeader(writer, {exam.letterhead, kTitle, exam.device, introduction, exam.patient});
}

void addDates(Writer& writer, const FirstTrimesterExam& exam) {
    writer.text(QStringLiteral("BMI : ") + exam.LblIMC + kLineEnd);
    writer.text(QStringLiteral("Date de l'examen : ") + exam.LblDatExam + kLineEnd);
    writer.text(QStringLiteral("Date des dernières règles : ") + exam.LblDDR + kLineEnd);
    writer.text(QStringLiteral("Début présumé de la grossesse : ") + exam.LblDG + kLineEnd);
}

void addConclusion(Writer& writer, const FirstTrimesterExam& exam) {
    writer.heading(QStringLiteral("CONCLUSION") + kLineEnd);
    writer.item(exam.TxtConclu1);
    writer.item(QStringLiteral("Age gestationnel estimé par échographie: ") + exam.LblAgeGesta);
    writer.item(QStringLiteral("Début de grossesse estimé par échographie: ") + exam.LblDGUS).text(lineEnds(3));
}

void addSac(Writer& writer, const FirstTrimesterExam& exam) {
    writer.heading(QStringLiteral("SAC GESTATIONNEL :") + kLineEnd);
    writer.item(QStringLiteral("Situation : ") + exam.LblSituation);
    writer.item(QStringLiteral("Nombre : ") + exam.LblNbrE);
    writer.item(QStringLiteral("Aspect : ") + exam.LblAspect);
    writer.item(QStringLiteral("Dimensions : ") + exam.LblDim + QStringLiteral(" mm.")).text(kLineEnd);
}

void addDatedEmbryo(Writer& writer, const FirstTrimesterExam& exam) {
    const Embryo& embryo = exam.embryos[0];
    const QString mm = QStringLiteral(" mm.");
    writer.heading(QStringLiteral("EMBRYON :") + kLineEnd);
    writer.item(QStringLiteral("Nombre : ") + exam.LblNbrE);
    writer.item(QStringLiteral("LCC : ") + embryo.LblLCC + mm);
    writer.item(QStringLiteral("Activité cardiaque : ") + embryo.LblAC);
    writer.item(QStringLiteral("Mouvements actifs : ") + embryo.LblMA);
    writer.item(QStringLiteral("Diamètre Bipariétal : ") + embryo.LblBip + mm);
    writer.item(QStringLiteral("Fémur : ") + embryo.LblFem + mm).text(kLineEnd);
}

void addDatingConclusion(Writer& writer, const FirstTrimesterExam& exam) {
    writer.heading(QStringLiteral("CONCLUSION") + kLineEnd);
    writer.item(QStringLiteral("Age gestationnel estimé par échographie : ") + exam.LblAgeGesta);
    writer.text(blanks(10) + QStringLiteral("Début de grossesse estimé par échographie : Le "));
    writer.heading(exam.LblDGUS + kLineEnd);
    writer.item(exam.TxtConclu1).text(lineEnds(3));
}

}  // namespace

Report CptRendu1T(const FirstTrimesterExam& exam, Detail detail, const std::optional<QString>& introduction) {
    if (detail == Detail::Minimum) {
        FirstTrimesterExam reduced = exam;
        for (Embryo& embryo : reduced.embryos) {
            embryo.TxtMorpho = kExaminedSentence;
        }
        return CptRendu1T(reduced, Detail::Full, introduction);
    }
    Writer writer;
    addHeader(writer, exam, introduction);
    addDates(writer, exam);
    writer.text(QStringLiteral("Début de grossesse (datation échographique) : ") + exam.LblDGUS + lineEnds(2));
    addExam(writer, exam.TxtIndic, exam.LblModalites, exam.LblConditions);
    addPelvis(writer, exam.TxtUterus, exam.TxtAnnexes, exam.TxtDouglas);
    writer.heading(QStringLiteral("EMBRYON") + kLineEnd + blanks(10));
    try {
        if (const auto text = embryonText(exam, readCount(exam.LblNbrE))) {
            writer.text(*text + lineEnds(2));
        }
    } catch (const base::RuntimeError& error) {
        return writer.fail(error.number());
    }
    addIndented(writer, QStringLiteral("LIQUIDE AMNIOTIQUE"), kSectionIndent, exam.TxtLA + lineEnds(2));
    addIndented(writer, QStringLiteral("TROPHOBLASTE ou PLACENTA"), kSectionIndent, exam.TxtPl + lineEnds(2));
    addConclusion(writer, exam);
    addSignature(writer, exam.LblOperateur, exam.LblDatExam);
    return writer.finish();
}

Report CptRenduDat(const FirstTrimesterExam& exam) {
    Writer writer;
    addHeader(writer, exam, std::nullopt);
    addDates(writer, exam);
    writer.text(QStringLiteral("Age gestationnel présumé : A determiner.") + lineEnds(2));
    addExam(writer, exam.TxtIndic, exam.LblModalites, exam.LblConditions);
    addSac(writer, exam);
    addDatedEmbryo(writer, exam);
    writer.heading(QStringLiteral("TROPHOBLASTE ou PLACENTA :") + kLineEnd);
    writer.item(exam.TxtPl).text(kLineEnd);
    addDatingConclusion(writer, exam);
    addSignature(writer, exam.LblOperateur, exam.LblDatExam);
    return writer.finish();
}

}  // namespace reports
