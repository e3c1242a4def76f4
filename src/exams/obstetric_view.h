#pragma once

#include "exams/fetus_panels.h"
#include "exams/obstetric_exams.h"
#include "forms/controls.h"
#include "forms/form.h"

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

    forms::Button Hlb1T{*this, "Hlb1T", "Echo &1er Ter"};
    forms::Button Hlb2T{*this, "Hlb2T", "Echo &2 - 3 ème Ter"};
    forms::Button CmdModifs{*this, "CmdModifs", "&Modifier"};
    forms::Button CmdSupprime{*this, "CmdSupprime", "&Supprimer"};
    forms::Button CmdQuitter{*this, "CmdQuitter", "&Quitter"};

protected:
    /// The entries of the menu that both windows have, by what they do.
    struct Entries {
        forms::Menu &newFirst, &newLater, &leave, &detailed, &minimum, &introduction, &help;
    };

    ObstetricView(ObstetricExams& exams, QStringView name, const QString& title, const QString& fetus, int thirdFrame);

    ObstetricExams& exams() const { return exams_; }
    const store::Recordset& record() const { return exams_.life().state().Rs; }

    void wireEntries(const Entries& entries);
    /// Keeps a person from writing in every box but those named.
    void lockBoxesBut(const QStringList& names);
    void copyIdentity();

    /// Without its buttons the panel goes, and the first fetus comes in view: nobody could bring it back.
    void hidePanel();
    /// After a correction: the panel from two fetuses on, its buttons as they stand.
    void showPanelAgain(const QString& count);

    /// Brings up the album on this exam.
    void showPhotos();
    /// Asks and deletes the exam in view; `clearWriting` empties the writing window of the family.
    void deleteExam(const std::function<void()>& clearWriting);

private:
    void bringInView(int which);
    void leave();

    ObstetricExams& exams_;
};

}  // namespace exams
