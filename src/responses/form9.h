#pragma once

#include <deque>

#include "forms/controls.h"
#include "forms/form.h"
#include "ports/surroundings.h"
#include "responses/introduction.h"
#include "responses/rubrics.h"
#include "store/state.h"

namespace responses {

/// The editor of the stored responses, rubric by rubric, and of the reports' introduction. It needs no open dossier.
class Form9 final : public forms::Form {
public:
    static constexpr QStringView kName = u"Form9";

    Form9(ports::Surroundings& around, store::State& state);

    forms::Label Label1{*this, "Label1", "Gestion des réponses mémorisées"};

    forms::Frame Frame2{*this, "Frame2", "Praticiens - Appareil"};
    forms::Frame Frame3{*this, "Frame3", "Divers"};
    forms::Frame Frame4{*this, "Frame4", "1er Trimestre"};
    forms::Frame Frame5{*this, "Frame5", "Gynécologie"};
    forms::Frame Frame6{*this, "Frame6", "2ème - 3ème Trimestre"};
    forms::Frame Frame8{*this, "Frame8", "Morpho Taiple"};
    /// One button for each row of `kRubrics`, in its order, held by the frame of its group.
    std::deque<forms::Button> RubricButtons = makeRubricButtons();
    forms::Button CmdIntro{*this, "CmdIntro", "Introduction Cpte Rendu"};

    // The open rubric.
    forms::Frame Frame1{*this, "Frame1", "Choisissez une rubrique"};
    forms::Label LblEspion{*this, "LblEspion"};
    forms::ListBox List1{*this, "List1"};
    forms::TextBox Text1{*this, "Text1"};
    forms::Option OBSuite{*this, "OBSuite", "A la suite", true};
    forms::Option OBLigne{*this, "OBLigne", "Va à la ligne"};
    forms::Option OBClot{*this, "OBClot", "Clôt la rubrique"};
    forms::Button CmdAjoute{*this, "CmdAjoute", "&Ajouter"};
    forms::Button CmdModif{*this, "CmdModif", "&Modifier"};
    forms::Button CmdSupprime{*this, "CmdSupprime", "&Supprimer"};

    forms::Frame Frame9{*this, "Frame9", "Introduction du compte rendu"};
    forms::TextBox TxtIntro{*this, "TxtIntro"};
    forms::Button CmdEnreg{*this, "CmdEnreg", "Enregistrer"};
    forms::Button CmdAnul{*this, "CmdAnul", "Annuler Quitter"};

    forms::Button CmdQuitter{*this, "CmdQuitter", "&Quitter"};

private:
    void load() override;

    std::deque<forms::Button> makeRubricButtons();
    void wireRubrics();
    void wireEditor();
    void wireIntroduction();
    forms::Frame& frameOf(RubricGroup group);

    void openRubric(const Rubric& rubric);
    void onCmdAjouteClick();
    void onCmdModifClick();
    void onCmdSupprimeClick();
    void onList1DoubleClick();
    void onCmdIntroClick();
    void onCmdEnregClick();

    int rubricNumber() const;
    void queryRubric();
    void reopenRubric();
    void fillList();
    void findChosen();
    QString closingLetter();
    void showClosing(const QString& letter);
    bool requireText(const QString& message);
    /// Runs a step; one that fails is told, and the handler goes on.
    template <class Step>
    void attempt(Step step);

    ports::Surroundings& around_;
    store::State& state_;
    Introduction introduction_;
    /// The text that was chosen in the list: what modify and delete look for.
    QString chosen_;
    /// The letter that the last action wrote.
    QString letter_ = QStringLiteral("A");
};

}  // namespace responses
