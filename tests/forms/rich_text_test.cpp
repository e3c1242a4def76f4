#include "forms/rich_text.h"

#include <gtest/gtest.h>

#include <stdexcept>

#include "forms/controls.h"
#include "forms/desk.h"
#include "forms/form.h"

namespace forms {
namespace {

class Editor final : public Form {
public:
    explicit Editor(Desk& desk) : Form(desk, QStringLiteral("Editor"), QStringLiteral("avant")) {}
    RichText Box{*this, "Box"};
    ToolBar Bar{*this, "Bar", {{"Gras", "Bold", "Gras", ToolButton::Push::Toggles}, {"Quitter", "Quitte", "Quitte"}}};
};

class RichTextControl : public ::testing::Test {
protected:
    RichTextControl() {
        box.SelFontName(QStringLiteral("Arial"));
        box.SelFontSize(12);
    }

    Desk desk;
    Editor form{desk};
    RichText& box = form.Box;
};

TEST_F(RichTextControl, GivesATextTheAttributesSetBeforeIt) {
    box.SelAlignment(Alignment::Centre);
    box.SelFontSize(14);
    box.SelBold(true);
    box.SelText(QStringLiteral("Clinique\r\n"));
    box.SelAlignment(Alignment::Left);
    box.SelFontSize(10);
    box.SelBold(false);
    box.SelText(QStringLiteral("Appareil"));
    EXPECT_EQ(box.text(), u"Clinique\r\nAppareil");

    box.select(0, 8);
    EXPECT_EQ(box.SelAlignment(), Alignment::Centre);
    EXPECT_EQ(box.SelFontSize(), 14);
    EXPECT_EQ(box.SelBold(), true);
    EXPECT_EQ(box.SelFontName(), u"Arial");
    box.select(9, 17);
    EXPECT_EQ(box.SelAlignment(), Alignment::Left);
    EXPECT_EQ(box.SelFontSize(), 10);
    EXPECT_EQ(box.SelBold(), false);
}

TEST_F(RichTextControl, SetsWhateverIsToBeInsertedNextInAnyOrder) {
    box.SelBold(true);
    box.SelItalic(true);
    box.SelUnderline(true);
    box.SelStrikeThru(true);
    box.SelColor(Qt::red);
    box.SelAlignment(Alignment::Right);
    box.SelText(QStringLiteral("x"));
    box.select(0, 1);
    EXPECT_EQ(box.SelBold(), true);
    EXPECT_EQ(box.SelItalic(), true);
    EXPECT_EQ(box.SelUnderline(), true);
    EXPECT_EQ(box.SelStrikeThru(), true);
    EXPECT_EQ(box.SelColor(), QColor(Qt::red));
    EXPECT_EQ(box.SelAlignment(), Alignment::Right);
}

TEST_F(RichTextControl, ReadsNothingOfAMixedSelection) {
    box.SelText(QStringLiteral("un\r\n"));
    box.SelBold(true);
    box.SelFontSize(14);
    box.SelAlignment(Alignment::Centre);
    box.SelText(QStringLiteral("deux"));
    box.select(0, 7);
    EXPECT_EQ(box.SelBold(), std::nullopt);
    EXPECT_EQ(box.SelFontSize(), std::nullopt);
    EXPECT_EQ(box.SelAlignment(), std::nullopt);
    EXPECT_EQ(box.SelItalic(), false);
    EXPECT_EQ(box.SelFontName(), u"Arial");
}

TEST_F(RichTextControl, ReadsTheSelectedPieceAloneOfAMixedParagraph) {
    box.SelText(QStringLiteral("un "));
    box.SelBold(true);
    box.SelText(QStringLiteral("deux"));
    box.SelBold(false);
    box.SelText(QStringLiteral(" trois"));
    box.select(3, 7);
    EXPECT_EQ(box.SelBold(), true);
    box.select(7, 3);
    EXPECT_EQ(box.SelBold(), true);
    box.select(2, 7);
    EXPECT_EQ(box.SelBold(), std::nullopt);
    box.select(7, 10);
    EXPECT_EQ(box.SelBold(), false);
}

TEST_F(RichTextControl, TakesItsStateFromTheFirstCharacterAtAVeryStartAndFromTheOneBeforeElsewhere) {
    box.SelBold(true);
    box.SelText(QStringLiteral("gras"));
    box.SelBold(false);
    box.SelText(QStringLiteral("maigre"));
    box.SelStart(0);
    EXPECT_EQ(box.SelBold(), true);
    box.SelStart(4);
    EXPECT_EQ(box.SelBold(), true);
    box.SelStart(5);
    EXPECT_EQ(box.SelBold(), false);
}

TEST_F(RichTextControl, KeepsTheAttributesOfAnEmptyParagraphWhereverTheCaretGoesMeanwhile) {
    box.SelText(QStringLiteral("un\r\n"));
    box.SelBold(true);
    box.SelStart(0);
    EXPECT_EQ(box.SelBold(), false);
    box.SelStart(4);
    EXPECT_EQ(box.SelBold(), true);
    EXPECT_EQ(box.SelFontName(), u"Arial");
}

TEST_F(RichTextControl, InFrontOfATextKeepsToItsOwnAttributes) {
    box.SelBold(true);
    box.SelFontSize(14);
    box.SelText(QStringLiteral("ancien"));
    box.SelStart(0);
    box.SelBold(false);
    box.SelFontSize(10);
    box.SelText(QStringLiteral("un\r\n"));
    box.SelText(QStringLiteral("deux"));
    EXPECT_EQ(box.text(), u"un\r\ndeuxancien");
    box.select(0, 7);
    EXPECT_EQ(box.SelBold(), false);
    EXPECT_EQ(box.SelFontSize(), 10);
    box.select(7, 13);
    EXPECT_EQ(box.SelBold(), true);
    EXPECT_EQ(box.SelFontSize(), 14);
}

TEST_F(RichTextControl, CarriesTheAlignmentOfTheLastParagraphOn) {
    box.SelText(QStringLiteral("texte\r\n"));
    box.SelAlignment(Alignment::Centre);
    box.SelText(QStringLiteral("signature"));
    box.SelText(QStringLiteral("\r\nsuite"));
    EXPECT_EQ(box.SelAlignment(), Alignment::Centre);
    box.SelStart(0);
    EXPECT_EQ(box.SelAlignment(), Alignment::Left);
}

TEST_F(RichTextControl, ReplacesTheSelectionByAText) {
    box.SelText(QStringLiteral("un deux trois"));
    box.select(3, 7);
    EXPECT_EQ(box.SelText(), u"deux");
    box.SelText(QStringLiteral("2"));
    EXPECT_EQ(box.text(), u"un 2 trois");
    EXPECT_EQ(box.SelStart(), 4);
    EXPECT_EQ(box.SelLength(), 0);
    box.select(3, 4);
    box.SelText(QString());
    EXPECT_EQ(box.text(), u"un  trois");
}

TEST_F(RichTextControl, CountsALineEndAsTheTwoCharactersThatItIsInTheText) {
    box.SelText(QStringLiteral("ab\r\ncd\r\nef"));
    box.select(3, 7);
    EXPECT_EQ(box.SelText(), u"cd\r\ne");
    EXPECT_EQ(box.SelStart(), 4);
    EXPECT_EQ(box.SelLength(), 5);
    box.SelStart(4);
    EXPECT_EQ(box.cursor().position(), 3);
    box.SelStart(99);
    EXPECT_EQ(box.cursor().position(), 8);
}

TEST_F(RichTextControl, KeepsNoBreakSpacesAndAccents) {
    const QString text = QStringLiteral("œuf à 37 %\u00a0; é");
    box.SelText(text);
    EXPECT_EQ(box.text(), text);
}

TEST_F(RichTextControl, IsBlackUntilAColourIsChosen) {
    box.SelText(QStringLiteral("x"));
    EXPECT_EQ(box.SelColor(), QColor(Qt::black));
}

TEST_F(RichTextControl, TellsEachChangeOfItsSelectionAtOnce) {
    QStringList told;
    box.onSelectionChange = [&] { told << QString::number(box.SelStart()); };
    box.SelText(QStringLiteral("abc"));
    box.select(0, 2);
    box.select(0, 2);
    EXPECT_EQ(told, QStringList({"3", "0"}));
}

TEST_F(RichTextControl, TellsGroupedStepsOnceAndUndoesThemTogether) {
    int told = 0;
    box.document().clearUndoRedoStacks();
    box.onSelectionChange = [&] { ++told; };
    box.together([&] {
        box.SelText(QStringLiteral("un\r\n"));
        box.SelBold(true);
        box.SelText(QStringLiteral("deux"));
        box.SelStart(0);
    });
    EXPECT_EQ(told, 1);
    EXPECT_EQ(box.SelStart(), 0);
    box.document().undo();
    EXPECT_EQ(box.text(), u"");
}

TEST_F(RichTextControl, FollowsItsViewButNotWhileStepsRunTogether) {
    box.SelText(QStringLiteral("abc"));
    int told = 0;
    box.onSelectionChange = [&] { ++told; };
    box.follow(1, 2);
    EXPECT_EQ(box.SelText(), u"b");
    box.together([&] {
        box.SelStart(0);
        box.follow(3, 3);
    });
    EXPECT_EQ(box.SelStart(), 0);
    told = 0;
    box.follow(0, 0);
    EXPECT_EQ(told, 1) << "the attributes may have changed under it";
}

TEST_F(RichTextControl, KeepsWhatGroupedStepsDidBeforeTheyFailed) {
    EXPECT_THROW(box.together([&] {
        box.SelText(QStringLiteral("début"));
        throw std::runtime_error("fin");
    }),
                 std::runtime_error);
    EXPECT_EQ(box.text(), u"début");
    int told = 0;
    box.onSelectionChange = [&] { ++told; };
    box.SelStart(0);
    EXPECT_EQ(told, 1);
}

TEST_F(RichTextControl, TellsItsViewOfAPlaceAndALineWidth) {
    QList<Aspect> told;
    const auto listening = box.observe([&](Aspect aspect, int) { told << aspect; });
    box.setPlace({100, 500, 3000, 2000});
    box.setPlace({100, 500, 3000, 2000});
    box.setLineWidth(11186);
    box.setLineWidth(11186);
    EXPECT_EQ(told, QList<Aspect>({Aspect::Place, Aspect::LineWidth}));
    EXPECT_EQ(box.lineWidth(), 11186);
    EXPECT_EQ(box.place()->top, 500);
}

TEST_F(RichTextControl, StandsBesideToolButtonsNamedByTheirKeys) {
    const ToolButton& bold = form.Bar(u"Gras");
    const ToolButton& leave = form.Bar(u"Quitter");
    EXPECT_EQ(form.find(u"bar(gras)"), &bold);
    EXPECT_EQ(bold.label(), u"Bar(Gras)");
    EXPECT_EQ(bold.image(), u"Bold");
    EXPECT_EQ(leave.text(), u"Quitte");
    EXPECT_TRUE(bold.toggles());
    EXPECT_FALSE(leave.toggles());
}

TEST_F(RichTextControl, StandsBelowAToolBarThatTellsTheKeyOfTheButtonClicked) {
    QStringList keys;
    form.Bar(u"Gras").click();
    form.Bar.onButtonClick = [&](const QString& key) { keys << key; };
    form.Bar(u"Quitter").click();
    form.Bar(u"Gras").click();
    EXPECT_EQ(keys, QStringList({"Quitter", "Gras"}));
}

TEST(FormTitle, IsToldWhenItChanges) {
    Desk desk;
    Editor form(desk);
    int told = 0;
    const auto listening = form.observeTitle([&] { ++told; });
    form.setTitle(QStringLiteral("Impression"));
    form.setTitle(QStringLiteral("Impression"));
    EXPECT_EQ(form.title(), u"Impression");
    EXPECT_EQ(told, 1);
}

}  // namespace
}  // namespace forms
