#include "reports/gynaecology.h"

#include <algorithm>

namespace reports {
namespace {

/// A line on the uterus: the field of `TxtGyneco` between its caption and its unit.
struct UterusLine {
    std::size_t index;
    QStringView caption;
    QStringView unit;
};

constexpr std::array kUterus{
    UterusLine{1, u"Situation : ", u""},
    UterusLine{2, u"Longueur : ", u" mm."},
    UterusLine{3, u"Largeur : ", u" mm."},
    UterusLine{4, u"Epaisseur : ", u" mm."},
    UterusLine{5, u"Echostructure : ", u""},
    UterusLine{6, u"Cavité : ", u""},
    UterusLine{7, u"Endomètre : ", u""},
    UterusLine{8, u"Epaisseur de l'endomètre : ", u" mm."},
    UterusLine{9, u"Dispositif intra utérin : ", u""},
    UterusLine{10, u"Masse : ", u""},
};

void addHeader(Writer& writer, const GynaecologyExam& exam, const QString& title, int titleGap, int patientGap) {
    addLetterhead(writer, exam.letterhead);
    addTitle(writer, title, exam.device, titleGap);
    addPatient(writer, exam.patient, 0, patientGap);
}

void addUterus(Writer& writer, const GynaecologyExam& exam) {
    writer.heading(QStringLiteral("UTERUS :") + kLineEnd);
    for (const UterusLine& line : kUterus) {
        writer.item(line.caption.toString() + exam.TxtGyneco.at(line.index) + line.unit.toString());
    }
    writer.text(kLineEnd);
}

void addPair(Writer& writer, const QString& heading, const QString& right, const QString& left) {
    writer.heading(heading + kLineEnd);
    writer.item(right).item(left).text(kLineEnd);
}

// All five lines, or none of them.
void addMass(Writer& writer, const GynaecologyExam& exam) {
    const auto first = exam.TxtGyneco.begin() + 16;
    const auto end = first + 5;
    if (std::all_of(first, end, [](const QString& line) { return line.isEmpty(); })) {
        return;
    }
    writer.heading(QStringLiteral("MASSE PELVIENNE :") + kLineEnd);
    std::for_each(first, end, [&](const QString& line) { writer.item(line); });
    writer.text(kLineEnd);
}

QString deepLine(const QString& text) {
    return blanks(20) + text + kLineEnd;
}

void addOvary(Writer& writer, const QString& heading, const QString& size, const QString& count,
              const QString& follicles) {
    writer.heading(blanks(10) + heading + kLineEnd);
    writer.text(deepLine(QStringLiteral("Dimensions : ") + size) +
                deepLine(QStringLiteral("Nombre de follicules : ") + count) +
                deepLine(QStringLiteral("Taille des follicules : ") + follicles + QStringLiteral(" mm.")) + kLineEnd);
}

}  // namespace

Report CptRenduGyneco(const GynaecologyExam& exam) {
    const auto& fields = exam.TxtGyneco;
    Writer writer;
    addHeader(writer, exam, QStringLiteral("ECHOGRAPHIE PELVIENNE"), 3, 2);
    writer.text(QStringLiteral("Date de l'examen : ") + exam.TxtDate + lineEnds(2));
    addExam(writer, fields[0], exam.CmbModExam, exam.CmbCondExam);
    addUterus(writer, exam);
    addPair(writer, QStringLiteral("OVAIRES :"), QStringLiteral("Ovaire Droit : ") + fields[11],
            QStringLiteral("Ovaire Gauche : ") + fields[12]);
    addPair(writer, QStringLiteral("TROMPES :"), QStringLiteral("Trompe Droite : ") + fields[13],
            QStringLiteral("Trompe Gauche : ") + fields[14]);
    writer.heading(QStringLiteral("CUL DE SAC DE DOUGLAS :") + kLineEnd).item(fields[15]).text(kLineEnd);
    addMass(writer, exam);
    writer.heading(QStringLiteral("CONCLUSION") + kLineEnd).item(fields[21]).text(kLineEnd);
    addSignature(writer, exam.CmbMedecin, exam.TxtDate);
    return writer.finish();
}

Report CptRenduOvulation(const GynaecologyExam& exam) {
    Writer writer;
    addHeader(writer, exam, QStringLiteral("MONITORAGE ECHOGRAPHIQUE DE L'OVULATION"), 5, 4);
    writer.text(QStringLiteral("Date de l'examen : ") + exam.TxtDate + kLineEnd);
    writer.text(QStringLiteral("Jour de la stimulation : J") + exam.TxtJStim + u'.' + lineEnds(3));
    addOvary(writer, QStringLiteral("OVAIRE DROIT :"), exam.TxtDimD, exam.TxtNbrFolD, exam.TxtTFolD);
    addOvary(writer, QStringLiteral("OVAIRE GAUCHE :"), exam.TxtDimG, exam.TxtNbrFolG, exam.TxtTFolG);
    writer.heading(blanks(10) + QStringLiteral("ENDOMETRE :") + kLineEnd);
    writer.text(deepLine(QStringLiteral("Epaisseur : ") + exam.TxtEndom + QStringLiteral(" mm.")) + lineEnds(3));
    addSignature(writer, exam.CmbMedecin, exam.TxtDate);
    return writer.finish();
}

}  // namespace reports
