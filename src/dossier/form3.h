#pragma once

#include "dossier/patient_sheet.h"
#include "forms/form.h"
#include "ports/surroundings.h"
#include "store/state.h"

namespace dossier {

/// Changes the sheet of the patient on whom `Rs` stands.
class Form3 final : public forms::Form {
public:
    static constexpr QStringView kName = u"Form3";

    Form3(ports::Surroundings& around, store::State& state);

    PatientSheet sheet{*this};
    forms::Button CmdEnreg{*this, "CmdEnreg", "&Enregistrer Quitter"};
    forms::Button CmdAnnule{*this, "CmdAnnule", "&Annuler"};
    forms::Button CmdEfface{*this, "CmdEfface", "E&ffacer"};

    bool exclusive() const override { return true; }
    /// Fills the window from the current record. Throws NoCurrentRecord.
    void begin();
    /// As `CmdAnnule`.
    void close() override;

private:
    void onCmdEnregClick();
    void changePatient();
    void dropChange();

    ports::Surroundings& around_;
    store::State& state_;
    QString number_;
};

}  // namespace dossier
