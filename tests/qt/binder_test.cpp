#include "qt/binder.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QInputMethodEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QMenu>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTableView>
#include <QTest>
#include <QVBoxLayout>
#include <QWheelEvent>

#include "forms/desk.h"
#include "qt/calendar_view.h"
#include "qt/key_filter.h"
#include "qt/section.h"

namespace qt {
namespace {

using forms::Control;

/// One control of each kind.
class AllKinds final : public forms::Form {
public:
    explicit AllKinds(forms::Desk& desk) : Form(desk, QStringLiteral("Toutes"), QStringLiteral("Essai")) {
        Frame1.holds(Option1, Option2);
    }
    forms::Label Label1{*this, "Label1", "avant"};
    forms::TextBox Text1{*this, "Text1"};
    forms::TextBox Memo1{*this, "Memo1"};
    forms::ListBox List1{*this, "List1"};
    forms::ComboBox Combo1{*this, "Combo1", {"Mme", "Mlle"}};
    forms::Button Command1{*this, "Command1", "&Aller"};
    forms::Frame Frame1{*this, "Frame1", "Sexe"};
    forms::Option Option1{*this, "Option1", "Féminin", true};
    forms::Option Option2{*this, "Option2", "Masculin"};
    forms::Check Check1{*this, "Check1", "Alsace"};
    forms::Calendar Calendar1{*this, "Calendar1"};
};

/// A window with a menu bar and a colour.
class WithMenus final : public forms::Form {
public:
    explicit WithMenus(forms::Desk& desk) : Form(desk, QStringLiteral("Menus"), QStringLiteral("Essai")) {
        Type.holds(Detail, Minimum);
    }
    forms::Label Label1{*this, "Label1"};
    forms::Menu Type{*this, "Type", "&Type"};
    forms::Menu Detail{*this, "Detail", "Détaillé", true};
    forms::Menu Minimum{*this, "Minimum", "Minimum", false};
    forms::Menu Quitte{*this, "Quitte", "&Quitter"};
};

class MenuTest : public ::testing::Test {
protected:
    forms::Desk desk_;
    WithMenus form_{desk_};
    FormWindow window_{form_};
    Binder bind_{window_};
};

TEST_F(MenuTest, StandOnTheBarOrInsideTheOneThatHoldsThem) {
    QMenuBar* bar = bind_.menuBar();
    ASSERT_EQ(bar->actions().size(), 2);
    EXPECT_EQ(bar->actions().at(0)->menu()->actions().size(), 2);
    EXPECT_EQ(bar->actions().at(1)->text(), "&Quitter");
    delete bar;
}

TEST_F(MenuTest, FollowTheirMarkAndLeaveItToTheForm) {
    QMenuBar* bar = bind_.menuBar();
    QAction* detail = window_.actionOf(form_.Detail);
    EXPECT_TRUE(detail->isChecked());
    int clicks = 0;
    form_.Detail.onClick = [&] { ++clicks; };
    detail->trigger();
    EXPECT_EQ(clicks, 1);
    EXPECT_TRUE(detail->isChecked());
    form_.Detail.setChecked(false);
    EXPECT_FALSE(detail->isChecked());
    delete bar;
}

TEST_F(MenuTest, HideAndDisableTheirEntry) {
    QMenuBar* bar = bind_.menuBar();
    form_.Quitte.hide();
    EXPECT_FALSE(window_.actionOf(form_.Quitte)->isVisible());
    form_.Quitte.show();
    form_.Quitte.setEnabled(false);
    EXPECT_FALSE(window_.actionOf(form_.Quitte)->isEnabled());
    delete bar;
}

TEST_F(MenuTest, AColourBehindALabelKeepsItsTextReadable) {
    const std::unique_ptr<QLabel> label(bind_.label(form_.Label1));
    form_.Label1.setBack(forms::fromBlueGreenRed(0xFFFFC0));
    EXPECT_EQ(label->palette().color(QPalette::Window), QColor("#c0ffff"));
    EXPECT_EQ(label->palette().color(QPalette::WindowText), QColor(Qt::black));
    form_.Label1.setBack({});
    EXPECT_FALSE(label->autoFillBackground());
}

/// Two panels of which the second lies over the first.
class Overlaid final : public forms::Form {
public:
    explicit Overlaid(forms::Desk& desk) : Form(desk, QStringLiteral("Panneaux"), QStringLiteral("Essai")) {
        Upper.layOver(Lower);
    }
    forms::Frame Lower{*this, "Lower"};
    forms::Frame Upper{*this, "Upper"};
};

TEST(OverlaidFrames, OnlyTheTopmostOfTheVisibleOnesIsSeen) {
    forms::Desk desk;
    Overlaid form(desk);
    FormWindow window(form);
    Binder bind(window);
    auto* all = new QVBoxLayout(&window);
    QWidget* lower = bind.section(form.Lower);
    QWidget* upper = bind.section(form.Upper);
    all->addWidget(lower);
    all->addWidget(upper);
    EXPECT_TRUE(lower->isHidden());
    EXPECT_FALSE(upper->isHidden());
    form.Upper.hide();
    EXPECT_FALSE(lower->isHidden());
    form.Upper.show();
    EXPECT_TRUE(lower->isHidden());
}

class BinderTest : public ::testing::Test {
protected:
    BinderTest() {
        desk_.setErrorReport([this](const base::RuntimeError&) { ++reports_; });
        desk_.add("Toutes", [this] { return std::make_unique<AllKinds>(desk_); });
        form_ = static_cast<AllKinds*>(&desk_.at("Toutes"));
        window_ = std::make_unique<FormWindow>(*form_);
        Binder bind(*window_);
        auto* all = new QVBoxLayout(window_.get());
        label_ = bind.label(form_->Label1);
        line_ = bind.line(form_->Text1, "Nom");
        memo_ = bind.memo(form_->Memo1, "Texte");
        list_ = bind.list(form_->List1, "Liste");
        combo_ = bind.combo(form_->Combo1, "Civilité");
        button_ = bind.button(form_->Command1);
        auto* section = bind.section(form_->Frame1);
        auto* inside = new QVBoxLayout(section->body());
        inside->addWidget(first_ = bind.option(form_->Option1));
        inside->addWidget(second_ = bind.option(form_->Option2));
        check_ = bind.check(form_->Check1);
        calendar_ = bind.calendar(form_->Calendar1, "Calendrier");
        for (QWidget* widget : std::initializer_list<QWidget*>{label_, line_, memo_, list_, combo_, button_, section,
                                                               check_, calendar_}) {
            all->addWidget(widget);
        }
        desk_.show("Toutes");
        window_->present();
        QApplication::setActiveWindow(window_.get());
    }
    ~BinderTest() override { window_->retire(); }

