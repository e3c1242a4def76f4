#pragma once

#include "forms/form.h"
#include "gyneco/gynaecology_exams.h"
#include "gyneco/gynaecology_fields.h"
#include "gyneco/pages.h"

namespace gyneco {

/// Shows a saved gynaecological exam on two pages, and leads to its reports, its correction and the dossier's other
/// exams of the kind.
class Form18 final : public forms::Form {
public:
    static constexpr QStringView kName = u"Form18";

    explicit Form18(GynaecologyExams& exams);

    forms::Menu Examens{*this, "Examens", "E&xamen"};
    forms::Menu CreeEcho{*this, "CreeEcho", "&Créer Echo"};
    forms::Menu Modifie{*this, "Modifie", "Modifier"};
    forms::Menu Supprime{*this, "Supprime", "Supprimer"};
    forms::Menu Quitte{*this, "Quitte", "Quitter"};
    forms::Menu Affichage{*this, "Affichage", "&Affichage"};
    forms::Menu EchoPelv{*this, "EchoPelv", "Echographie Pelvienne"};
    forms::Menu MonOv{*this, "MonOv", "Monitorage de l'ovulation"};
    forms::Menu Rapports{*this, "Rapports", "Comptes Re&ndus"};
    forms::Menu EchoP{*this, "EchoP", "Echo Pelvienne"};
    forms::Menu Monito{*this, "Monito", "Monitorage Ovulation"};
    forms::Menu Interro{*this, "Interro", "&?"};
    forms::Menu Aide{*this, "Aide", "Aide"};
    forms::Menu APropos{*this, "APropos", "A propos"};

    forms::Label LblNom{*this, "LblNom"};
    forms::Label LblPrenom{*this, "LblPrenom"};
    forms::Label LblNumInt{*this, "LblNumInt"};
    forms::TextBox TxtNumEcho{*this, "TxtNumEcho"};
    forms::TextBox TxtDate{*this, "TxtDate"};
    forms::Label LblMachine{*this, "LblMachine"};
    forms::Label LblDateCirc{*this, "LblDateCirc"};
    Pages pages{*this};

    forms::ComboBox CmbMedecin{*this, "CmbMedecin"};
    forms::TextBox TxtDdr{*this, "TxtDdr"};
    forms::Label LblDatExamb{*this, "LblDatExamb"};
    forms::ComboBox CmbModExam{*this, "CmbModExam"};
    forms::ComboBox CmbCondExam{*this, "CmbCondExam"};
    /// Counted on their own: these are not the indexes of the writing window.
    forms::Array<forms::TextBox> TxtGyneco{*this, "TxtGyneco", 0, kLastShownField};
    forms::TextBox TxtJStim{*this, "TxtJStim"};
    forms::TextBox TxtDimD{*this, "TxtDimD"};
    forms::TextBox TxtNbrFolD{*this, "TxtNbrFolD"};
    forms::TextBox TxtTFolD{*this, "TxtTFolD"};
    forms::TextBox TxtDimG{*this, "TxtDimG"};
    forms::TextBox TxtNbrFolG{*this, "TxtNbrFolG"};
    forms::TextBox TxtTFolG{*this, "TxtTFolG"};
    forms::TextBox TxtEndom{*this, "TxtEndom"};
    forms::TextBox Text1{*this, "Text1"};
    forms::TextBox Text2{*this, "Text2"};

    forms::Button CmdPrem{*this, "CmdPrem", "1&er"};
    forms::Button CmdRec{*this, "CmdRec", "&<"};
    forms::Button CmdAv{*this, "CmdAv", "&>"};
    forms::Button CmdDer{*this, "CmdDer", "De&r"};

    forms::Button Command2{*this, "Command2", "M. &Ovulation"};
    forms::Button Command3{*this, "Command3", "Echo. &Pelv."};
    forms::Button CmdCptGyn{*this, "CmdCptGyn", "&Cpt Rendu"};
    forms::Button CmdCptStim{*this, "CmdCptStim", "Cpt &Rendu"};
    forms::Button Command1{*this, "Command1", "Pho&tos"};
    forms::Button CmdModifs{*this, "CmdModifs", "&Modifier"};
    forms::Button CmdSupprime{*this, "CmdSupprime", "&Supprimer"};
    forms::Button HlbGyn{*this, "HlbGyn", "Echo &Gynéco"};
    forms::Button CmdQuitter{*this, "CmdQuitter", "&Quitter"};

    /// Types the report of the pelvic exam, or that of the monitoring, of the exam on show into the editor.
    void CptRenduGyneco();
    void CptRenduOvulation();
    /// Opens the correction window on the exam in view.
    void Modif();
    /// Deletes the exam in view.
    void Supprim();
    /// Fills the window from the current record of `Rs`, with the identity of the open dossier.
    void display();

private:
    void unloading() override;
    void wireMenus();
    void wireButtons();
    void fillFrames();
    void turnToMonitoring();
    void turnToPelvic();
    void showPhotos();

    GynaecologyExams& exams_;
};

}  // namespace gyneco
