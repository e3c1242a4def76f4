#include "exams/first_trimester_sheet.h"

#include "biometry/body_mass.h"

namespace exams {

namespace fields = first_trimester;

FirstTrimesterSheet::FirstTrimesterSheet(forms::Form& form, ObstetricExams& exams)
    : FetusPanels(form, QStringLiteral("Embryon"), 2),
      LblNom(form, "LblNom"),
      LblPrenom(form, "LblPrenom"),
      LblNumInt(form, "LblNumInt"),
      TxtNumEcho(form, "TxtNumEcho"),
      TxtTypecho(form, "TxtTypecho", "1"),
      TxtDate(form, "TxtDate"),
      LblAgeGesta(form, "LblAgeGesta"),
      LblMachine(form, "LblMachine"),
      LblDateCirc(form, "LblDateCirc"),
      TxtPds(form, "TxtPds"),
      TxtTaille(form, "TxtTaille"),
      Txt1Ter(form, "Txt1Ter", 0, kLastFirstTrimesterField),
      List1(form, "List1"),
      List2(form, "List2"),
      Calendar1(form, "Calendar1"),
      Text1(form, "Text1"),
      CmdEfface(form, "CmdEfface", "E&ffacer"),
      panel(exams.life().state(), exams.life().around().clock, kFirstTrimesterFields, Txt1Ter,
            {List1, List2, Calendar1, Text1, CmdEfface}, {fields::kWalkEnd}),
      life_(exams.life()) {
    for (std::size_t embryo = 0; embryo < kMost; ++embryo) {
        for (int i = 0; i < fields::kFieldsOfEmbryo; ++i) {
            frames()[embryo]->holds(Txt1Ter(fields::kFirstOfEmbryo[embryo] + i));
        }
    }
    panel.setRightClickRule([this] { return FrameJ3.visible() && !FrameJ1.visible() && !FrameJ2.visible(); });
    for (forms::TextBox* box : {&TxtPds, &TxtTaille}) {
        box->onKey = digitsOnly;
        box->onChange = [this] { computeBodyMass(); };
    }
}

void FirstTrimesterSheet::readDevice() {
    life_.readDevice(LblMachine, LblDateCirc);
}

void FirstTrimesterSheet::computeBodyMass() {
    Txt1Ter(fields::kBodyMass).setText(biometry::bodyMass(TxtPds.text(), TxtTaille.text()).orThrow().text());
}

}  // namespace exams
