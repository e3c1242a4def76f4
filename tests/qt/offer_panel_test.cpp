#include <gtest/gtest.h>

#include <QApplication>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QTest>

#include "fakes/sample_exam.h"
#include "qt/calendar_view.h"
#include "qt/layouts/offer_panel_layout.h"

namespace qt {
namespace {

/// The sample exam on real widgets: its fields at the left, the panel at the right.
class OfferPanelWidgets : public ::testing::Test {
protected:
    OfferPanelWidgets() {
        Binder bind(window_);
        auto* grid = new QGridLayout(&window_);
        for (int i = 0; i <= form_.Txt.last(); ++i) {
            fields_ << bind.line(form_.Txt(i), QString("champ %1").arg(i));
            grid->addWidget(fields_.last(), i, 0);
        }
        grid->addWidget(newOfferPanel(bind, form_.controls), 0, 1, form_.Txt.last() + 1, 1);
        grid->addWidget(second_ = bind.line(form_.Text2, "Texte libre"), form_.Txt.last() + 1, 0);
        window_.resize(900, 600);
        window_.present();
        QApplication::setActiveWindow(&window_);
    }
    ~OfferPanelWidgets() override { world_.desk.setStage(nullptr); }

    void twice(forms::ListBox& list, int row) {
        auto* view = static_cast<QListView*>(window_.widgetOf(list));
        const QPoint at = view->visualRect(view->model()->index(row, 0)).center();
        QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, at);
        QTest::mouseDClick(view->viewport(), Qt::LeftButton, {}, at);
        QTest::mouseRelease(view->viewport(), Qt::LeftButton, {}, at);
    }
    void typeInto(QWidget* widget, const QString& text) {
        for (const QChar c : text) {
            QTest::sendKeyEvent(QTest::Click, widget, Qt::Key_unknown, QString(c), Qt::NoModifier, -1);
        }
    }
    QListView* list(forms::ListBox& control) { return static_cast<QListView*>(window_.widgetOf(control)); }
    static QWidget* focused() { return QApplication::focusWidget(); }

