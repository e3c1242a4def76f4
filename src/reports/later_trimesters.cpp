#include "reports/later_trimesters.h"

namespace reports {
namespace {

const QString kTitle = QStringLiteral("ECHOGRAPHIE du 2°- 3° Ter");
constexpr int kSectionIndent = 15;

QString line(const QString& text) {
    return blanks(15) + text + kLineEnd;
}

QString group(const QString& title) {
    return blanks(10) + title + kLineEnd;
}

/// A measure as the report of a lone fetus tells it.
struct LoneMeasure {
    QStringView caption;
    QString Fetus::*value;
    QStringView unit;
    /// None where the measure is not classified.
    QString PercentileWords::*percentile;
};

constexpr std::array kLoneMeasures{
    LoneMeasure{u"Bi-Pariétal : ", &Fetus::TxtBip, u" mm.", &PercentileWords::LblCBip},
    LoneMeasure{u"Distance inter orbitaire : ", &Fetus::TxtDio, u" mm.", nullptr},
    LoneMeasure{u"Cervelet : ", &Fetus::TxtCerv, u" mm.", &PercentileWords::LblCCer},
    LoneMeasure{u"Circonférence céphalique : ", &Fetus::TxtCc, u" mm.", &PercentileWords::LblCCc},
    LoneMeasure{u"Diamètre abdominal transverse : ", &Fetus::TxtDat, u" mm.", &PercentileWords::LblCDat},
    LoneMeasure{u"Circonférence abdominale : ", &Fetus::TxtCa, u" mm.", &PercentileWords::LblCCa},
    LoneMeasure{u"Pied : ", &Fetus::TxtPied, u" mm.", &PercentileWords::LblCPied},
    LoneMeasure{u"Fémur: ", &Fetus::TxtFem, u" mm.", &PercentileWords::LblCFem},
    LoneMeasure{u"Tibia : ", &Fetus::TxtTibia, u" mm.", nullptr},
    LoneMeasure{u"Humerus : ", &Fetus::TxtHum, u" mm", nullptr},
};

// An empty measure leaves no gap: each line opens with its line end.
QString loneBiometry(const Fetus& fetus, const PercentileWords& words) {
    QString text = blanks(10) + QStringLiteral("BIOMETRIE");
    for (const LoneMeasure& measure : kLoneMeasures) {
        const QString& value = fetus.*measure.value;
        if (value.isEmpty()) {
            continue;
        }
        text += kLineEnd + blanks(15) + measure.caption.toString() + value + measure.unit.toString();
        if (measure.percentile) {
            text += QStringLiteral(" (") + words.*measure.percentile + QStringLiteral(").");
        }
    }
    return text + lineEnds(2);
}

QString presentation(const Fetus& fetus) {
    return group(QStringLiteral("PRESENTATION : ")) + line(fetus.TxtPres);
}

QString activity(const Fetus& fetus) {
    return line(QStringLiteral("Rythme cardiaque: ") + fetus.TxtAC + QStringLiteral(" bat/mn")) +
           line(QStringLiteral("Mouvements actifs: ") + fetus.CmbMa) + kLineEnd;
}

QString doppler(const Fetus& fetus) {
    return group(QStringLiteral("DOPPLER")) + line(QStringLiteral("Artère Ombilicale : ") + fetus.TxtArtO) +
           blanks(15) + QStringLiteral("Art. Cérebrale Ant. : ") + fetus.TxtArtC;
}

QString loneText(const LaterExam& exam) {
    const Fetus& fetus = exam.fetuses[0];
    const QString text = presentation(fetus) + loneBiometry(fetus, exam.percentiles) +
                         group(QStringLiteral("ACTIVITE")) + activity(fetus) + group(QStringLiteral("MORPHOLOGIE")) +
                         kLineEnd + line(fetus.morphology) + kLineEnd;
    const bool measured = !fetus.TxtArtO.isEmpty() || !fetus.TxtArtC.isEmpty();
    return measured ? text + doppler(fetus) + lineEnds(2) : text;
}

// Of several fetuses every measure is told, an empty one too.
QString biometryOfSeveral(const Fetus& fetus) {
    QString text;
    for (const LoneMeasure& measure : kLoneMeasures) {
        text += line(measure.caption.toString() + fetus.*measure.value + QStringLiteral(" mm"));
    }
    return text + kLineEnd;
}

/// One of several fetuses; `mark` tells its groups from those of the others.
QString textOfSeveral(const Fetus& fetus, const QString& mark) {
    return presentation(fetus) + kLineEnd + group(QStringLiteral("BIOMETRIE ") + mark) + biometryOfSeveral(fetus) +
           group(QStringLiteral("ACTIVITE ") + mark) + activity(fetus) + group(QStringLiteral("MORPHOLOGIE ") + mark) +
           line(fetus.morphology) + kLineEnd + doppler(fetus);
}

QString multipleText(const LaterExam& exam, const QString& each, std::size_t count) {
    QStringList texts;
    for (std::size_t k = 0; k < count; ++k) {
        const QString number = QString::number(k + 1);
        texts << each + QStringLiteral(" N°") + number + QStringLiteral(" :") + kLineEnd +
                     textOfSeveral(exam.fetuses[k], each.front() + number);
    }
    return texts.join(lineEnds(2));
}

/// The text on the fetuses; none where their number is unusual.
std::optional<QString> fetusText(const LaterExam& exam, int count) {
    const QString number = QStringLiteral("Nombre : ") + exam.TxtNbrE + kLineEnd;
    switch (count) {
        case 1:
            return number + loneText(exam);
        case 2:
            return number + multipleText(exam, QStringLiteral("JUMEAU"), 2);
        case 3:
            return number + multipleText(exam, QStringLiteral("TRIPLE"), 3);
        default:
            return std::nullopt;
    }
}

void addDates(Writer& writer, const LaterExam& exam) {
    writer.text(QStringLiteral("BMI : ") + exam.LblIMC + kLineEnd);
    writer.text(QStringLiteral("Date de l'examen : ") + exam.LblDatExam + kLineEnd);
    writer.text(QStringLiteral("Date des dernières règles : ") + exam.LblDDR + kLineEnd);
    writer.text(QStringLiteral("Début présumé de la grossesse : ") + exam.LblDG + kLineEnd);
    writer.text(QStringLiteral("Début de grossesse (US) : ") + exam.LblDGUS + kLineEnd);
    writer.text(QStringLiteral("Age gestationnel : ") + exam.LblAgeGesta + lineEnds(2));
}

// One side alone brings both lines.
void addUterineArteries(Writer& writer, const LaterExam& exam) {
    if (exam.TxtUtD.isEmpty() && exam.TxtUtG.isEmpty()) {
        return;
    }
    writer.heading(QStringLiteral("DOPPLER ART. UTERINES") + kLineEnd);
    writer.item(QStringLiteral("Art. utérine droite : ") + exam.TxtUtD);
    writer.item(QStringLiteral("Art. utérine gauche : ") + exam.TxtUtG).text(kLineEnd);
}

void addFetuses(Writer& writer, const LaterExam& exam) {
    writer.heading(QStringLiteral("FOETUS") + kLineEnd + blanks(10));
    if (const auto text = fetusText(exam, readCount(exam.TxtNbrE))) {
        writer.text(*text + lineEnds(2));
    }
}

void addEnd(Writer& writer, const LaterExam& exam) {
    addIndented(writer, QStringLiteral("LIQUIDE AMNIOTIQUE"), kSectionIndent, exam.liquid + lineEnds(2));
    addIndented(writer, QStringLiteral("PLACENTA"), kSectionIndent, exam.placenta + lineEnds(2));
    addIndented(writer, QStringLiteral("CONCLUSION"), kSectionIndent, exam.TxtConclu1 + lineEnds(4));
    addSignature(writer, exam.LblOperateur, exam.LblDatExam);
}

}  // namespace

Report CptRendu2T(const LaterExam& exam, Detail detail, const std::optional<QString>& introduction) {
    if (detail == Detail::Minimum) {
        LaterExam reduced = exam;
        for (Fetus& fetus : reduced.fetuses) {
            fetus.morphology = kExaminedSentence;
        }
        return CptRendu2T(reduced, Detail::Full, introduction);
    }
    Writer writer;
    addObstetricHeader(writer, {exam.letterhead, kTitle, exam.device, introduction, exam.patient});
    addDates(writer, exam);
    addExam(writer, exam.TxtIndic, exam.LblModalites, exam.LblConditions);
    addPelvis(writer, exam.TxtUterus, exam.TxtAnnexes, exam.TxtDouglas);
    addUterineArteries(writer, exam);
    try {
        addFetuses(writer, exam);
    } catch (const base::RuntimeError& error) {
        return writer.fail(error.number());
    }
    addEnd(writer, exam);
    return writer.finish();
}

}  // namespace reports
