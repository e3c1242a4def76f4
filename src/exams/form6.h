#pragma once

#include "exams/obstetric_view.h"

namespace exams {

/// Shows a saved first-trimester exam, and leads to its reports, its correction and the dossier's other exams.
class Form6 final : public ObstetricView {
public:
    static constexpr QStringView kName = u"Form6";

    explicit Form6(ObstetricExams& exams);

    forms::Menu Echo1T{*this, "Echo1T", "Echo 1er Ter"};
    forms::Menu Echo2T{*this, "Echo2T", "Echo 2 - 3 ème Ter"};
    forms::Menu Modif{*this, "Modif", "Modifier"};
    forms::Menu Supprim{*this, "Supprim", "Supprimer"};
    forms::Menu Quitte{*this, "Quitte", "Quitter"};
    forms::Menu Cptrendu{*this, "Cptrendu", "Compte Rendu"};
    forms::Menu Datation{*this, "Datation", "Datation"};

    forms::Label LblNbr{*this, "LblNbr"};
    forms::Label LblSituation{*this, "LblSituation"};
    forms::Label LblDim{*this, "LblDim"};
    forms::Label LblAspect{*this, "LblAspect"};
    forms::Label LblNbrE{*this, "LblNbrE"};

    forms::Array<forms::Label> LblMA{*this, "LblMA", 0, 2};
    forms::Array<forms::Label> LblAC{*this, "LblAC", 0, 2};
    forms::Array<forms::Label> LblLCC{*this, "LblLCC", 0, 2};
    forms::Array<forms::Label> LblBip{*this, "LblBip", 0, 2};
    forms::Array<forms::Label> LblFem{*this, "LblFem", 0, 2};
    forms::Array<forms::Label> LblNuque{*this, "LblNuque", 0, 2};
    forms::Array<forms::Label> LblOPN{*this, "LblOPN", 0, 2};
    forms::Array<forms::TextBox> TxtMorpho{*this, "TxtMorpho", 0, 2};

    forms::TextBox TxtLA{*this, "TxtLA"};
    forms::TextBox TxtPl{*this, "TxtPl"};

    forms::Button Command1{*this, "Command1", "&Cpt Rendu 1T"};
    forms::Button Command2{*this, "Command2", "Cpt &Datation"};
    forms::Button Command3{*this, "Command3", "&Photos"};

    void AFFCIVILITES();
    /// Fills the window from the current record of `Rs`.
    void AFFICHEVOIR();
    /// Types the full report, or the short one of a dating, of the exam on show into the editor.
    void CptRendu1T();
    void CptRenduDat();
    /// Deletes the exam in view.
    void Supprime1T();

    /// What the display routine does for an exam of this kind: the identity, the fields, the embryos' buttons.
    void display();
    /// Fills the window from the record just corrected. The body-mass index stays as shown before, the age is empty.
    void refillAfterCorrection();

private:
    void load() override;
    void unloading() override;
    void wireSteps();
    void adjustEmbryoButtons();
};

}  // namespace exams