    fakes::SampleExamWorld world_;
    fakes::SampleExam& form_ = *world_.form;
    FormWindow window_{form_};
    QList<QLineEdit*> fields_;
    QLineEdit* second_ = nullptr;
};

TEST_F(OfferPanelWidgets, ADoubleClickLeavesTheFocusInTheFieldUntilAPhraseClosesIt) {
    world_.addPhrase(1, "Docteur", "A");
    world_.addPhrase(1, "Un", "C");
    fields_[1]->setFocus();
    twice(form_.List1, 0);
    EXPECT_EQ(fields_[1]->text(), "Docteur ");
    EXPECT_EQ(focused(), fields_[1]);
    EXPECT_EQ(form_.List1.items().first(), "--- OK");
    twice(form_.List1, 1);
    EXPECT_EQ(fields_[1]->text(), "Docteur Un");
    EXPECT_EQ(focused(), fields_[2]);
    EXPECT_TRUE(window_.widgetOf(form_.Calendar1)->isVisible());
}

TEST_F(OfferPanelWidgets, TypingGoesOnBehindAPhrase) {
    world_.addPhrase(1, "Docteur", "A");
    fields_[1]->setFocus();
    twice(form_.List1, 0);
    typeInto(fields_[1], "Un");
    EXPECT_EQ(form_.Txt(1).text(), "Docteur Un");
}

TEST_F(OfferPanelWidgets, AKeyTakesOneOfTheFirstPhrases) {
    world_.addPhrase(1, "Docteur", "A");
    world_.addPhrase(1, "Un", "C");
    fields_[1]->setFocus();
    QTest::keyClick(fields_[1], Qt::Key_1, Qt::ControlModifier);
    EXPECT_EQ(fields_[1]->text(), "Docteur ");
    EXPECT_EQ(focused(), fields_[1]);
    QTest::keyClick(fields_[1], Qt::Key_3, Qt::ControlModifier);
    EXPECT_EQ(fields_[1]->text(), "Docteur ");
    QTest::keyClick(fields_[1], Qt::Key_2, Qt::ControlModifier);
    EXPECT_EQ(fields_[1]->text(), "Docteur Un");
    EXPECT_EQ(focused(), fields_[2]);
}

TEST_F(OfferPanelWidgets, AnExamIsFilledByKeyboard) {
    world_.addPhrase(1, "Docteur", "A");
    world_.addPhrase(1, "Un", "C");
    fields_[1]->setFocus();
    list(form_.List1)->setFocus();
    QTest::keyClick(focused(), Qt::Key_Home);
    QTest::keyClick(focused(), Qt::Key_Return);
    EXPECT_EQ(focused(), list(form_.List1));
    QTest::keyClick(focused(), Qt::Key_Down);
    QTest::keyClick(focused(), Qt::Key_Return);
    EXPECT_EQ(form_.Txt(1).text(), "Docteur Un");
    EXPECT_EQ(focused(), fields_[2]);
    fields_[4]->setFocus();
    list(form_.List2)->setFocus();
    QTest::keyClick(focused(), Qt::Key_Down);
    QTest::keyClick(focused(), Qt::Key_Return);
    EXPECT_EQ(form_.Txt(4).text(), "2");
    QTest::keyClick(focused(), Qt::Key_Escape);
    EXPECT_EQ(focused(), fields_[4]);
}

TEST_F(OfferPanelWidgets, ADayChosenWithTheMouseMovesTheFocusOn) {
    fields_[2]->setFocus();
    auto* calendar = static_cast<CalendarView*>(window_.widgetOf(form_.Calendar1));
    for (const QDate day : {QDate(2002, 1, 9), QDate(2002, 10, 16)}) {
        const QPoint at = calendar->placeOf(day);
        QTest::mouseClick(calendar->days(), Qt::LeftButton, {}, at);
    }
    EXPECT_EQ(form_.Txt(2).text(), "09/01/2002");
    EXPECT_EQ(form_.Txt(3).text(), "16/10/2002");
    EXPECT_EQ(focused(), fields_[4]);
    EXPECT_FALSE(calendar->isVisible());
}

TEST_F(OfferPanelWidgets, AFreeEntryIsTakenAtEnterAndAtLeaving) {
    fields_[5]->setFocus();
    QWidget* entry = window_.widgetOf(form_.Text1);
    entry->setFocus();
    typeInto(entry, "vu");
    QTest::keyClick(entry, Qt::Key_Return);
    EXPECT_EQ(form_.Txt(5).text(), " vu ");
    EXPECT_EQ(focused(), fields_[5]);
    EXPECT_EQ(fields_[5]->cursorPosition(), 4);
    entry->setFocus();
    typeInto(entry, "revu");
    fields_[1]->setFocus();
    EXPECT_EQ(form_.Txt(5).text(), " vu  revu ");
    EXPECT_EQ(form_.Txt(1).text(), "");
    EXPECT_EQ(focused(), fields_[5]);
    EXPECT_EQ(form_.Text1.text(), "");
}

TEST_F(OfferPanelWidgets, ARightClickWalksFromFieldToField) {
    fields_[3]->setFocus();
    QTest::mouseClick(list(form_.List1)->viewport(), Qt::RightButton);
    EXPECT_EQ(focused(), fields_[4]);
    QTest::mouseClick(list(form_.List2)->viewport(), Qt::RightButton);
    EXPECT_EQ(focused(), fields_[5]);
    QTest::mouseClick(list(form_.List1)->viewport(), Qt::RightButton);
    EXPECT_EQ(focused(), fields_[1]);
}

TEST_F(OfferPanelWidgets, TheNumbersAndTheirCaptionComeAndGoTogether) {
    QLabel* caption = nullptr;
    for (QLabel* label : window_.findChildren<QLabel*>()) {
        if (label->buddy() == list(form_.List2)) {
            caption = label;
        }
    }
    ASSERT_NE(caption, nullptr);
    EXPECT_FALSE(caption->isVisible());
    fields_[7]->setFocus();
    EXPECT_TRUE(caption->isVisible());
    EXPECT_TRUE(list(form_.List2)->isVisible());
    fields_[1]->setFocus();
    EXPECT_FALSE(caption->isVisible());
}

TEST_F(OfferPanelWidgets, TheTypicalNumberOpensInTheMiddle) {
    fields_[7]->setFocus();
    QApplication::processEvents();
    const QListView* numbers = list(form_.List2);
    EXPECT_EQ(numbers->currentIndex().data().toString(), "60");
    EXPECT_NEAR(numbers->visualRect(numbers->currentIndex()).center().y(), numbers->viewport()->height() / 2, 20);
}

}  // namespace
}  // namespace qt
