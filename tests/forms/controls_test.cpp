#include "forms/controls.h"

#include <gtest/gtest.h>

#include "forms/sample_form.h"

namespace forms {
namespace {

class Controls : public ::testing::Test {
protected:
    QStringList log_;
    Desk desk_;
    SampleForm form_{desk_, QStringLiteral("Sample"), log_};
};

TEST_F(Controls, WritingAnotherTextFiresOneChange) {
    int changes = 0;
    form_.Text1.onChange = [&] { ++changes; };
    form_.Text1.setText("a");
    EXPECT_EQ(changes, 1);
    EXPECT_EQ(form_.Text1.text(), "a");
}

TEST_F(Controls, WritingTheSameTextIsSilent) {
    int changes = 0;
    form_.Text1.setText("a");
    form_.Text1.onChange = [&] { ++changes; };
    form_.Text1.setText("a");
    EXPECT_EQ(changes, 0);
}

TEST_F(Controls, AChangeInsideAChangeRunsBeforeTheWriteReturns) {
    QStringList order;
    form_.Text1.onChange = [&] {
        order << "first:" + form_.Text1.text();
        form_.Text2.setText("x");
        order << "after";
    };
    form_.Text2.onChange = [&] { order << "second:" + form_.Text1.text(); };
    form_.Text1.setText("a");
    EXPECT_EQ(order, QStringList({"first:a", "second:a", "after"}));
}

TEST_F(Controls, AViewReadsTheLastTextWhenAHandlerWritesAgain) {
    QString seen;
    const Subscription view = form_.Text1.observe([&](Aspect, int) { seen = form_.Text1.text(); });
    form_.Text1.onChange = [&] { form_.Text1.setText("b"); };
    form_.Text1.setText("a");
    EXPECT_EQ(seen, "b");
}

TEST_F(Controls, AnObserverIsToldUntilItsSubscriptionGoes) {
    int told = 0;
    {
        const Subscription view = form_.Label1.observe([&](Aspect, int) { ++told; });
        form_.Label1.setText("un");
    }
    form_.Label1.setText("deux");
    EXPECT_EQ(told, 1);
}

TEST_F(Controls, AnOptionSwitchesOffTheOthersOfItsFrameAlone) {
    form_.Option1.setChecked(true);
    form_.Option3.setChecked(true);
    form_.Option2.setChecked(true);
    EXPECT_FALSE(form_.Option1.checked());
    EXPECT_TRUE(form_.Option2.checked());
    EXPECT_TRUE(form_.Option3.checked());
}

TEST_F(Controls, AListKeepsItsChoiceOnTheSameLineWhenOthersComeAndGo) {
    for (const char* line : {"un", "deux", "trois"}) {
        form_.List1.add(line);
    }
    form_.List1.setRow(1);
    form_.List1.insert(0, "zero");
    EXPECT_EQ(form_.List1.text(), "deux");
    form_.List1.remove(0);
    EXPECT_EQ(form_.List1.text(), "deux");
    form_.List1.remove(1);
    EXPECT_EQ(form_.List1.row(), -1);
    EXPECT_EQ(form_.List1.items(), QStringList({"un", "trois"}));
}

TEST_F(Controls, AClearedListHasNoChoice) {
    form_.List1.add("un");
    form_.List1.setRow(0);
    form_.List1.clear();
    EXPECT_EQ(form_.List1.row(), -1);
    EXPECT_EQ(form_.List1.text(), "");
}

TEST_F(Controls, AListTakesOtherLinesAsOneChange) {
    form_.List1.add("un");
    form_.List1.setRow(0);
    QList<Aspect> told;
    const Subscription view = form_.List1.observe([&](Aspect aspect, int) { told << aspect; });
    form_.List1.setItems({"deux", "trois"});
    EXPECT_EQ(form_.List1.items(), QStringList({"deux", "trois"}));
    EXPECT_EQ(form_.List1.row(), -1);
    EXPECT_EQ(told, QList<Aspect>({Aspect::Items}));
}

TEST_F(Controls, ADayIsChosenAsOftenAsAPersonChoosesIt) {
    QList<QDate> chosen;
    form_.Calendar1.onDateChosen = [&](QDate date) { chosen << date; };
    form_.Calendar1.setDate(QDate(2002, 4, 5));
    EXPECT_TRUE(chosen.isEmpty());
    EXPECT_EQ(form_.Calendar1.text(), "05/04/2002");
    form_.Calendar1.choose(QDate(2002, 4, 5));
    form_.Calendar1.choose(QDate(2002, 4, 6));
    EXPECT_EQ(chosen, QList<QDate>({QDate(2002, 4, 5), QDate(2002, 4, 6)}));
    EXPECT_EQ(form_.Calendar1.date(), QDate(2002, 4, 6));
}

TEST_F(Controls, AChoiceBeyondTheLinesIsNone) {
    form_.List1.add("un");
    form_.List1.setRow(5);
    EXPECT_EQ(form_.List1.row(), -1);
}

TEST_F(Controls, AnArrayElementIsFoundByNameAndNumberWithoutRegardToCase) {
    EXPECT_EQ(form_.find(u"texts", 2), &form_.Texts(2));
    EXPECT_EQ(form_.find(u"TEXT1"), &form_.Text1);
    EXPECT_EQ(form_.find(u"Texts", 4), nullptr);
    EXPECT_EQ(form_.find(u"Texts"), nullptr);
}

TEST_F(Controls, AnArrayOfOneAnswersToItsBareName) {
    EXPECT_EQ(form_.find(u"Lone"), &form_.Lone(3));
}

TEST_F(Controls, AControlOfAHiddenOrDisabledFrameIsOutOfReach) {
    EXPECT_TRUE(form_.Text2.reachable());
    form_.Frame1.hide();
    EXPECT_FALSE(form_.Text2.reachable());
    EXPECT_TRUE(form_.Text2.visible());
    form_.Frame1.show();
    form_.Frame1.setEnabled(false);
    EXPECT_FALSE(form_.Text2.reachable());
}

TEST_F(Controls, ASelectionStaysInsideTheText) {
    form_.Text1.setText("dossier");
    form_.Text1.select(3, 100);
    EXPECT_EQ(form_.Text1.selectedText(), "sier");
    form_.Text1.select(100, 1);
    EXPECT_EQ(form_.Text1.selectionStart(), 7);
    EXPECT_EQ(form_.Text1.selectionLength(), 0);
}

TEST_F(Controls, AScrollBarStaysInsideItsRangeAndTellsAChangeOnce) {
    QList<int> told;
    form_.Scroll1.onChange = [&] { told << form_.Scroll1.value(); };
    form_.Scroll1.setValue(90);
    form_.Scroll1.setValue(500);
    form_.Scroll1.setValue(100);
    form_.Scroll1.setValue(-3);
    EXPECT_EQ(told, QList<int>({100, 1}));
}

TEST_F(Controls, APlaceForAPictureIsEmptyAtFirstAndWhenCleared) {
    EXPECT_TRUE(form_.Image1.empty());
    int told = 0;
    const Subscription view = form_.Image1.observe([&](Aspect aspect, int) { told += aspect == Aspect::Picture; });
    form_.Image1.setPicture(QImage(4, 3, QImage::Format_RGB32));
    EXPECT_EQ(form_.Image1.picture().size(), QSize(4, 3));
    form_.Image1.clear();
    EXPECT_TRUE(form_.Image1.empty());
    EXPECT_EQ(told, 2);
}

TEST_F(Controls, APlaceForAPictureTellsItsDrawingByName) {
    int told = 0;
    const Subscription view = form_.Image1.observe([&](Aspect aspect, int) { told += aspect == Aspect::Picture; });
    form_.Image1.setDrawing("femur");
    form_.Image1.setDrawing("femur");
    EXPECT_EQ(form_.Image1.text(), "femur");
    EXPECT_EQ(told, 1);
}

TEST_F(Controls, AMarkerKeepsItsSpotToTheFractionOfATwip) {
    QList<Aspect> told;
    const Subscription view = form_.Marker1.observe([&](Aspect aspect, int) { told << aspect; });
    EXPECT_FALSE(form_.Marker1.spot().has_value());
    form_.Marker1.moveTo({3990.1724F, 1205});
    form_.Marker1.moveTo({3990.1724F, 1205});
    form_.Marker1.setColor(0xE00000);
    form_.Marker1.setColor(0xE00000);
    EXPECT_EQ(form_.Marker1.spot(), (Spot{3990.1724F, 1205}));
    EXPECT_EQ(form_.Marker1.color(), Color(0xE00000));
    EXPECT_EQ(kindName(form_.Marker1.kind()), "Marker");
    EXPECT_EQ(told, QList<Aspect>({Aspect::Place, Aspect::Colors}));
}

TEST_F(Controls, ALabelTellsAnotherSizeOfItsTextOnce) {
    QList<Aspect> told;
    const Subscription view = form_.Label1.observe([&](Aspect aspect, int) { told << aspect; });
    EXPECT_FALSE(form_.Label1.points().has_value());
    form_.Label1.setPoints(10);
    form_.Label1.setPoints(10);
    EXPECT_EQ(form_.Label1.points(), 10);
    EXPECT_EQ(told, QList<Aspect>({Aspect::Points}));
}

TEST(KeyPress, KeepsReplacesOrSwallowsItsCharacter) {
    KeyPress key(u'a');
    EXPECT_EQ(key.character(), u'a');
    key.replace(u'A');
    EXPECT_EQ(key.character(), u'A');
    EXPECT_FALSE(key.swallowed());
    key.swallow();
    EXPECT_TRUE(key.swallowed());
}

/// Three panels over each other, each with a field.
class Panels final : public Form {
public:
    explicit Panels(Desk& desk) : Form(desk, QStringLiteral("Panels"), QStringLiteral("Essai")) {
        Lower.holds(InLower);
        Middle.holds(InMiddle);
        Upper.holds(InUpper);
        Middle.layOver(Lower);
        Upper.layOver(Lower);
        Upper.layOver(Middle);
    }
    Frame Lower{*this, "Lower"};
    Frame Middle{*this, "Middle"};
    Frame Upper{*this, "Upper"};
    TextBox InLower{*this, "InLower"};
    TextBox InMiddle{*this, "InMiddle"};
    TextBox InUpper{*this, "InUpper"};
};

class OverlaidPanels : public ::testing::Test {
protected:
    OverlaidPanels() {
        desk_.add("Panels", [this] { return std::make_unique<Panels>(desk_); });
        desk_.show("Panels");
        form_ = static_cast<Panels*>(&desk_.at("Panels"));
    }
    Desk desk_;
    Panels* form_ = nullptr;
};

TEST_F(OverlaidPanels, OfTheVisibleOnesTheTopmostAloneCanBeReached) {
    EXPECT_TRUE(form_->InUpper.reachable());
    EXPECT_TRUE(form_->Lower.covered() && form_->Middle.covered() && !form_->Upper.covered());
    form_->Upper.hide();
    EXPECT_TRUE(form_->InMiddle.reachable());
    EXPECT_FALSE(form_->InUpper.reachable() || form_->InLower.reachable());
    form_->Middle.hide();
    EXPECT_TRUE(form_->InLower.reachable());
    EXPECT_TRUE(form_->Lower.visible());
}

TEST_F(OverlaidPanels, AFieldOfACoveredOneTakesNoFocusAndOneThatIsCoveredLosesIt) {
    form_->InMiddle.setFocus();
    EXPECT_EQ(form_->focused(), nullptr);
    form_->Upper.hide();
    form_->InMiddle.setFocus();
    EXPECT_EQ(form_->focused(), &form_->InMiddle);
    form_->Upper.show();
    EXPECT_EQ(form_->focused(), nullptr);
}

TEST_F(OverlaidPanels, TellTheirViewsWhenTheOneAboveComesOrGoes) {
    int told = 0;
    const Subscription watch = form_->Lower.observe([&](Aspect aspect, int) { told += aspect == Aspect::Visible; });
    form_->Upper.hide();
    form_->Upper.show();
    EXPECT_EQ(told, 2);
}

}  // namespace
}  // namespace forms
