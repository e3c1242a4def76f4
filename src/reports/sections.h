#pragma once

#include "reports/writer.h"

namespace reports {

/// The five lines at the head of every report, by the fields of the dossier window.
struct Letterhead {
    QString TxtEta;
    QString TxtNom;
    QString TxtAdress;
    QString TxtVille;
    QString TxtTel;
};

/// The patient, by the labels of the dossier window.
struct Patient {
    QString LblCivilite;
    QString PrenomLbl;
    QString NomLbl;
};

/// The machine, and when it was first put into service.
struct Device {
    QString LblMachine;
    QString LblDateCirc;
};

/// In a minimum report one fixed sentence stands for the morphology of each embryo or fetus.
enum class Detail { Full, Minimum };
extern const QString kExaminedSentence;

/// What stands above an obstetric report.
struct ObstetricHeader {
    const Letterhead& letterhead;
    const QString& title;
    const Device& device;
    /// Nothing where the report goes without.
    const std::optional<QString>& introduction;
    const Patient& patient;
};

// The sections that several reports share.

/// The letterhead: centred, its first four lines bold.
void addLetterhead(Writer& writer, const Letterhead& letterhead);
/// The title of the report and the device, centred, with `gap` line ends behind.
void addTitle(Writer& writer, const QString& title, const Device& device, int gap);
/// The introduction, left aligned, with two empty lines behind.
void addIntroduction(Writer& writer, const QString& introduction);
/// The patient in bold, left aligned, behind `indent` blanks, with `gap` line ends behind. From here on the text is
/// normal, of 12 points.
void addPatient(Writer& writer, const Patient& patient, int indent, int gap);
/// All of that, in its order.
void addObstetricHeader(Writer& writer, const ObstetricHeader& header);
/// A bold heading with a line end and `indent` blanks behind, then the text in normal weight.
void addIndented(Writer& writer, const QString& heading, int indent, const QString& text);
/// "EXAMEN": what it was done for, and how.
void addExam(Writer& writer, const QString& indication, const QString& modalities, const QString& conditions);
/// "PELVIS".
void addPelvis(Writer& writer, const QString& uterus, const QString& adnexa, const QString& douglas);
/// Who did it, and when: the centred line that ends a report.
void addSignature(Writer& writer, const QString& who, const QString& date);

/// How many embryos or fetuses: the text as a whole number, ties to the even one. Throws TypeMismatch or Overflow.
int readCount(const QString& text);

}  // namespace reports
