#pragma once

#include "fakes/practice_files.h"
#include "forms/form.h"
#include "responses/offer_panel.h"

namespace fakes {

inline constexpr auto kSampleFields = std::to_array<responses::ExamField>({
    {0, u"IMC", u"BMI", responses::nothing()},
    {1, u"Opérateur", u"OPERATEUR", responses::phrases(1)},
    {2, u"DDR", u"DDR", responses::calendar()},
    {3, u"DDG", u"DG", responses::calendar()},
    {4, u"Nombre", u"NBRE", responses::numbers(0, 3, 1)},
    {5, u"Conclusion", u"CONCLU1", responses::phrases(16)},
    {6, u"M.A.", u"MA", responses::phrases(6)},
    {7, u"LCC (mm)", u"LCC", responses::numbers(4, 100, 60)},
    {8, u"Clarté Nucale", u"NUQUE", responses::tenths(6, 50, 20)},
    {responses::kOutside, u"", u"Ca", responses::nothing(), u"TxtCa1"},
    {9, u"M.A.", u"MA2", responses::phrases(6)},
    {10, u"LCC (mm)", u"LCC2", responses::numbers(4, 100, 60)},
    {11, u"Clarté Nucale", u"NUQUE2", responses::tenths(6, 50, 20)},
});
static_assert(responses::coversEachIndexOnce(kSampleFields, 0, 11));

/// An exam window of two fetuses, to try on it what fills the fields. The common fields go from 1 to 5 and round.
class SampleExam final : public forms::Form {
public:
    static constexpr QStringView kName = u"Essai";

    SampleExam(World& world, store::State& state)
        : Form(world.desk, kName.toString(), "Essai"), panel(state, world.clock, kSampleFields, Txt, controls, {5}) {
        FrameJ1.holds(Txt(6), Txt(7), Txt(8), TxtCa1);
        FrameJ2.holds(Txt(9), Txt(10), Txt(11));
        FrameJ2.hide();
        panel.addFreeEntry(Text2);
    }

    forms::Array<forms::TextBox> Txt{*this, "Txt", 0, 11};
    forms::TextBox TxtCa1{*this, "TxtCa1"};
    forms::Frame FrameJ1{*this, "FrameJ1", "Embryon"};
    forms::Frame FrameJ2{*this, "FrameJ2", "Embryon N°2"};
    forms::ListBox List1{*this, "List1"};
    forms::ListBox List2{*this, "List2"};
    forms::Calendar Calendar1{*this, "Calendar1"};
    forms::TextBox Text1{*this, "Text1"};
    forms::TextBox Text2{*this, "Text2"};
    forms::Button CmdEfface{*this, "CmdEfface", "Effacer"};
    const responses::PanelControls controls{List1, List2, Calendar1, Text1, CmdEfface};
    responses::OfferPanel panel;
};

/// The sample window, shown, on the files of a practice.
struct SampleExamWorld : World {
    SampleExamWorld() {
        makeFiles(*this);
        desk.add("Essai", [this] { return std::make_unique<SampleExam>(*this, state); });
        state.DbEcho = store::Database::open(pathOf(*this, store::FileKind::Echo));
        desk.show("Essai");
        form = &desk.at<SampleExam>();
    }

    void addPhrase(int rubric, const QString& text, const store::Value& closing) {
        add(*this, "OPTIONS", {{"NUMEROS", rubric}, {"Texte", text}, {"TERMINAIS", closing}});
    }

    store::State state;
    SampleExam* form = nullptr;
};

}  // namespace fakes
