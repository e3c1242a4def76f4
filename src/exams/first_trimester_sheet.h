#pragma once

#include "exams/first_trimester_fields.h"
#include "exams/obstetric_exams.h"
#include "forms/controls.h"
#include "responses/offer_panel.h"

namespace exams {

/// The controls that the writing and the correction window of the first trimester have in common, and the steps that
/// are the same in both: the offers beside the fields, the body-mass index, which embryo is in view.
class FirstTrimesterSheet {
public:
    FirstTrimesterSheet(forms::Form& form, ObstetricExams& exams);

    forms::Label LblNom, LblPrenom, LblNumInt;
    forms::TextBox TxtNumEcho, TxtTypecho, TxtDate;
    forms::Label LblAgeGesta, LblMachine, LblDateCirc;
    forms::TextBox TxtPds, TxtTaille;
    forms::Array<forms::TextBox> Txt1Ter;
    forms::Frame Frame5;
    forms::Button CmdJ1, CmdJ2, CmdJ3;
    forms::Frame FrameJ1, FrameJ2, FrameJ3;
    forms::ListBox List1, List2;
    forms::Calendar Calendar1;
    forms::TextBox Text1;
    forms::Button CmdEfface;
    responses::OfferPanel panel;

    /// Brings embryo 0, 1 or 2 in view.
    void showEmbryo(int which);
    /// Reads the device and its date of entry into service.
    void readDevice();

private:
    void computeBodyMass();

    ExamLife& life_;
};

/// The colours by which the viewing and writing windows tell the embryos apart.
inline constexpr std::array kEmbryoColors{forms::fromBlueGreenRed(0xFFFFC0), forms::fromBlueGreenRed(0xFFFFFF),
                                          forms::fromBlueGreenRed(0xC0C0FF)};

/// A key filter: digits alone.
void digitsOnly(forms::KeyPress& key);

}  // namespace exams
