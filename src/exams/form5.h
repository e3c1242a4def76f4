#pragma once

#include "exams/dating_steps.h"
#include "exams/first_trimester_sheet.h"
#include "forms/form.h"

namespace exams {

/// Writes a new first-trimester exam.
class Form5 final : public forms::Form {
public:
    static constexpr QStringView kName = u"Form5";

    explicit Form5(ObstetricExams& exams);

    FirstTrimesterSheet sheet;
    forms::TextBox TxtCa1{*this, "TxtCa1"};
    forms::TextBox TxtCa2{*this, "TxtCa2"};
    forms::TextBox TxtCa3{*this, "TxtCa3"};
    // Stand on the window; no step reads or writes them.
    forms::TextBox TxtNumFoet{*this, "TxtNumFoet", "1"};
    forms::Label Label31{*this, "Label31", "Embryon N°"};
    forms::Label Label32{*this, "Label32", "2"};
    forms::Button Command2{*this, "Command2", "DGUS"};
    forms::Button CmdPhotos{*this, "CmdPhotos", "&Photos"};
    forms::Button CmdEnregis{*this, "CmdEnregis", "&Enregistrer"};
    forms::Button CmdQuitter{*this, "CmdQuitter", "&Quitter"};

    void AFFCIVILITES();
    /// Comes up empty on a new exam of the open dossier, with its number.
    void openNew();
    /// Empties the window but for the abdominal circumferences; the date is today's.
    void clear();

private:
    void unloading() override;
    void wireFields();
    void wireButtons();

    void onEmbryosChange();
    void onDateFromLength();
    void save();
    void addRecord();
    forms::TextBox& field(int index) { return sheet.Txt1Ter(index); }

    ObstetricExams& exams_;
    DatingSteps dating_;
    /// The number of embryos as last read; a text that is no number leaves it.
    std::int16_t embryos_ = 0;
};

}  // namespace exams
