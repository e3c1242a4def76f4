#pragma once

#include "dossier/exam_doors.h"
#include "dossier/history.h"
#include "forms/controls.h"
#include "forms/form.h"
#include "ports/surroundings.h"
#include "store/state.h"

namespace dossier {

/// The dossier window: finds a patient, shows her sheet and her past exams, and starts everything else about her.
class Form4 final : public forms::Form {
public:
    static constexpr QStringView kName = u"Form4";

    Form4(ports::Surroundings& around, store::State& state, ExamDoors& exams);

    // The patient shown. An empty surname tells that no dossier is open.
    forms::Label NumLbl{*this, "NumLbl"};
    forms::Label LblCivilite{*this, "LblCivilite"};
    forms::Label NomLbl{*this, "NomLbl"};
    forms::Label PrenomLbl{*this, "PrenomLbl"};
    forms::ListBox LstCiv{*this, "LstCiv"};

    forms::Frame Frame5{*this, "Frame5", "Rechercher  Un Dossier"};
    forms::TextBox Text1{*this, "Text1"};
    forms::TextBox Text2{*this, "Text2"};
    forms::Button Command1{*this, "Command1", "&Debut"};
    forms::Button Command3{*this, "Command3", "&<"};
    forms::Button Command4{*this, "Command4", "&>"};
    forms::Button Command2{*this, "Command2", "&Fin"};

    forms::Frame Frame2{*this, "Frame2", "Nouvelle Echographie"};
    forms::Button Cmd1Ter{*this, "Cmd1Ter", "&1 er Ter"};
    forms::Button Cmd2Ter{*this, "Cmd2Ter", "&2 -3 ème Ter"};
    forms::Button CmdGyneco{*this, "CmdGyneco", "&Gyneco"};

    forms::Frame Frame3{*this, "Frame3", "Revoir un Compte Rendu Obstétrical"};
    forms::Button HlbCptDate{*this, "HlbCptDate", "Lis&te par date"};
    forms::Button HlbCptDer{*this, "HlbCptDer", "De&rnier examen"};
    forms::ListBox List1{*this, "List1"};

    forms::Frame Frame6{*this, "Frame6", "Revoir un Compte Rendu Gynéco"};
    forms::Button Command6{*this, "Command6", "&Liste par date"};
    forms::Button Command5{*this, "Command5", "Dernier e&xamen"};
    forms::ListBox List2{*this, "List2"};

    forms::Button CmdCreeDossier{*this, "CmdCreeDossier", "&Nouveau"};
    forms::Button CmdModifie{*this, "CmdModifie", "&Modifier"};
    forms::Button CmdSupprime{*this, "CmdSupprime", "&Supprimer"};

    forms::Button CmdATCD{*this, "CmdATCD", "Informations"};
    forms::TextBox TxtATCD{*this, "TxtATCD"};
    forms::Button CmdEnregATCD{*this, "CmdEnregATCD", "Enregistrer les Informations"};

    // The letterhead of every report.
    forms::Frame Frame4{*this, "Frame4", "En-tête"};
    forms::TextBox TxtEta{*this, "TxtEta"};
    forms::TextBox TxtNom{*this, "TxtNom"};
    forms::TextBox TxtAdress{*this, "TxtAdress"};
    forms::TextBox TxtVille{*this, "TxtVille"};
    forms::TextBox TxtTel{*this, "TxtTel"};

    forms::Image Image1{*this, "Image1"};
    forms::Button Menu{*this, "Menu", "Menu"};
    forms::Button CmdQuitter{*this, "CmdQuitter", "&Quitter"};

    /// Shows the patient of the current record of `Rs`.
    void AFFICHE_FICHE();
    /// Writes the name of the current record of `Rs` into the window of a new first-trimester exam.
    void AFFICHE_1();
    /// Shows the latest obstetric exam of the open dossier, or says that there is none.
    void showLastObstetricExam();
    /// Puts `Rs` on all patients, by surname.
    void queryByName();
    /// The same, after opening their file anew.
    void reopenPatients();
    /// Takes the patient off the window. `NumLbl` stays as it was.
    void clearDisplay();

private:
    /// The exams of one kind: where they lie, and which list and words they have on this window.
    struct ExamList {
        QString table;
        forms::ListBox& list;
        QString noneOfThisDate;
        void (ExamDoors::*display)();
    };

    void load() override;
    void unloading() override;

    void wireSearch();
    void wireBrowsing();
    void wireExams();
    void wireDossier();

    void loadLetterhead();

    void onText1Change();
    void onText2Change();
    void enableBrowsing();
    void showEnd(void (store::Recordset::*move)());
    void step(void (store::Recordset::*move)());

    bool dossierOpen() const { return !NomLbl.text().isEmpty(); }
    bool requireDossier();
    QString number() const;
    void fillList(const ExamList& exams);
    void openFromList(const ExamList& exams);
    void openLast(const ExamList& exams);
    void openFound(const ExamList& exams, const QString& criterion, const QString& none);
    void startExam(ExamFamily family);
    void onCmdCreeDossierClick();
    void onCmdModifieClick();
    void standOnShownPatient();
    void onCmdSupprimeClick();

    ports::Surroundings& around_;
    store::State& state_;
    ExamDoors& exams_;
    History history_{state_, NumLbl, TxtATCD, CmdEnregATCD};
    ExamList obstetric_;
    ExamList gynaecology_;
};

}  // namespace dossier
