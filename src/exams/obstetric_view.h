#pragma once

#include "exams/fetus_panels.h"
#include "exams/obstetric_exams.h"
#include "exams/settings_file.h"
#include "forms/controls.h"
#include "forms/form.h"
#include "reports/sections.h"

namespace exams {

/// What the viewing windows of both obstetric families have in common: what every exam says, which fetus is in view,
/// and the ways to the dossier's other exams. What they don't show alike stands in each of them.
class ObstetricView : public forms::Form, public FetusPanels {
public:
    forms::Label LblNom{*this, "LblNom"};
    forms::Label LblPrenom{*this, "LblPrenom"};
    forms::Label LblNumInt{*this, "LblNumInt"};
    forms::Label LblNumEcho{*this, "LblNumEcho"};
    forms::Label LblDatExam{*this, "LblDatExam"};
    forms::Label LblDatExamb{*this, "LblDatExamb"};
    forms::Label LblAgeGesta{*this, "LblAgeGesta"};
    forms::Label LblDDR{*this, "LblDDR"};
    forms::Label LblDG{*this, "LblDG"};
    forms::Label LblDGUS{*this, "LblDGUS"};
    forms::Label LblIMC{*this, "LblIMC"};
    forms::Label LblMachine{*this, "LblMachine"};
    forms::Label LblDateCirc{*this, "LblDateCirc"};
    forms::Label LblOperateur{*this, "LblOperateur"};
    forms::Label LblModalites{*this, "LblModalites"};
    forms::Label LblConditions{*this, "LblConditions"};
    forms::TextBox TxtIndic{*this, "TxtIndic"};
    forms::TextBox TxtUterus{*this, "TxtUterus"};
    forms::TextBox TxtAnnexes{*this, "TxtAnnexes"};
    forms::TextBox TxtDouglas{*this, "TxtDouglas"};
    forms::TextBox TxtConclu1{*this, "TxtConclu1"};

    forms::Frame Frame12{*this, "Frame12", "Voir les autres Echos "};
    forms::Button CmdPrem{*this, "CmdPrem", "1&er"};
    forms::Button CmdRec{*this, "CmdRec", "&<"};
    forms::Button CmdAv{*this, "CmdAv", "&>"};
    forms::Button CmdDer{*this, "CmdDer", "De&r"};

    forms::Menu Examens{*this, "Examens", "E&xamen"};
    forms::Menu Rapports{*this, "Rapports", "C&omptes Rendus"};
    forms::Menu TypeCptR{*this, "TypeCptR", "&Type de Compte Rendu"};
    forms::Menu CptrD{*this, "CptrD", "Compte Rendu Détaillé", true};
    forms::Menu CptrM{*this, "CptrM", "Compte Rendu Minimum", false};
    forms::Menu Intro{*this, "Intro", "Avec Introduction", true};
    forms::Menu Aide{*this, "Aide", "A&ide"};

    forms::Button Hlb1T{*this, "Hlb1T", "Echo &1er Ter"};
    forms::Button Hlb2T{*this, "Hlb2T", "Echo &2 - 3 ème Ter"};
    forms::Button CmdModifs{*this, "CmdModifs", "&Modifier"};
    forms::Button CmdSupprime{*this, "CmdSupprime", "&Supprimer"};
    forms::Button CmdQuitter{*this, "CmdQuitter", "&Quitter"};

protected:
    ObstetricView(ObstetricExams& exams, QStringView name, const QString& title, const QString& fetus, int thirdFrame);

    ObstetricExams& exams() const { return exams_; }
    const store::Recordset& record() const { return exams_.life().state().Rs; }

    /// The entries that lead on from here.
    void wireEntries(forms::Menu& newFirst, forms::Menu& newLater, forms::Menu& leaving);
    void copyIdentity();

    /// Marks the style of the reports as the settings file says; without one it stays.
    void takeMarks(bool MenuMarks::*detailed, bool MenuMarks::*other);
    /// What the marks ask of a report.
    reports::Detail detail() const;
    std::optional<QString> introduction() const;

    /// Without its buttons the panel goes, and the first fetus comes in view: nobody could bring it back.
    void hidePanel();
    /// After a correction: the panel from two fetuses on, its buttons as they stand.
    void showPanelAgain(const QString& count);

    /// Brings up the album on this exam.
    void showPhotos();
    /// Asks and deletes the exam in view; `clearWriting` empties the writing window of the family.
    void deleteExam(const std::function<void()>& clearWriting);

private:
    void wireStyle();
    void bringInView(int which);
    void leave();

    ObstetricExams& exams_;
};

}  // namespace exams
