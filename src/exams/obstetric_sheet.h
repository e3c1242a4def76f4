#pragma once

#include "exams/fetus_panels.h"
#include "exams/obstetric_exams.h"
#include "forms/controls.h"
#include "forms/key_filters.h"
#include "responses/offer_panel.h"

namespace exams {

/// The fields that have the same place in the sheets of both obstetric families.
namespace sheet_fields {
inline constexpr int kBodyMass = 0;
inline constexpr int kOperator = 1;
inline constexpr int kLastPeriod = 2;
inline constexpr int kTheoreticalStart = 3;
inline constexpr int kUltrasoundStart = 4;
}  // namespace sheet_fields

/// What the sheets of one family, or one window of it, are made of.
struct SheetKind {
    /// The name of the array of fields, its last index, and their rows, which outlive the sheet.
    QString fields;
    int last;
    std::span<const responses::ExamField> rows;
    /// The name of the box of the exam's date.
    QString date;
    /// What the frames call a fetus, its first field in each of them, and how many they are in a row.
    QString fetus;
    std::array<int, FetusPanels::kMost> firstOfFetus;
    int fieldsOfFetus;
    /// Where the walk through the fields starts again.
    int walkEnd;
};

/// The controls that the writing and the correction windows of both obstetric families have in common, and the steps
/// that are the same in all of them: the offers beside the fields, the body-mass index, which fetus is in view.
class ObstetricSheet : public FetusPanels {
public:
    ObstetricSheet(forms::Form& form, ObstetricExams& exams, const SheetKind& kind);

    forms::Label LblNom, LblPrenom, LblNumInt;
    forms::TextBox TxtNumEcho, examDate;
    forms::Label LblMachine, LblDateCirc;
    forms::TextBox TxtPds, TxtTaille;
    forms::Array<forms::TextBox> fields;
    forms::ListBox List1, List2;
    forms::Calendar Calendar1;
    forms::TextBox Text1;
    forms::Button CmdEfface;
    responses::OfferPanel panel;

    void copyIdentity();
    /// Reads the device and its date of entry into service.
    void readDevice();
    /// Empties the weight, the height and all fields, each with the steps of its change.
    void clearFields();

private:
    void computeBodyMass();

    ExamLife& life_;
};

using forms::digitsOnly;

/// A key filter of a count: the box holds the digit typed last.
void oneDigit(forms::TextBox& box, forms::KeyPress& key);

}  // namespace exams
