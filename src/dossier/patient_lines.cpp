#include "dossier/patient_lines.h"

#include <array>

#include "base/dates.h"

namespace dossier {
namespace {

struct Line {
    const char16_t* label;
    const char16_t* field;
};

// The four treating doctors carry one label, figure and all.
constexpr auto kLines = std::to_array<Line>({
    {u"Adress 1     : ", u"RUE1"},
    {u"Adress 2     : ", u"RUE2"},
    {u"Ville        : ", u"VILLE"},
    {u"Code Postal  : ", u"CODEPOST"},
    {u"Téléphone    : ", u"TELEPHONE"},
    {u"Fax          : ", u"FAX"},
    {u"Profession   : ", u"PROFESSION"},
    {u"Cat Soc Prof : ", u"CATSOCPRO"},
    {u"Méd Trait. 1 : ", u"MEDTT1"},
    {u"Méd Trait. 1 : ", u"MEDTT2"},
    {u"Méd Trait. 1 : ", u"MEDTT3"},
    {u"Méd Trait. 1 : ", u"MEDTT4"},
    {u"Qualité      : ", u"QUALITE"},
    {u"Assuré       : ", u"ASSURE"},
    {u"N° Sécu      : ", u"NUMSECSOC"},
    {u"Caisse Sécu  : ", u"CAISSE"},
    {u"Prise en charge ALD : ", u"PRISEENCHARGE"},
    {u"Date fin ALD : ", u"DATEFINPRISENCHARGE"},
    {u"Rang gemellaire : ", u"Ranggem"},
    {u"Carte Santé  : ", u"CARTESANTE"},
    {u"Divers 1     : ", u"DIVERS1"},
    {u"Divers 2     : ", u"DIVERS2"},
    {u"Divers 3     : ", u"DIVERS3"},
    {u"Divers 4     : ", u"DIVERS4"},
    {u"E Mail       : ", u"EMAIL"},
});

void addBirth(QStringList& lines, const store::Recordset& patient, QDate today) {
    const QDate born = patient.field(QStringLiteral("DATENAISS")).date();
    if (!born.isValid()) {
        return;
    }
    lines << QStringLiteral("Né(e) le     : ") + base::shortDate(born);
    lines << QStringLiteral("Age          : %1 ans").arg(today.year() - born.year());
}

void addSex(QStringList& lines, const store::Recordset& patient) {
    const QString sex = patient.text(QStringLiteral("SEXE"));
    if (sex == u"F") {
        lines << QStringLiteral("Sexe         : Féminin");
    } else if (sex == u"M") {
        lines << QStringLiteral("Sexe         : Masculin");
    }
}

}  // namespace

QStringList patientLines(const store::Recordset& patient, QDate today) {
    QStringList lines{QStringLiteral("Née          : ") + patient.text(QStringLiteral("NOMJF"))};
    addBirth(lines, patient, today);
    addSex(lines, patient);
    for (const Line& line : kLines) {
        lines << QString::fromUtf16(line.label) + patient.text(QString::fromUtf16(line.field));
    }
    return lines;
}

}  // namespace dossier
