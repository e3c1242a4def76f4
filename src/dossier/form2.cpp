#include "dossier/form2.h"

#include "base/numbers.h"
#include "dossier/form4.h"
#include "forms/key_filters.h"

namespace dossier {
namespace {

const QString kNumber = QStringLiteral("Numint");

}  // namespace

Form2::Form2(ports::Surroundings& around, store::State& state)
    : Form(around.desk, kName.toString(), QStringLiteral("Nouveau Dossier")), around_(around), state_(state) {
    sheet.TxtAssure.onKey = forms::digitsOnly;
    sheet.TxtDivers4.onKey = forms::digitsOnly;
    CmdEnreg.onClick = [this] { onCmdEnregClick(); };
    CmdAnule.onClick = [this] { close(); };
}

void Form2::begin() {
    state_.queryPatients(QStringLiteral("SELECT*FROM FICHEPATIENT ORDER BY NUMINT"));
    standOnHighestNumber();
    sheet.wipe({});
    sheet.TxtCivilitee.setFocus();
}

void Form2::standOnHighestNumber() {
    state_.Rs.moveLast();
    NumLbl.setText(state_.Rs.text(kNumber));
}

void Form2::close() {
    hide();
    unload();
    desk().show(Form4::kName.toString());
}

void Form2::onCmdEnregClick() {
    if (!requireSurname(sheet, around_.boxes)) {
        return;
    }
    addPatient();
    hide();
    unload();
    showDossierOfLast();
}

void Form2::addPatient() {
    try {
        const auto number = base::toInt16(static_cast<double>(state_.Rs.field(kNumber).number() + 1));
        state_.Rs.addNew();
        state_.Rs.set(kNumber, number);
        sheet.write(state_.Rs, around_.clock.today());
        updateIfWanted(state_.Rs, around_.boxes);
    } catch (const base::RuntimeError&) {
        dropAddition();
        throw;
    }
}

// The next try takes the number after the one that is the highest then.
void Form2::dropAddition() {
    try {
        standOnHighestNumber();
    } catch (const base::RuntimeError&) {
        // The store is out of reach: what failed first is told.
    }
}

void Form2::showDossierOfLast() {
    state_.Rs.moveLast();
    auto& dossier = desk().at<Form4>();
    dossier.AFFICHE_FICHE();
    dossier.queryByName();
}

}  // namespace dossier
