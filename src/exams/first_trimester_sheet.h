#pragma once

#include "exams/fetus_panels.h"
#include "exams/first_trimester_fields.h"
#include "exams/obstetric_exams.h"
#include "forms/controls.h"
#include "forms/key_filters.h"
#include "responses/offer_panel.h"

namespace exams {

/// The controls that the writing and the correction window of the first trimester have in common, and the steps that
/// are the same in both: the offers beside the fields, the body-mass index, which embryo is in view.
class FirstTrimesterSheet : public FetusPanels {
public:
    FirstTrimesterSheet(forms::Form& form, ObstetricExams& exams);

    forms::Label LblNom, LblPrenom, LblNumInt;
    forms::TextBox TxtNumEcho, TxtTypecho, TxtDate;
    forms::Label LblAgeGesta, LblMachine, LblDateCirc;
    forms::TextBox TxtPds, TxtTaille;
    forms::Array<forms::TextBox> Txt1Ter;
    forms::ListBox List1, List2;
    forms::Calendar Calendar1;
    forms::TextBox Text1;
    forms::Button CmdEfface;
    responses::OfferPanel panel;

    /// Reads the device and its date of entry into service.
    void readDevice();

private:
    void computeBodyMass();

    ExamLife& life_;
};

using forms::digitsOnly;

}  // namespace exams
