#pragma once

#include "exams/obstetric_view.h"

namespace exams {

/// Shows a saved exam of the second or third trimester, and leads to its biometry, its report, its correction and the
/// dossier's other exams. The biometry and the report read what stands here, not the record.
class Form10 final : public ObstetricView {
public:
    static constexpr QStringView kName = u"Form10";

    explicit Form10(ObstetricExams& exams);

    forms::Menu Ter1{*this, "Ter1", "1 er Ter"};
    forms::Menu Ter2{*this, "Ter2", "2 - 3 ème Ter"};
    forms::Menu Modif{*this, "Modif", "Modifier"};
    forms::Menu Supprim{*this, "Supprim", "Supprimer"};
    forms::Menu fermer{*this, "fermer", "Fermer"};
    forms::Menu imprimer{*this, "imprimer", "Compte Rendu"};
    forms::Menu Biometrie{*this, "Biometrie", "Biométrie"};

    forms::Label Label1{*this, "Label1", "Echographie du  3éme  Trimestre"};
    forms::TextBox TxtTypecho{*this, "TxtTypecho"};
    /// The age as it is stored, without the words behind it.
    forms::Label Sem_Entier{*this, "Sem_Entier"};
    /// Can be overtyped, and counts as it stands until the next exam is shown.
    forms::TextBox TxtNbrE{*this, "TxtNbrE"};
    /// The uterine arteries, right and left.
    forms::TextBox TxtUtD{*this, "TxtUtD"};
    forms::TextBox TxtUtG{*this, "TxtUtG"};
    /// The amniotic fluid (5), the placenta (6), and the morphology of fetus 1 (4), 2 (0) and 3 (1).
    forms::Array<forms::TextBox> Txt1T{*this, "Txt1T", 0, 6};

    // One of each a fetus, counted from 0. Lengths are millimetres, heart rates beats a minute.
    forms::Array<forms::TextBox> TxtPres{*this, "TxtPres", 0, 2};
    forms::Array<forms::ComboBox> CmbMa{*this, "CmbMa", 0, 2};
    forms::Array<forms::TextBox> TxtAC{*this, "TxtAC", 0, 2};
    forms::Array<forms::TextBox> TxtBip{*this, "TxtBip", 0, 2};
    forms::Array<forms::TextBox> TxtCc{*this, "TxtCc", 0, 2};
    forms::Array<forms::TextBox> TxtDio{*this, "TxtDio", 0, 2};
    forms::Array<forms::TextBox> TxtCerv{*this, "TxtCerv", 0, 2};
    forms::Array<forms::TextBox> TxtDat{*this, "TxtDat", 0, 2};
    forms::Array<forms::TextBox> TxtCa{*this, "TxtCa", 0, 2};
    forms::Array<forms::TextBox> TxtFem{*this, "TxtFem", 0, 2};
    forms::Array<forms::TextBox> TxtPied{*this, "TxtPied", 0, 2};
    forms::Array<forms::TextBox> TxtTibia{*this, "TxtTibia", 0, 2};
    forms::Array<forms::TextBox> TxtHum{*this, "TxtHum", 0, 2};
    forms::Array<forms::TextBox> TxtNez{*this, "TxtNez", 0, 2};
    forms::Array<forms::TextBox> TxtArtO{*this, "TxtArtO", 0, 2};
    forms::Array<forms::TextBox> TxtArtC{*this, "TxtArtC", 0, 2};

    forms::Button CmdBiometrie{*this, "CmdBiometrie", "&Biometrie"};
    forms::Button Command1{*this, "Command1", "&Cpt Rendu"};
    forms::Button Command2{*this, "Command2", "&Photos"};

    /// The morphology of fetus 0, 1 or 2.
    forms::TextBox& morphology(int fetus);
    const forms::TextBox& morphology(int fetus) const;

    /// Types the report of the exam on show into the editor.
    void CptRendu2T();
    /// Deletes the exam in view.
    void Supprime();

    /// What the display routine does for an exam of this kind: the identity, the fields, the heading, the buttons.
    void display();
    /// Fills the window from the record just corrected. `LblDatExamb`, `Sem_Entier` and the heading stay as they were.
    void refillAfterCorrection();

private:
    void load() override;
    void unloading() override;
    void wireSteps();
    void nameExam();
    void adjustFetusButtons();
};

}  // namespace exams
