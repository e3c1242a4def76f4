#include "responses/offer_panel.h"

#include <gtest/gtest.h>

#include "fakes/sample_exam.h"

namespace responses {
namespace {

using Lines = QStringList;

class FieldOffers : public ::testing::Test {
protected:
    void focus(forms::Control& control) {
        world_.desk.act([&] { control.setFocus(); });
    }
    void focus(int index) { focus(field(index)); }
    void doubleClick(forms::ListBox& list, int row) {
        list.setRow(row);
        world_.desk.act([&] { list.doubleClick(); });
    }
    void rightClick(forms::ListBox& list) { world_.desk.act(list.onRightClick); }
    void enter(forms::TextBox& box) { world_.desk.act(box.onEnter); }
    forms::TextBox& field(int index) { return form_.Txt(index); }
    QString text(int index) { return field(index).text(); }
    int focused() const { return form_.focused()->index(); }

    fakes::SampleExamWorld world_;
    fakes::SampleExam& form_ = *world_.form;
    OfferPanel& panel_ = form_.panel;
};

TEST_F(FieldOffers, HideNumbersAndCalendarAtFirst) {
    EXPECT_FALSE(form_.List2.visible());
    EXPECT_FALSE(form_.Calendar1.visible());
    EXPECT_EQ(panel_.current(), 0);
}

TEST_F(FieldOffers, ListThePhrasesOfTheRubricWithTheirSuffixes) {
    world_.addPhrase(1, "suite", "A");
    world_.addPhrase(1, "ligne", "B");
    world_.addPhrase(1, "clôt", "C");
    world_.addPhrase(1, "autre", "D");
    world_.addPhrase(1, "aucune", {});
    world_.addPhrase(2, "ailleurs", "A");
    focus(1);
    EXPECT_EQ(form_.List1.items(), Lines({"suite ", "ligne\r\n", "clôt\t", "autre", "aucune"}));
    EXPECT_EQ(world_.state.SqlEcho, "SELECT*FROM OPTIONS WHERE NUMEROS = 1 ORDER BY INDEX");
    EXPECT_TRUE(world_.state.Rs.eof());
    EXPECT_EQ(panel_.current(), 1);
}

TEST_F(FieldOffers, ListNothingForARubricWithoutPhrases) {
    world_.addPhrase(1, "suite", "A");
    focus(1);
    focus(5);
    EXPECT_EQ(form_.List1.count(), 0);
}

TEST_F(FieldOffers, FillFromAnyQueryPutInSqlEcho) {
    world_.addPhrase(27, "b", "A");
    world_.addPhrase(26, "a", "A");
    world_.state.SqlEcho = "SELECT*FROM OPTIONS WHERE NUMEROS = 26OR NUMEROS = 27 ORDER BY NUMEROS, INDEX";
    panel_.BOUCLE();
    EXPECT_EQ(form_.List1.items(), Lines({"a ", "b "}));
}

TEST_F(FieldOffers, ShowTheNumbersWithTheTypicalOneChosen) {
    world_.addPhrase(1, "suite", "A");
    focus(1);
    focus(7);
    EXPECT_TRUE(form_.List2.visible());
    EXPECT_EQ(form_.List1.count(), 0);
    EXPECT_EQ(form_.List2.count(), 97);
    EXPECT_EQ(form_.List2.items().first(), "4");
    EXPECT_EQ(form_.List2.items().last(), "100");
    EXPECT_EQ(form_.List2.text(), "60");
    focus(8);
    EXPECT_EQ(form_.List2.count(), 45);
    EXPECT_EQ(form_.List2.text(), "2");
}

TEST_F(FieldOffers, HideTheNumbersForAFieldThatOffersNone) {
    for (const int other : {0, 1, 2}) {
        focus(4);
        ASSERT_TRUE(form_.List2.visible());
        focus(other);
        EXPECT_FALSE(form_.List2.visible()) << other;
    }
}

TEST_F(FieldOffers, LeaveTheListsOfAFieldThatOffersNothing) {
    world_.addPhrase(1, "suite", "A");
    focus(1);
    focus(0);
    EXPECT_EQ(form_.List1.items(), Lines("suite "));
    EXPECT_EQ(panel_.current(), 0);
    focus(4);
    focus(0);
    EXPECT_EQ(form_.List2.items(), Lines({"0", "1", "2", "3"}));
}

TEST_F(FieldOffers, ShowTheCalendarForADateAndHideItElsewhere) {
    world_.addPhrase(1, "suite", "A");
    focus(1);
    focus(2);
    EXPECT_TRUE(form_.Calendar1.visible());
    EXPECT_EQ(form_.List1.count(), 0);
    focus(0);
    EXPECT_FALSE(form_.Calendar1.visible());
}

TEST_F(FieldOffers, OpenTheCalendarAtTheDateOfTheFieldOrToday) {
    focus(2);
    EXPECT_EQ(form_.Calendar1.date(), QDate(2002, 4, 5));
    field(3).setText("12/01/2001");
    focus(3);
    EXPECT_EQ(form_.Calendar1.date(), QDate(2001, 1, 12));
    EXPECT_EQ(text(2), "");
}

TEST_F(FieldOffers, WriteAChosenDayAndGoToTheNextField) {
    focus(2);
    world_.desk.act([&] { form_.Calendar1.choose(QDate(2002, 1, 9)); });
    EXPECT_EQ(text(2), "09/01/2002");
    EXPECT_EQ(focused(), 3);
    EXPECT_EQ(panel_.current(), 3);
    EXPECT_TRUE(form_.Calendar1.visible());
    world_.desk.act([&] { form_.Calendar1.choose(QDate(2002, 10, 16)); });
    EXPECT_EQ(text(3), "16/10/2002");
    EXPECT_EQ(focused(), 4);
    EXPECT_FALSE(form_.Calendar1.visible());
}

TEST_F(FieldOffers, ReplaceTheTextOfADateFieldByTheChosenDay) {
    field(2).setText("01/01/2000");
    focus(2);
    world_.desk.act([&] { form_.Calendar1.choose(QDate(2002, 1, 9)); });
    EXPECT_EQ(text(2), "09/01/2002");
}

TEST_F(FieldOffers, AppendPhrasesAndMarkThemUsedInTheirPlaces) {
    world_.addPhrase(5, "x", "A");
    world_.addPhrase(16, "Grossesse évolutive.", "A");
    world_.addPhrase(16, "Terme concordant.", "B");
    world_.addPhrase(16, "A revoir", {});
    focus(5);
    doubleClick(form_.List1, 1);
    EXPECT_EQ(text(5), "Terme concordant.\r\n");
    doubleClick(form_.List1, 0);
    EXPECT_EQ(text(5), "Terme concordant.\r\nGrossesse évolutive. ");
    EXPECT_EQ(form_.List1.items(), Lines({"--- OK", "--- OK", "A revoir"}));
    EXPECT_EQ(focused(), 5);
    EXPECT_EQ(field(5).selectionStart(), text(5).size());
    EXPECT_EQ(form_.List1.row(), 0);
}

TEST_F(FieldOffers, AppendTheMarkOfAUsedLineLikeAnyPhrase) {
    world_.addPhrase(16, "vu", {});
    focus(5);
    doubleClick(form_.List1, 0);
    doubleClick(form_.List1, 0);
    EXPECT_EQ(text(5), "vu--- OK");
}

TEST_F(FieldOffers, GoOnAfterAPhraseThatClosesTheField) {
    world_.addPhrase(1, "Dr Un", "C");
    field(2).setText("01/01/2002");
    focus(1);
    doubleClick(form_.List1, 0);
    EXPECT_EQ(text(1), "Dr Un");
    EXPECT_EQ(focused(), 2);
    EXPECT_EQ(panel_.current(), 2);
    EXPECT_EQ(field(2).selectionStart(), 10);
    EXPECT_TRUE(form_.Calendar1.visible());
}

TEST_F(FieldOffers, StartAgainAtTheFirstFieldFromTheLastAndBeyond) {
    world_.addPhrase(16, "fini", "C");
    world_.addPhrase(6, "oui", "C");
    focus(5);
    doubleClick(form_.List1, 0);
    EXPECT_EQ(focused(), 1);
    focus(6);
    doubleClick(form_.List1, 0);
    EXPECT_EQ(text(6), "oui");
    EXPECT_EQ(focused(), 1);
}

TEST_F(FieldOffers, WalkRoundAnotherPageWhenTheLimitsChange) {
    panel_.setWrap({.last = 8, .first = 6});
    focus(7);
    rightClick(form_.List2);
    EXPECT_EQ(focused(), 8);
    rightClick(form_.List2);
    EXPECT_EQ(focused(), 6);
}

TEST_F(FieldOffers, TakeNoPhraseFromNoLine) {
    focus(1);
    doubleClick(form_.List1, -1);
    doubleClick(form_.List2, -1);
    EXPECT_EQ(text(1), "");
}

TEST_F(FieldOffers, TakeSeveralNumbersOneAfterTheOther) {
    focus(7);
    doubleClick(form_.List2, 0);
    EXPECT_EQ(text(7), "4");
    doubleClick(form_.List2, 96);
    EXPECT_EQ(text(7), "4 100");
    EXPECT_EQ(form_.List2.count(), 97);
    EXPECT_EQ(focused(), 7);
}

TEST_F(FieldOffers, MoveOnAtARightClickWithoutAPhrase) {
    world_.addPhrase(16, "fini", "C");
    field(1).setText("Dr Un");
    focus(5);
    rightClick(form_.List1);
    EXPECT_EQ(text(5), "");
    EXPECT_EQ(focused(), 1);
    EXPECT_EQ(field(1).selectionStart(), 5);
}

TEST_F(FieldOffers, MoveOnAtARightClickOnlyWhereTheWindowAllowsIt) {
    bool allowed = false;
    panel_.setRightClickRule([&] { return allowed; });
    focus(3);
    rightClick(form_.List1);
    EXPECT_EQ(focused(), 3);
    allowed = true;
    rightClick(form_.List2);
    EXPECT_EQ(focused(), 4);
}

TEST_F(FieldOffers, MoveToAFieldOutOfReachAndLeaveTheFocus) {
    panel_.setWrap({.last = 11});
    focus(8);
    rightClick(form_.List2);
    EXPECT_EQ(panel_.current(), 9);
    EXPECT_EQ(focused(), 8);
    EXPECT_EQ(form_.List2.count(), 45);
}

TEST_F(FieldOffers, SetAFreeEntryBetweenBlanksBehindTheText) {
    field(5).setText("Vu.");
    focus(5);
    focus(form_.Text1);
    form_.Text1.setText("à revoir");
    enter(form_.Text1);
    EXPECT_EQ(text(5), "Vu. à revoir ");
    EXPECT_EQ(form_.Text1.text(), "");
    EXPECT_EQ(focused(), 5);
    EXPECT_EQ(form_.focused(), &field(5));
    EXPECT_EQ(field(5).selectionStart(), 13);
}

TEST_F(FieldOffers, TakeAFreeEntryOnceAsItIsLeft) {
    focus(5);
    focus(form_.Text1);
    form_.Text1.setText("a");
    focus(1);
    EXPECT_EQ(text(5), " a ");
    EXPECT_EQ(text(1), "");
    EXPECT_EQ(form_.focused(), &field(5));
    focus(1);
    EXPECT_EQ(text(5), " a ");
    EXPECT_EQ(focused(), 1);
}

TEST_F(FieldOffers, LeaveAnEmptyFreeEntryInPeace) {
    focus(5);
    focus(form_.Text1);
    enter(form_.Text1);
    EXPECT_EQ(form_.focused(), &form_.Text1);
    focus(1);
    EXPECT_EQ(text(5), "");
    EXPECT_EQ(focused(), 1);
}

TEST_F(FieldOffers, HaveASecondFreeEntryAndTakeBothAtOnce) {
    focus(5);
    form_.Text1.setText("a");
    form_.Text2.setText("b");
    world_.desk.act([&] { panel_.takeFreeEntries(); });
    EXPECT_EQ(text(5), " a  b ");
    EXPECT_EQ(form_.Text2.text(), "");
}

TEST_F(FieldOffers, EraseTheCurrentFieldAndGiveItTheFocus) {
    field(5).setText("Vu.");
    focus(5);
    focus(form_.CmdEfface);
    form_.CmdEfface.click();
    EXPECT_EQ(text(5), "");
    EXPECT_EQ(form_.focused(), &field(5));
}

TEST_F(FieldOffers, GoBackFromAListToTheCurrentFieldAtEscape) {
    field(5).setText("Vu.");
    focus(5);
    focus(form_.List1);
    world_.desk.act(form_.List1.onEscape);
    EXPECT_EQ(form_.focused(), &field(5));
    EXPECT_EQ(field(5).selectionStart(), 3);
}

TEST_F(FieldOffers, ShowNoPhraseOfAnotherFieldWhenTheStoreFails) {
    world_.addPhrase(1, "Dr Un", "A");
    focus(1);
    world_.state.DbEcho.close();
    focus(5);
    EXPECT_EQ(world_.boxes.reported, QList<int>({3420}));
    EXPECT_EQ(form_.List1.count(), 0);
    EXPECT_EQ(panel_.current(), 5);
}

TEST_F(FieldOffers, LetAWindowOfferOtherPhrasesAtOneOfItsFields) {
    world_.addPhrase(26, "zone", "B");
    field(6).onFocus = [this] {
        panel_.enter(6);
        panel_.offerPhrases("SELECT*FROM OPTIONS WHERE NUMEROS = 26 ORDER BY INDEX");
    };
    focus(6);
    EXPECT_EQ(form_.List1.items(), Lines("zone\r\n"));
    EXPECT_EQ(panel_.current(), 6);
}

TEST_F(FieldOffers, TellTheViewOfAWholeListAtOnce) {
    for (int i = 0; i < 50; ++i) {
        world_.addPhrase(1, QString("phrase %1").arg(i), "A");
    }
    int told = 0;
    const auto view = form_.List1.observe([&](forms::Aspect, int) { ++told; });
    focus(1);
    EXPECT_EQ(form_.List1.count(), 50);
    EXPECT_EQ(told, 1);
}

}  // namespace
}  // namespace responses
