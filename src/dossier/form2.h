#pragma once

#include "dossier/patient_sheet.h"
#include "forms/form.h"
#include "ports/surroundings.h"
#include "store/state.h"

namespace dossier {

/// Writes the sheet of a new patient.
class Form2 final : public forms::Form {
public:
    static constexpr QStringView kName = u"Form2";

    Form2(ports::Surroundings& around, store::State& state);

    /// The highest dossier number so far.
    forms::Label NumLbl{*this, "NumLbl"};
    PatientSheet sheet{*this};
    forms::Button CmdEnreg{*this, "CmdEnreg", "&Enregistrer Quitter"};
    forms::Button CmdAnule{*this, "CmdAnule", "&Annuler"};
    /// Stands here for the likeness of the two sheets; it does nothing.
    forms::Button CmdEfface{*this, "CmdEfface", "E&ffacer"};

    bool exclusive() const override { return true; }
    /// Puts `Rs` on the highest dossier number and the window on an empty sheet. Throws NoCurrentRecord if there is no
    /// patient at all.
    void begin();
    /// As `CmdAnule`.
    void close() override;

private:
    void onCmdEnregClick();
    void addPatient();
    void dropAddition();
    void standOnHighestNumber();
    void showDossierOfLast();

    ports::Surroundings& around_;
    store::State& state_;
};

}  // namespace dossier
