#pragma once

#include "gyneco/gynaecology_exams.h"
#include "gyneco/gynaecology_fields.h"
#include "gyneco/pages.h"
#include "responses/offer_panel.h"

namespace gyneco {

/// What the writing and the correction window of gynaecology are both made of: the header, the fields on two pages, and
/// the offers beside them.
class GynaecologySheet {
public:
    GynaecologySheet(forms::Form& form, GynaecologyExams& exams);

    forms::Label LblNom, LblPrenom, LblNumInt;
    forms::TextBox TxtNumEcho, TxtDate;
    forms::Label LblMachine, LblDateCirc;
    Pages pages;
    forms::Button Command1, Command2;
    forms::Array<forms::TextBox> TxtGyneco;
    forms::ListBox List1, List2;
    forms::Calendar Calendar1;
    forms::TextBox Text1, Text2;
    forms::Button CmdEfface;
    responses::OfferPanel panel;

    void copyIdentity();
    void readDevice();
    /// Brings the pelvic page in view, wherever the focus is.
    void showPelvic();

private:
    void turnToMonitoring();
    void turnToPelvic();

    exams::ExamLife& life_;
};

}  // namespace gyneco
