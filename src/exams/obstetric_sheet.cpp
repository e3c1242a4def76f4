#include "exams/obstetric_sheet.h"

#include "biometry/body_mass.h"

namespace exams {

void oneDigit(forms::TextBox& box, forms::KeyPress& key) {
    box.setText({});
    digitsOnly(key);
}

ObstetricSheet::ObstetricSheet(forms::Form& form, ObstetricExams& exams, const SheetKind& kind)
    : FetusPanels(form, kind.fetus, 2),
      LblNom(form, "LblNom"),
      LblPrenom(form, "LblPrenom"),
      LblNumInt(form, "LblNumInt"),
      TxtNumEcho(form, "TxtNumEcho"),
      examDate(form, kind.date),
      LblMachine(form, "LblMachine"),
      LblDateCirc(form, "LblDateCirc"),
      TxtPds(form, "TxtPds"),
      TxtTaille(form, "TxtTaille"),
      fields(form, kind.fields, 0, kind.last),
      List1(form, "List1"),
      List2(form, "List2"),
      Calendar1(form, "Calendar1"),
      Text1(form, "Text1"),
      CmdEfface(form, "CmdEfface", "E&ffacer"),
      panel(exams.life().state(), exams.life().around().clock, kind.rows, fields,
            {List1, List2, Calendar1, Text1, CmdEfface}, {kind.walkEnd}),
      life_(exams.life()) {
    for (std::size_t fetus = 0; fetus < kMost; ++fetus) {
        for (int i = 0; i < kind.fieldsOfFetus; ++i) {
            frames()[fetus]->holds(fields(kind.firstOfFetus[fetus] + i));
        }
    }
    panel.setRightClickRule([this] { return FrameJ3.visible() && !FrameJ1.visible() && !FrameJ2.visible(); });
    for (forms::TextBox* box : {&TxtPds, &TxtTaille}) {
        box->onKey = digitsOnly;
        box->onChange = [this] { computeBodyMass(); };
    }
}

void ObstetricSheet::copyIdentity() {
    life_.copyIdentity(LblNom, LblPrenom, LblNumInt);
}

void ObstetricSheet::readDevice() {
    life_.readDevice(LblMachine, LblDateCirc);
}

void ObstetricSheet::clearFields() {
    TxtPds.setText({});
    TxtTaille.setText({});
    for (int i = fields.first(); i <= fields.last(); ++i) {
        fields(i).setText({});
    }
}

void ObstetricSheet::computeBodyMass() {
    fields(sheet_fields::kBodyMass).setText(biometry::bodyMass(TxtPds.text(), TxtTaille.text()).orThrow().text());
}

}  // namespace exams
