#pragma once

#include "forms/controls.h"
#include "forms/form.h"
#include "ports/surroundings.h"
#include "store/snapshot.h"
#include "store/state.h"

namespace shell {

/// The backups: copies the four database files whole, to the Supervisor's folder or to a place of one's choice.
class Form21 final : public forms::Form {
public:
    static constexpr QStringView kName = u"Form21";

    Form21(ports::Surroundings& around, store::State& state);

    forms::Button CmdSauve1{*this, "CmdSauve1", "&Sauvegarder à l'endroit prédéfini par le Superviseur"};
    forms::Button CmdSauve2{*this, "CmdSauve2", "S&auvegarder à l'endroit à définir ci dessous"};
    forms::TextBox Text1{*this, "Text1"};
    forms::Button CmdParcourir{*this, "CmdParcourir", "&Parcourir"};
    /// Which file is being copied, and how far that is ("45 %"); on screen during a backup only.
    forms::Label LblFichier{*this, "LblFichier"};
    forms::Label LblAvance{*this, "LblAvance"};
    forms::Button Command1{*this, "Command1", "&Quitter"};

private:
    void load() override;
    void browse();
    /// Copies the four files to `prefix` + their usual names, and tells how it went.
    void backUp(const QString& prefix);
    void closeBases();
    void copyBases(const QString& prefix);
    void tellProgress(store::FileKind kind, store::SnapshotStep step, int percent);
    void showProgress(bool shown);

    ports::Surroundings& around_;
    store::State& state_;
};

}  // namespace shell
