#include "dossier/patient_sheet.h"

#include "base/dates.h"
#include "base/numbers.h"
#include "forms/key_filters.h"
#include "store/blank_rule.h"

namespace dossier {
namespace {

using Sheet = PatientSheet;

constexpr auto kFields = std::to_array<SheetField>({
    {&Sheet::TxtNom, u"NOM Mme", u"Nom", WriteRule::Obligatory},
    {&Sheet::TxtPrenom, u"Prénom", u"Prenom", WriteRule::Blank},
    {&Sheet::TxtNomjf, u"N. J. Fille", u"NOMJF", WriteRule::Blank},
    {&Sheet::TxtDatenaiss, u"Date de naissance", u"DATENAISS", WriteRule::Date},
    {&Sheet::TxtRue1, u"Adresse 1", u"RUE1", WriteRule::Blank},
    {&Sheet::TxtRue2, u"Adresse 2", u"RUE2", WriteRule::SecondAddress},
    {&Sheet::CmbVille, u"Ville", u"VILLE", WriteRule::Blank},
    {&Sheet::CmbCodepost, u"Code Postal", u"CODEPOST", WriteRule::Blank},
    {&Sheet::TxtTelephone, u"Téléphone", u"TELEPHONE", WriteRule::Blank},
    {&Sheet::TxtFax, u"Fax", u"FAX", WriteRule::Blank},
    {&Sheet::TxtProfession, u"Profession", u"PROFESSION", WriteRule::Blank},
    {&Sheet::TxtCatsocpro, u"Cat Soc Prof :", u"CATSOCPRO", WriteRule::Blank},
    {&Sheet::Frame2, u"Sexe", u"SEXE", WriteRule::Sex},
    {&Sheet::TxtCivilitee, u"Civilités", u"CIVILITEE", WriteRule::Blank},
    {&Sheet::TxtNumsecsoc, u"N° de Sécu", u"NUMSECSOC", WriteRule::Blank},
    {&Sheet::TxtAssure, u"Assuré", u"ASSURE", WriteRule::Number},
    {&Sheet::TxtDivers1, u"Divers1", u"DIVERS1", WriteRule::Blank},
    {&Sheet::TxtDivers2, u"Divers 2", u"DIVERS2", WriteRule::Blank},
    {&Sheet::TxtDivers3, u"Divers3", u"DIVERS3", WriteRule::Blank},
    {&Sheet::TxtDivers4, u"Divers4", u"DIVERS4", WriteRule::Number},
    {&Sheet::TxtPriseencharge, u"Prise en charge ALD", u"PRISEENCHARGE", WriteRule::Blank},
    {&Sheet::TxtDatefinprisencharge, u"Date fin ALD", u"DATEFINPRISENCHARGE", WriteRule::Date},
    {&Sheet::TxtCartesante, u"Carte Santé", u"CARTESANTE", WriteRule::Blank},
    {&Sheet::TxtDCD, u"Code situation :", u"DCD", WriteRule::Blank},
    {&Sheet::TxtPerdudevue, u"Perdu de vue", u"PERDUDEVUE", WriteRule::Blank},
    {&Sheet::TxtMedtt1, u"Traitant 1", u"MEDTT1", WriteRule::Blank},
    {&Sheet::TxtMedtt2, u"Traitant 2", u"MEDTT2", WriteRule::Blank},
    {&Sheet::TxtMedtt3, u"Traitant 3", u"MEDTT3", WriteRule::Blank},
    {&Sheet::Txtmedtt4, u"Traitant 4", u"MEDTT4", WriteRule::Blank},
    {&Sheet::TxtCaisse, u"Caisse SS", u"CAISSE", WriteRule::Blank},
    {&Sheet::TxtRanggem, u"Rang gémellaire", u"Ranggem", WriteRule::Blank},
    {&Sheet::CmbQualite, u"Qualité", u"QUALITE", WriteRule::Blank},
    {&Sheet::CmbDroits, u"Ouverture droits", u"DROITS", WriteRule::Blank},
    {&Sheet::TxtEmail, u"E Mail", u"EMAIL", WriteRule::Blank},
    {&Sheet::TxtAlsacemoselle, u"Alsace Moselle O/N", u"ALSACEMOSELLE", WriteRule::Alsace},
    {&Sheet::CmbTierspayant, u"Tiers payant", u"TIERSPAYANT", WriteRule::Blank},
});

bool isEntry(const SheetField& field) {
    return field.rule != WriteRule::Sex && field.rule != WriteRule::Alsace;
}

}  // namespace

std::span<const SheetField> sheetFields() {
    return kFields;
}

PatientSheet::PatientSheet(forms::Form& form) : form_(form) {
    Frame2.holds(OptFem, OptMasc);
    TxtNom.onKey = forms::capitals;
}

forms::TextControl& PatientSheet::controlOf(const SheetField& field) {
    return std::visit([this](auto control) -> forms::TextControl& { return this->*control; }, field.control);
}

QString PatientSheet::captionOf(const forms::TextControl& control) {
    for (const SheetField& field : kFields) {
        if (&controlOf(field) == &control) {
            return QString::fromUtf16(field.caption);
        }
    }
    return control.text();
}

void PatientSheet::wipe(const QString& text) {
    for (const SheetField& field : kFields) {
        if (isEntry(field)) {
            controlOf(field).setText(text);
        }
    }
    OptFem.setChecked(true);
}

void PatientSheet::read(const store::Recordset& patient) {
    for (const SheetField& field : kFields) {
        if (isEntry(field)) {
            controlOf(field).setText(patient.text(QString::fromUtf16(field.field)));
        }
    }
    const QString sex = patient.text(QStringLiteral("SEXE"));
    if (sex == u"F") {
        OptFem.setChecked(true);
    } else if (sex == u"M") {
        OptMasc.setChecked(true);
    }
}

void PatientSheet::write(store::Recordset& patient, QDate today) {
    for (const SheetField& field : kFields) {
        writeField(field, patient, today);
    }
}

void PatientSheet::writeField(const SheetField& field, store::Recordset& patient, QDate today) {
    const QString name = QString::fromUtf16(field.field);
    const QString text = controlOf(field).text();
    switch (field.rule) {
        case WriteRule::Obligatory:
            patient.set(name, text);
            break;
        case WriteRule::Blank:
            patient.set(name, store::orBlank(text));
            break;
        case WriteRule::SecondAddress:
            // A second line never gets into the record itself: the first one stands there twice.
            patient.set(name, store::orBlank(text.isEmpty() ? text : TxtRue1.text()));
            break;
        case WriteRule::Date:
            if (const auto date = base::readDate(text, today)) {
                patient.set(name, *date);
            }
            break;
        case WriteRule::Number:
            if (base::isNumeric(text)) {
                patient.set(name, text);
            }
            break;
        case WriteRule::Sex:
            writeSex(name, patient);
            break;
        case WriteRule::Alsace:
            patient.set(name, TxtAlsacemoselle.checked() ? QStringLiteral("O") : QStringLiteral("N"));
            break;
    }
}

void PatientSheet::writeSex(const QString& name, store::Recordset& patient) const {
    if (OptFem.checked()) {
        patient.set(name, QStringLiteral("F"));
    }
    if (OptMasc.checked()) {
        patient.set(name, QStringLiteral("M"));
    }
}

bool requireSurname(const PatientSheet& sheet, ports::Boxes& boxes) {
    if (sheet.TxtNom.text().isEmpty()) {
        boxes.message(QStringLiteral("La saisie d'un nom de patiente est obligatoire"));
        return false;
    }
    return true;
}

void updateIfWanted(store::Recordset& patient, ports::Boxes& boxes) {
    if (boxes.ask(QStringLiteral("Voulez vous vraiment enregistrer cette nouvelle Fiche ?"))) {
        patient.update();
        boxes.message(QStringLiteral("Nouvelle Fiche Enregistrée"));
    }
}

}  // namespace dossier
