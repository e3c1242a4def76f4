#include "gyneco/gynaecology_sheet.h"

namespace gyneco {
namespace {

// Where the walk through the fields of a page ends and starts again.
constexpr responses::Wrap kPelvicWalk{.last = 26, .first = 1};
constexpr responses::Wrap kMonitoringWalk{.last = 36, .first = 27};

void holdFields(forms::Frame& frame, forms::Array<forms::TextBox>& fields, int first, int last) {
    for (int i = first; i <= last; ++i) {
        frame.holds(fields(i));
    }
}

}  // namespace

GynaecologySheet::GynaecologySheet(forms::Form& form, GynaecologyExams& exams)
    : LblNom(form, "LblNom"),
      LblPrenom(form, "LblPrenom"),
      LblNumInt(form, "LblNumInt"),
      TxtNumEcho(form, "TxtNumEcho"),
      TxtDate(form, "TxtDate"),
      LblMachine(form, "LblMachine"),
      LblDateCirc(form, "LblDateCirc"),
      pages(form),
      Command1(form, "Command1", "Monit. Ovulation"),
      Command2(form, "Command2", "&Gynéco"),
      TxtGyneco(form, "TxtGyneco", 0, kLastGynaecologyField),
      List1(form, "List1"),
      List2(form, "List2"),
      Calendar1(form, "Calendar1"),
      Text1(form, "Text1"),
      Text2(form, "Text2"),
      CmdEfface(form, "CmdEfface", "E&ffacer"),
      panel(exams.life().state(), exams.life().around().clock, kGynaecologyFields, TxtGyneco,
            {List1, List2, Calendar1, Text1, CmdEfface}, kPelvicWalk),
      life_(exams.life()) {
    holdFields(pages.Frame2, TxtGyneco, 1, 5);
    holdFields(pages.Frame3, TxtGyneco, 6, 15);
    holdFields(pages.Frame4, TxtGyneco, 16, 19);
    holdFields(pages.Frame5, TxtGyneco, 20, 20);
    holdFields(pages.Frame6, TxtGyneco, 21, 25);
    holdFields(pages.Frame7, TxtGyneco, 26, 26);
    holdFields(pages.Frame8, TxtGyneco, 27, kLastGynaecologyField);
    TxtGyneco(0).setText(QStringLiteral("Voir Liste"));
    panel.addFreeEntry(Text2);
    Command2.hide();
    Command1.onClick = [this] { turnToMonitoring(); };
    Command2.onClick = [this] { turnToPelvic(); };
}

void GynaecologySheet::copyIdentity() {
    life_.copyIdentity(LblNom, LblPrenom, LblNumInt);
}

void GynaecologySheet::readDevice() {
    life_.readDevice(LblMachine, LblDateCirc);
}

void GynaecologySheet::turnToMonitoring() {
    pages.nameMonitoring();
    pages.paintCommonFrame();
    pages.Frame8.show();
    panel.setWrap(kMonitoringWalk);
    TxtGyneco(kStimulationDay).setFocus();
    pages.setPelvicVisible(false);
    Command2.show();
    Command1.hide();
}

void GynaecologySheet::turnToPelvic() {
    TxtGyneco(kModality).setFocus();
    showPelvic();
}

void GynaecologySheet::showPelvic() {
    pages.namePelvic();
    pages.paintCommonFrame();
    pages.Frame8.hide();
    pages.setPelvicVisible(true);
    panel.setWrap(kPelvicWalk);
    Command2.hide();
    Command1.show();
}

}  // namespace gyneco