    void typeInto(QWidget* widget, const QString& text) {
        widget->setFocus();
        for (const QChar c : text) {
            QTest::sendKeyEvent(QTest::Click, widget, Qt::Key_unknown, QString(c), Qt::NoModifier, -1);
        }
    }

    forms::Desk desk_;
    AllKinds* form_ = nullptr;
    std::unique_ptr<FormWindow> window_;
    QLabel* label_ = nullptr;
    QLineEdit* line_ = nullptr;
    QPlainTextEdit* memo_ = nullptr;
    QListView* list_ = nullptr;
    QComboBox* combo_ = nullptr;
    QPushButton* button_ = nullptr;
    QRadioButton* first_ = nullptr;
    QRadioButton* second_ = nullptr;
    QCheckBox* check_ = nullptr;
    CalendarView* calendar_ = nullptr;
    int reports_ = 0;
};

TEST_F(BinderTest, EachWidgetCarriesTheNameOfItsControl) {
    for (const Control* control : form_->controls()) {
        QWidget* widget = window_->widgetOf(*control);
        ASSERT_NE(widget, nullptr) << control->label().toStdString();
        EXPECT_EQ(widget->objectName(), control->label());
    }
}

TEST_F(BinderTest, HidingAndDisablingReachTheWidget) {
    for (Control* control : form_->controls()) {
        QWidget* widget = window_->widgetOf(*control);
        control->hide();
        EXPECT_TRUE(widget->isHidden());
        control->show();
        control->setEnabled(false);
        EXPECT_FALSE(widget->isEnabled());
        control->setEnabled(true);
        EXPECT_TRUE(widget->isEnabled());
    }
}

TEST_F(BinderTest, ALabelFollowsItsTextAndReadsNoMarkup) {
    form_->Label1.setText("<b>a & b</b>");
    EXPECT_EQ(label_->text(), "<b>a & b</b>");
    EXPECT_EQ(label_->textFormat(), Qt::PlainText);
}

TEST_F(BinderTest, TypingReachesTheFormOncePerCharacter) {
    int changes = 0;
    form_->Text1.onChange = [&] { ++changes; };
    typeInto(line_, "été œ");
    EXPECT_EQ(form_->Text1.text(), "été œ");
    EXPECT_EQ(changes, 5);
}

TEST_F(BinderTest, AWriteByAStepShowsAndEchoesNothing) {
    int changes = 0;
    form_->Text1.onChange = [&] { ++changes; };
    form_->Text1.setText("DUPONT");
    EXPECT_EQ(line_->text(), "DUPONT");
    EXPECT_EQ(changes, 1);
}

TEST_F(BinderTest, AKeyFilterReplacesAndSwallows) {
    form_->Text1.onKey = [](forms::KeyPress& key) {
        key.character() == u'\'' ? key.swallow() : key.replace(key.character().toUpper());
    };
    typeInto(line_, "d'à");
    EXPECT_EQ(line_->text(), "DÀ");
    EXPECT_EQ(form_->Text1.text(), "DÀ");
}

TEST_F(BinderTest, BackspacePassesTheKeyFilter) {
    form_->Text1.setText("12");
    line_->setFocus();
    bool swallows = true;
    QList<ushort> seen;
    form_->Text1.onKey = [&](forms::KeyPress& key) {
        seen << key.character().unicode();
        if (swallows) {
            key.swallow();
        }
    };
    QTest::keyClick(line_, Qt::Key_Backspace);
    EXPECT_EQ(form_->Text1.text(), "12");
    swallows = false;
    QTest::keyClick(line_, Qt::Key_Backspace);
    EXPECT_EQ(form_->Text1.text(), "1");
    EXPECT_EQ(seen, QList<ushort>({8, 8}));
}

TEST_F(BinderTest, AKeyFilterSeesWhatAnInputMethodCommits) {
    form_->Text1.onKey = [](forms::KeyPress& key) {
        if (!key.character().isDigit()) {
            key.swallow();
        }
    };
    line_->setFocus();
    QInputMethodEvent event;
    event.setCommitString("1ê2");
    QApplication::sendEvent(line_, &event);
    EXPECT_EQ(form_->Text1.text(), "12");
}

TEST_F(BinderTest, APastePassesNoKeyFilter) {
    form_->Text1.onKey = [](forms::KeyPress& key) { key.swallow(); };
    QApplication::clipboard()->setText("D'ARC");
    line_->setFocus();
    line_->paste();
    EXPECT_EQ(form_->Text1.text(), "D'ARC");
}

TEST_F(BinderTest, TheArrowsAreToldAndStillMoveTheCaret) {
    QStringList told;
    form_->Text1.onKeyDown = [&](forms::Key key) { told << (key == forms::Key::Left ? "left" : "right"); };
    form_->Text1.setText("ab");
    line_->setFocus();
    line_->setCursorPosition(2);
    QTest::keyClick(line_, Qt::Key_Left);
    QTest::keyClick(line_, Qt::Key_Right, Qt::ShiftModifier);
    EXPECT_EQ(told, QStringList({"left"}));
    EXPECT_EQ(line_->cursorPosition(), 2);
}

TEST_F(BinderTest, TheSelectionOfABoxIsThatOfItsWidget) {
    form_->Text1.setText("/dossier/nom");
    form_->Text1.select(0, 9);
    EXPECT_EQ(line_->selectedText(), "/dossier/");
}

TEST_F(BinderTest, TheCaretThatAPersonMovesIsToldToTheBox) {
    form_->Text1.setText("abcdef");
    form_->Text1.select(6, 0);
    line_->setFocus();
    QTest::keyClick(line_, Qt::Key_Home);
    EXPECT_EQ(form_->Text1.selectionStart(), 0);
    QTest::keyClick(line_, Qt::Key_Right, Qt::ShiftModifier);
    EXPECT_EQ(form_->Text1.selectedText(), "a");
    form_->Text1.select(6, 0);
    EXPECT_EQ(line_->cursorPosition(), 6);
    EXPECT_FALSE(line_->hasSelectedText());
}

TEST_F(BinderTest, TheCaretOfAMemoCountsALineEndAsTwoCharacters) {
    form_->Memo1.setText("un\r\ndeux\r\ntrois");
    form_->Memo1.select(17, 0);
    EXPECT_EQ(memo_->textCursor().position(), 13);
    form_->Memo1.select(4, 4);
    EXPECT_EQ(memo_->textCursor().selectedText(), "deux");
    memo_->moveCursor(QTextCursor::End);
    EXPECT_EQ(form_->Memo1.selectionStart(), 15);
    EXPECT_EQ(form_->Memo1.selectionLength(), 0);
}

TEST_F(BinderTest, ALineKeepsTheLineEndsOfItsText) {
    form_->Text1.setText("Vu.\r\n");
    line_->setFocus();
    line_->end(false);
    typeInto(line_, "a");
    EXPECT_EQ(form_->Text1.text(), "Vu.\r\na");
}

TEST_F(BinderTest, EnterInALineIsToldToABoxThatListens) {
    int entered = 0;
    form_->Text1.onEnter = [&] { ++entered; };
    QTest::keyClick(line_, Qt::Key_Return);
    QTest::keyClick(line_, Qt::Key_Enter);
    EXPECT_EQ(entered, 2);
}

TEST_F(BinderTest, EnterWalksOutOfALineAndCtrlEnterOutOfAMemo) {
    walkOnAtEnter(line_);
    walkOnAtEnter(memo_);
    line_->setFocus();
    QTest::keyClick(line_, Qt::Key_Return);
    EXPECT_EQ(QApplication::focusWidget(), memo_);
    QTest::keyClick(memo_, Qt::Key_Return);
    EXPECT_EQ(QApplication::focusWidget(), memo_);
    EXPECT_EQ(form_->Memo1.text(), "\r\n");
    QTest::keyClick(memo_, Qt::Key_Return, Qt::ControlModifier);
    EXPECT_EQ(QApplication::focusWidget(), list_);
}

TEST_F(BinderTest, AMemoKeepsItsLineEndsAsTheProgramWritesThem) {
    form_->Memo1.setText("un\r\ndeux");
    EXPECT_EQ(memo_->toPlainText(), "un\ndeux");
    memo_->moveCursor(QTextCursor::End);
    QTest::keyClick(memo_, Qt::Key_Return);
    typeInto(memo_, "trois");
    EXPECT_EQ(form_->Memo1.text(), "un\r\ndeux\r\ntrois");
}

TEST_F(BinderTest, TabLeavesAMemo) {
    memo_->setFocus();
    QTest::keyClick(memo_, Qt::Key_Tab);
    EXPECT_NE(QApplication::focusWidget(), memo_);
    EXPECT_EQ(form_->Memo1.text(), "");
}

TEST_F(BinderTest, AListShowsItsLinesAndTellsTheChosenOne) {
    for (const char* line : {"un", "deux", "trois"}) {
        form_->List1.add(line);
    }
    ASSERT_EQ(list_->model()->rowCount(), 3);
    QStringList told;
    form_->List1.onClick = [&] { told << "click " + form_->List1.text(); };
    form_->List1.onDoubleClick = [&] { told << "double " + form_->List1.text(); };
    const QPoint second = list_->visualRect(list_->model()->index(1, 0)).center();
    QTest::mouseClick(list_->viewport(), Qt::LeftButton, {}, second);
    QTest::mouseDClick(list_->viewport(), Qt::LeftButton, {}, second);
    EXPECT_TRUE(told.contains("click deux"));
    EXPECT_TRUE(told.contains("double deux"));
    EXPECT_EQ(form_->List1.row(), 1);
}

TEST_F(BinderTest, TheKeyboardChoosesALineAndEnterTakesIt) {
    for (const char* line : {"un", "deux", "trois"}) {
        form_->List1.add(line);
    }
    QString taken;
    form_->List1.onDoubleClick = [&] { taken = form_->List1.text(); };
    list_->setFocus();
    QTest::keyClick(list_, Qt::Key_Down);
    QTest::keyClick(list_, Qt::Key_Down);
    QTest::keyClick(list_, Qt::Key_Return);
    EXPECT_EQ(taken, form_->List1.items().at(form_->List1.row()));
    EXPECT_FALSE(taken.isEmpty());
}

TEST_F(BinderTest, ALineOfAListShowsNoLineEndAndNoTab) {
    form_->List1.setItems({"suite ", "deux\r\nlignes\r\n", "clôt\t"});
    QStringList shown;
    for (int row = 0; row < 3; ++row) {
        shown << list_->model()->index(row, 0).data().toString();
    }
    EXPECT_EQ(shown, QStringList({"suite ", "deux  lignes", "clôt"}));
    EXPECT_EQ(form_->List1.items().at(2), "clôt\t");
}

TEST_F(BinderTest, ALongListOpensAtItsChosenLine) {
    QStringList lines;
    for (int i = 0; i < 200; ++i) {
        lines << QString::number(i);
    }
    form_->List1.hide();
    form_->List1.setItems(lines);
    form_->List1.setRow(150);
    form_->List1.show();
    QApplication::processEvents();
    const int middle = list_->visualRect(list_->currentIndex()).center().y();
    EXPECT_EQ(list_->currentIndex().row(), 150);
    EXPECT_NEAR(middle, list_->viewport()->height() / 2, 20);
    form_->List1.setItems(lines);
    form_->List1.setRow(100);
    EXPECT_NEAR(list_->visualRect(list_->currentIndex()).center().y(), list_->viewport()->height() / 2, 20);
}

TEST_F(BinderTest, ARightClickAndTheKeysOfAListAreToldToOneThatListens) {
    QStringList told;
    form_->List1.onRightClick = [&] { told << "right"; };
    form_->List1.onEscape = [&] { told << "escape"; };
    form_->List1.onClick = [&] { told << "click"; };
    form_->List1.add("un");
    QTest::mouseClick(list_->viewport(), Qt::RightButton);
    QTest::keyClick(list_, Qt::Key_Menu);
    QTest::keyClick(list_, Qt::Key_Escape);
    EXPECT_EQ(told, QStringList({"right", "right", "escape"}));
}

TEST_F(BinderTest, ARemovedLineLeavesNoChoiceOfItsOwn) {
    for (const char* line : {"un", "deux", "trois"}) {
        form_->List1.add(line);
    }
    form_->List1.setRow(1);
    form_->List1.remove(1);
    EXPECT_EQ(form_->List1.row(), -1);
    EXPECT_FALSE(list_->currentIndex().isValid());
    EXPECT_EQ(list_->model()->rowCount(), 2);
}

TEST_F(BinderTest, AComboTakesTypingAndChoosing) {
    QTest::keyClick(combo_->lineEdit(), Qt::Key_End);
    typeInto(combo_->lineEdit(), "Dr");
    EXPECT_EQ(form_->Combo1.text(), "Dr");
    form_->Combo1.setText("Mlle");
    EXPECT_EQ(combo_->currentText(), "Mlle");
    Q_EMIT combo_->textActivated("Mme");
    EXPECT_EQ(form_->Combo1.text(), "Mme");
}

TEST_F(BinderTest, TheWheelPassesOverACombo) {
    form_->Combo1.setText("Mme");
    QWheelEvent event(QPointF(5, 5), combo_->mapToGlobal(QPointF(5, 5)), QPoint(0, -120), QPoint(0, -120), Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(combo_, &event);
    EXPECT_EQ(form_->Combo1.text(), "Mme");
}

TEST_F(BinderTest, AClickOnADayChoosesIt) {
    QStringList chosen;
    form_->Calendar1.onDateChosen = [&](QDate date) { chosen << date.toString("dd/MM/yyyy"); };
    form_->Calendar1.setDate(QDate(2002, 4, 5));
    EXPECT_EQ(calendar_->selectedDate(), QDate(2002, 4, 5));
    // The first days, a month that begins on a Monday, on a Sunday, and a leap day.
    for (const QDate day : {QDate(2002, 4, 1), QDate(2002, 4, 30), QDate(2002, 7, 1), QDate(2002, 9, 1),
                            QDate(2004, 2, 29), QDate(1999, 12, 31)}) {
        const QPoint at = calendar_->placeOf(day);
        QTest::mouseClick(calendar_->days(), Qt::LeftButton, {}, at);
    }
    EXPECT_EQ(chosen,
              QStringList({"01/04/2002", "30/04/2002", "01/07/2002", "01/09/2002", "29/02/2004", "31/12/1999"}));
    EXPECT_EQ(form_->Calendar1.date(), QDate(1999, 12, 31));
}

TEST_F(BinderTest, ADoubleClickOnADayChoosesItOnce) {
    int chosen = 0;
    form_->Calendar1.onDateChosen = [&](QDate) { ++chosen; };
    const QPoint at = calendar_->placeOf(QDate(2002, 4, 10));
    QTest::mouseClick(calendar_->days(), Qt::LeftButton, {}, at);
    QTest::mouseDClick(calendar_->days(), Qt::LeftButton, {}, at);
    QTest::mouseRelease(calendar_->days(), Qt::LeftButton, {}, at);
    EXPECT_EQ(chosen, 1);
}

TEST_F(BinderTest, TheArrowsMoveTheMarkOfACalendarAndEnterChooses) {
    QList<QDate> chosen;
    form_->Calendar1.onDateChosen = [&](QDate date) { chosen << date; };
    form_->Calendar1.setDate(QDate(2002, 4, 30));
    auto* table = calendar_->findChild<QTableView*>();
    QTest::keyClick(table, Qt::Key_Right);
    EXPECT_TRUE(chosen.isEmpty());
    QTest::keyClick(table, Qt::Key_Return);
    EXPECT_EQ(chosen, QList<QDate>({QDate(2002, 5, 1)}));
}

TEST_F(BinderTest, ACalendarIsFrenchAndItsWeekBeginsOnMonday) {
    EXPECT_EQ(calendar_->firstDayOfWeek(), Qt::Monday);
    EXPECT_EQ(calendar_->locale().monthName(4), "avril");
}

TEST_F(BinderTest, AButtonClicksByMouseAndKeyboard) {
    int clicks = 0;
    form_->Command1.onClick = [&] { ++clicks; };
    QTest::mouseClick(button_, Qt::LeftButton);
    QTest::keyClick(button_, Qt::Key_Space);
    QTest::keyClick(button_, Qt::Key_Return);
    EXPECT_EQ(clicks, 3);
}

TEST_F(BinderTest, OptionsOfOneFrameExcludeEachOther) {
    QTest::mouseClick(second_, Qt::LeftButton, {}, QPoint(8, second_->height() / 2));
    EXPECT_TRUE(form_->Option2.checked());
    EXPECT_FALSE(first_->isChecked());
    QTest::mouseClick(second_, Qt::LeftButton, {}, QPoint(8, second_->height() / 2));
    EXPECT_TRUE(second_->isChecked());
    form_->Option1.setChecked(true);
    EXPECT_TRUE(first_->isChecked());
    EXPECT_FALSE(second_->isChecked());
}

TEST_F(BinderTest, ACheckFlips) {
    QTest::mouseClick(check_, Qt::LeftButton, {}, QPoint(8, check_->height() / 2));
    EXPECT_TRUE(form_->Check1.checked());
    QTest::mouseClick(check_, Qt::LeftButton, {}, QPoint(8, check_->height() / 2));
    EXPECT_FALSE(check_->isChecked());
}

TEST_F(BinderTest, TheFocusOfTheWidgetIsThatOfTheForm) {
    QStringList told;
    form_->Text1.onFocus = [&] { told << "Text1"; };
    form_->Memo1.onFocus = [&] { told << "Memo1"; };
    line_->setFocus();
    memo_->setFocus();
    form_->Text1.setFocus();
    EXPECT_EQ(QApplication::focusWidget(), line_);
    EXPECT_EQ(told.last(), "Text1");
    EXPECT_EQ(form_->focused(), &form_->Text1);
}

TEST_F(BinderTest, AnErrorInAHandlerIsReportedAndTheWindowGoesOn) {
    form_->Command1.onClick = [] { throw base::RuntimeError(base::ErrorNumber::Overflow); };
    QTest::mouseClick(button_, Qt::LeftButton);
    EXPECT_EQ(reports_, 1);
    typeInto(line_, "a");
    EXPECT_EQ(form_->Text1.text(), "a");
}

TEST_F(BinderTest, AWindowThatUnloadsItselfInAClickIsLetGoOf) {
    form_->Command1.onClick = [this] { desk_.unload("Toutes"); };
    struct Stage final : forms::Stage {
        FormWindow* window = nullptr;
        void formShown(forms::Form&) override {}
        void formHidden(forms::Form&) override {}
        void formForgotten(forms::Form&) override { window->retire(); }
        void programEnded() override {}
    } stage;
    stage.window = window_.get();
    desk_.setStage(&stage);
    QTest::mouseClick(button_, Qt::LeftButton);
    EXPECT_FALSE(window_->alive());
    EXPECT_FALSE(window_->isVisible());
    QTest::mouseClick(button_, Qt::LeftButton);
    desk_.setStage(nullptr);
    (void)window_.release();
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    window_ = std::make_unique<FormWindow>(*(form_ = static_cast<AllKinds*>(&desk_.at("Toutes"))));
}

TEST_F(BinderTest, ABusyFormShowsABusyPointer) {
    form_->setPointer(forms::Pointer::Busy);
    EXPECT_EQ(window_->cursor().shape(), Qt::WaitCursor);
    form_->setPointer(forms::Pointer::Normal);
    EXPECT_EQ(window_->cursor().shape(), Qt::ArrowCursor);
}

}  // namespace
}  // namespace qt
