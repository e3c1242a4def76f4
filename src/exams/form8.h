#pragma once

#include "exams/dating_steps.h"
#include "exams/later_sheet.h"
#include "forms/form.h"

namespace exams {

/// Writes a new exam of the second or third trimester.
class Form8 final : public forms::Form {
public:
    static constexpr QStringView kName = u"Form8";

    explicit Form8(ObstetricExams& exams);

    forms::Menu Morphologie{*this, "Morphologie", "&Morphologie"};
    forms::Menu Perso{*this, "Perso", "Morpho Personnelle", true};
    forms::Menu Bourgeois{*this, "Bourgeois", "Morpho Taiple", false};

    LaterSheet sheet;
    forms::TextBox TxtTypecho{*this, "TxtTypecho", "0"};
    forms::Label LblAgeGesta{*this, "LblAgeGesta"};
    forms::Label lblNumEcho{*this, "lblNumEcho", "001"};
    forms::Option Option1{*this, "Option1", "G. Simple", true};
    forms::Option Option2{*this, "Option2", "G. Gemellaire"};
    forms::Option Option3{*this, "Option3", "G. Triple"};
    // Each puts a zone of the published morphology list into the fetus in view.
    forms::Button CmdZoneA{*this, "CmdZoneA", "Zone &A"};
    forms::Button CmdZoneB{*this, "CmdZoneB", "Zone &B"};
    forms::Button CmdZoneC{*this, "CmdZoneC", "Zone &C"};
    forms::Button CmdZoneD{*this, "CmdZoneD", "Zone &D"};
    // Stand on the window; no step reads or writes them.
    forms::TextBox TxtNumFoet{*this, "TxtNumFoet", "1"};
    forms::Label Label36{*this, "Label36", "Foetus N°"};
    forms::Label Label37{*this, "Label37", "2"};
    forms::Button CmdPhotos{*this, "CmdPhotos", "&Photos"};
    forms::Button CmdEnregis{*this, "CmdEnregis", "&Enregistrer"};
    forms::Button CmdQuitter{*this, "CmdQuitter", "&Quitter"};

    /// Comes up empty on a new exam of the open dossier, with its number.
    void openNew();
    /// Empties the weight, the height and the fields; the number of fetuses and the frames stay.
    void clear();

private:
    void load() override;
    void unloading() override;
    void wireFields();
    void wireZones();
    void wireButtons();

    std::array<forms::Option*, FetusPanels::kMost> options() { return {&Option1, &Option2, &Option3}; }
    void choosePublished(bool published);
    void offerMorphology(int index);
    void insertZone(int rubric);
    void appendZone(int index);
    void onOption(int count);
    void onFetusesChange();
    void save();
    void addRecord();

    ObstetricExams& exams_;
    DatingSteps dating_;
};

}  // namespace exams
