#include "dossier/form3.h"

#include "dossier/form4.h"

namespace dossier {

Form3::Form3(ports::Surroundings& around, store::State& state)
    : Form(around.desk, kName.toString(), QStringLiteral("Modification de la Fiche")), around_(around), state_(state) {
    CmdEnreg.onClick = [this] { onCmdEnregClick(); };
    CmdAnnule.onClick = [this] { close(); };
    CmdEfface.onClick = [this] { sheet.wipe(QStringLiteral(" ")); };
}

void Form3::begin() {
    number_ = state_.Rs.text(QStringLiteral("Numint"));
    sheet.read(state_.Rs);
}

void Form3::close() {
    hide();
    unload();
    desk().show(Form4::kName.toString());
}

// On No the change stays in the record buffer, and the dossier window shows it until the cursor moves.
void Form3::onCmdEnregClick() {
    if (!requireSurname(sheet, around_.boxes)) {
        return;
    }
    changePatient();
    close();
    desk().at<Form4>().AFFICHE_FICHE();
}

void Form3::changePatient() {
    try {
        state_.Rs.edit();
        sheet.write(state_.Rs, around_.clock.today());
        updateIfWanted(state_.Rs, around_.boxes);
    } catch (const base::RuntimeError&) {
        dropChange();
        throw;
    }
}

// A find drops what is being edited.
void Form3::dropChange() {
    try {
        state_.Rs.findFirst(QStringLiteral("NUMINT=") + number_);
    } catch (const base::RuntimeError&) {
        // The store is out of reach: what failed first is told.
    }
}

}  // namespace dossier
