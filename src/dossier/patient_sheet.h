#pragma once

#include <QDate>
#include <array>
#include <span>
#include <variant>

#include "forms/controls.h"
#include "ports/boxes.h"
#include "store/recordset.h"

namespace dossier {

/// How an entry of a patient sheet is stored.
enum class WriteRule {
    Obligatory,     ///< As it stands; a sheet without it is refused.
    Blank,          ///< An empty entry as one blank.
    SecondAddress,  ///< The text of the first address line, a blank if the entry is empty.
    Date,           ///< As a date; what reads as none leaves the field alone.
    Number,         ///< What is no number leaves the field alone.
    Sex,            ///< "F" or "M"; with neither option on the field is left alone.
    Alsace,         ///< "O" for the mark, "N" without.
};

struct SheetField;

/// The controls of one patient's sheet, on the window that owns them, and their way to and from her record.
class PatientSheet {
    forms::Form& form_;

public:
    explicit PatientSheet(forms::Form& form);

    forms::ComboBox TxtCivilitee{form_, "TxtCivilitee", {"Mme", "Mlle", "Madame", "Mademoiselle"}};
    forms::TextBox TxtNom{form_, "TxtNom"};
    forms::TextBox TxtPrenom{form_, "TxtPrenom"};
    forms::TextBox TxtNomjf{form_, "TxtNomjf"};
    forms::TextBox TxtDatenaiss{form_, "TxtDatenaiss"};
    forms::Frame Frame2{form_, "Frame2", "Sexe"};
    forms::Option OptFem{form_, "OptFem", "Féminin"};
    forms::Option OptMasc{form_, "OptMasc", "Masculin"};
    forms::TextBox TxtRue1{form_, "TxtRue1"};
    forms::TextBox TxtRue2{form_, "TxtRue2"};
    forms::ComboBox CmbVille{form_, "CmbVille"};
    forms::ComboBox CmbCodepost{form_, "CmbCodepost"};
    forms::TextBox TxtTelephone{form_, "TxtTelephone"};
    forms::TextBox TxtFax{form_, "TxtFax"};
    forms::TextBox TxtEmail{form_, "TxtEmail"};
    forms::TextBox TxtNumsecsoc{form_, "TxtNumsecsoc"};
    forms::TextBox TxtAssure{form_, "TxtAssure"};
    forms::ComboBox CmbQualite{form_, "CmbQualite", {"Ascendant, descendant"}};
    forms::TextBox TxtCaisse{form_, "TxtCaisse"};
    forms::TextBox TxtPriseencharge{form_, "TxtPriseencharge"};
    forms::TextBox TxtDatefinprisencharge{form_, "TxtDatefinprisencharge"};
    forms::TextBox TxtRanggem{form_, "TxtRanggem"};
    forms::TextBox TxtCartesante{form_, "TxtCartesante"};
    forms::ComboBox CmbDroits{form_, "CmbDroits"};
    forms::Check TxtAlsacemoselle{form_, "TxtAlsacemoselle", "Alsace Moselle O/N"};
    forms::ComboBox CmbTierspayant{form_, "CmbTierspayant", {"Tiers Payant inconnu"}};
    forms::TextBox TxtMedtt1{form_, "TxtMedtt1"};
    forms::TextBox TxtMedtt2{form_, "TxtMedtt2"};
    forms::TextBox TxtMedtt3{form_, "TxtMedtt3"};
    forms::TextBox Txtmedtt4{form_, "Txtmedtt4"};
    forms::TextBox TxtProfession{form_, "TxtProfession"};
    forms::TextBox TxtCatsocpro{form_, "TxtCatsocpro"};
    forms::TextBox TxtDCD{form_, "TxtDCD"};
    forms::TextBox TxtPerdudevue{form_, "TxtPerdudevue"};
    forms::TextBox TxtDivers1{form_, "TxtDivers1"};
    forms::TextBox TxtDivers2{form_, "TxtDivers2"};
    forms::TextBox TxtDivers3{form_, "TxtDivers3"};
    forms::TextBox TxtDivers4{form_, "TxtDivers4"};

    /// What stands beside a control.
    QString captionOf(const forms::TextControl& control);

    /// Puts one text into each text and combo box, and the sex on "Féminin".
    void wipe(const QString& text);
    /// Shows the current record. A sex that is neither "F" nor "M" leaves the options, and the mark is not read.
    void read(const store::Recordset& patient);
    /// Writes all entries into the record being added or edited, in the order of its fields. `today` completes a date
    /// without year.
    void write(store::Recordset& patient, QDate today);

private:
    forms::TextControl& controlOf(const SheetField& field);
    void writeField(const SheetField& field, store::Recordset& patient, QDate today);
    void writeSex(const QString& name, store::Recordset& patient) const;
};

/// One field of the sheet: its control, its caption, its place in the record and the rule by which it gets there.
struct SheetField {
    std::variant<forms::TextBox PatientSheet::*, forms::ComboBox PatientSheet::*, forms::Frame PatientSheet::*,
                 forms::Check PatientSheet::*>
        control;
    const char16_t* caption;
    const char16_t* field;
    WriteRule rule;
};

/// All of them, in the order in which they are written.
std::span<const SheetField> sheetFields();

/// Says that the surname is missing if it is; true if it is there.
bool requireSurname(const PatientSheet& sheet, ports::Boxes& boxes);
/// Asks whether the record being added or edited shall be kept; on Yes stores it and says so.
void updateIfWanted(store::Recordset& patient, ports::Boxes& boxes);

}  // namespace dossier
