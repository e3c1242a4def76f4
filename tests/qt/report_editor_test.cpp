#include <gtest/gtest.h>

#include <QAccessible>
#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QInputMethodEvent>
#include <QLayout>
#include <QMenu>
#include <QMenuBar>
#include <QMimeData>
#include <QScrollBar>
#include <QTest>
#include <QTextBlock>
#include <QTextEdit>
#include <QToolButton>
#include <QWheelEvent>

#include "fakes/world.h"
#include "printed_pages.h"
#include "qt/page_view.h"
#include "qt/stage.h"
#include "reports/first_trimester.h"
#include "reports/riche_t.h"
#include "reports/wisiwi.h"

namespace qt {
namespace {

using reports::RicheT;

/// The real window of the report editor, on a scripted machine.
class EditorWindow : public ::testing::Test {
protected:
    EditorWindow() {
        world_.printers.page = fakes::kA4;
        world_.desk.add("RicheT", [this] { return std::make_unique<RicheT>(world_.around); });
    }

    RicheT& open() {
        world_.desk.act([this] { reports::openEditor(world_.desk, "Impression"); });
        settle();
        return world_.desk.at<RicheT>();
    }
    RicheT& openWith(const QString& text) {
        RicheT& form = open();
        world_.desk.act([&] { form.RichTextBox1.SelText(text); });
        settle();
        return form;
    }
    FormWindow& window() { return *stage_.windowOf(world_.desk.at<RicheT>()); }
    PageView& view() { return *static_cast<PageView*>(window().widgetOf(world_.desk.at<RicheT>().RichTextBox1)); }
    void settle() {
        QApplication::setActiveWindow(&window());
        QApplication::processEvents();
    }
    void press(const QString& key) {
        QTest::mouseClick(window().widgetOf(world_.desk.at<RicheT>().tbToolBar(key)), Qt::LeftButton);
    }
    void wheel(int turn, Qt::KeyboardModifiers keys) {
        const QPointF at = view().viewport()->rect().center();
        QWheelEvent event(at, view().viewport()->mapToGlobal(at), {}, QPoint(0, turn), Qt::NoButton, keys,
                          Qt::NoScrollPhase, false);
        QApplication::sendEvent(view().viewport(), &event);
        settle();
    }
    QStringList editorLines() { return linesOf(*view().edit().document()); }
    void type(const QString& text) {
        for (const QChar c : text) {
            QTest::sendKeyEvent(QTest::Click, &view(), Qt::Key_unknown, QString(c), Qt::NoModifier, -1);
        }
    }

    fakes::World world_;
    WindowStage stage_{world_.desk, [] {}};
};

TEST_F(EditorWindow, TakesWhatIsTypedIntoTheDocumentOfItsForm) {
    RicheT& form = open();
    EXPECT_TRUE(view().hasFocus());
    EXPECT_EQ(form.focused(), &form.RichTextBox1);
    type("œuf, été");
    EXPECT_EQ(form.RichTextBox1.text(), "œuf, été");
    EXPECT_EQ(form.RichTextBox1.SelStart(), 8);
}

TEST_F(EditorWindow, TypesInItsOwnFontAfterEveryKeyThatMovesTheCaret) {
    RicheT& form = open();
    QTest::keyClick(&view(), Qt::Key_End, Qt::ControlModifier);
    type("un");
    QTest::keyClick(&view(), Qt::Key_Return);
    QTest::keyClick(&view(), Qt::Key_Up);
    QTest::keyClick(&view(), Qt::Key_Down);
    type("deux");
    QTest::keyClick(&view(), Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(&view(), Qt::Key_Delete);
    type("trois");
    form.RichTextBox1.select(0, 5);
    EXPECT_EQ(form.RichTextBox1.SelText(), "trois");
    EXPECT_EQ(form.RichTextBox1.SelFontName(), "Arial");
    EXPECT_EQ(form.RichTextBox1.SelFontSize(), 12);
}

TEST_F(EditorWindow, TakesDeadKeysAndInputMethods) {
    RicheT& form = open();
    QInputMethodEvent composing("^", {});
    QApplication::sendEvent(&view(), &composing);
    EXPECT_EQ(form.RichTextBox1.text(), "");
    QInputMethodEvent done;
    done.setCommitString("ê");
    QApplication::sendEvent(&view(), &done);
    EXPECT_EQ(form.RichTextBox1.text(), "ê");
    EXPECT_TRUE(view().testAttribute(Qt::WA_InputMethodEnabled));
    EXPECT_TRUE(view().inputMethodQuery(Qt::ImEnabled).toBool());
}

TEST_F(EditorWindow, TellsAnInputMethodWhereItsCaretIs) {
    openWith("un mot");
    const QRect caret = view().inputMethodQuery(Qt::ImCursorRectangle).toRect();
    EXPECT_TRUE(view().viewport()->rect().contains(caret.center()));
    EXPECT_LT(caret.height(), 30) << "in pixels, not in twips";
}

TEST_F(EditorWindow, UndoesAndRedoesByItsKeys) {
    RicheT& form = open();
    type("abc");
    QTest::keyClick(&view(), Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(form.RichTextBox1.text(), "");
    QTest::keyClick(&view(), Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(form.RichTextBox1.text(), "abc");
}

TEST_F(EditorWindow, CutsCopiesAndPastesByItsKeys) {
    RicheT& form = openWith("un\r\ndeux");
    QTest::keyClick(&view(), Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(form.RichTextBox1.SelText(), "un\r\ndeux");
    QTest::keyClick(&view(), Qt::Key_X, Qt::ControlModifier);
    EXPECT_EQ(form.RichTextBox1.text(), "");
    QTest::keyClick(&view(), Qt::Key_V, Qt::ControlModifier);
    QTest::keyClick(&view(), Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(form.RichTextBox1.text(), "un\r\ndeuxun\r\ndeux");
}

TEST_F(EditorWindow, PastesTextWithoutTheAttributesItHadElsewhere) {
    RicheT& form = open();
    auto* rich = new QMimeData;
    rich->setHtml("<b style='font-size:30pt'>gras</b>");
    rich->setText("gras");
    QApplication::clipboard()->setMimeData(rich);
    QTest::keyClick(&view(), Qt::Key_V, Qt::ControlModifier);
    form.RichTextBox1.select(0, 4);
    EXPECT_EQ(form.RichTextBox1.SelText(), "gras");
    EXPECT_EQ(form.RichTextBox1.SelBold(), false);
    EXPECT_EQ(form.RichTextBox1.SelFontSize(), 12);
}

TEST_F(EditorWindow, KeepsTheSelectionThatAButtonActsOn) {
    RicheT& form = openWith("un deux");
    QTest::keyClick(&view(), Qt::Key_A, Qt::ControlModifier);
    press("Gras");
    EXPECT_EQ(form.RichTextBox1.SelBold(), true);
    EXPECT_EQ(form.RichTextBox1.SelText(), "un deux");
    EXPECT_TRUE(view().hasFocus());
    auto* bold = static_cast<QToolButton*>(window().widgetOf(form.tbToolBar(u"Gras")));
    EXPECT_TRUE(bold->isChecked());
    press("Gras");
    EXPECT_EQ(form.RichTextBox1.SelBold(), false);
    EXPECT_FALSE(bold->isChecked());
}

TEST_F(EditorWindow, TypesInBoldAfterItsButtonWasPressedWithNothingSelected) {
    RicheT& form = open();
    type("un ");
    press("Gras");
    type("deux");
    press("Gras");
    type(" trois");
    const auto boldAt = [&](int from, int to) {
        form.RichTextBox1.select(from, to);
        return form.RichTextBox1.SelBold();
    };
    EXPECT_EQ(boldAt(0, 3), false);
    EXPECT_EQ(boldAt(3, 7), true);
    EXPECT_EQ(boldAt(7, 13), false);
}

TEST_F(EditorWindow, LeavesAToggledButtonPressedAsItsSelectionSays) {
    RicheT& form = openWith("texte");
    auto* left = static_cast<QToolButton*>(window().widgetOf(form.tbToolBar(u"Aligner à gauche")));
    EXPECT_TRUE(left->isChecked());
    press("Aligner à gauche");
    EXPECT_TRUE(left->isChecked()) << "pressing it again does not undo it";
}

TEST_F(EditorWindow, FollowsTheCaretWithItsButtons) {
    RicheT& form = open();
    world_.desk.act([&] { reports::type(threePages(), form.RichTextBox1); });
    EXPECT_TRUE(form.tbToolBar(u"Gras").checked());
    EXPECT_TRUE(form.tbToolBar(u"Centrer").checked());
    QTest::keyClick(&view(), Qt::Key_End, Qt::ControlModifier);
    EXPECT_FALSE(form.tbToolBar(u"Gras").checked());
    EXPECT_TRUE(form.tbToolBar(u"Centrer").checked());
    type("\r");
    QTest::keyClick(&view(), Qt::Key_Return);
    type("suite");
    EXPECT_EQ(form.RichTextBox1.SelAlignment(), forms::Alignment::Centre);
}

TEST_F(EditorWindow, ShowsAReportFromItsTop) {
    RicheT& form = open();
    world_.desk.act([&] { reports::type(threePages(), form.RichTextBox1); });
    settle();
    EXPECT_EQ(view().edit().textCursor().position(), 0);
    EXPECT_EQ(view().verticalScrollBar()->value(), view().verticalScrollBar()->minimum());
    world_.desk.act([&] { reports::type(threePages(), form.RichTextBox1); });
    settle();
    EXPECT_EQ(view().edit().textCursor().position(), 0);
    EXPECT_EQ(view().verticalScrollBar()->value(), view().verticalScrollBar()->minimum());
}

TEST_F(EditorWindow, PlacesTheCaretWhereAPersonClicks) {
    RicheT& form = openWith("un\r\ndeux\r\ntrois");
    const QTextBlock second = form.RichTextBox1.document().findBlockByNumber(1);
    const QRectF line = second.layout()->lineAt(0).rect().translated(second.layout()->position());
    QTest::mouseClick(view().viewport(), Qt::LeftButton, {},
                      view().mapFromScene(line.center() - QPointF(line.width() / 2, 0)));
    EXPECT_EQ(form.RichTextBox1.cursor().position(), 3);
    QTest::mouseClick(view().viewport(), Qt::LeftButton, {}, view().mapFromScene(line.center()));
    EXPECT_EQ(form.RichTextBox1.cursor().position(), 7) << "right of the text is its end";
}

TEST_F(EditorWindow, ScrollsByTheWheel) {
    RicheT& form = open();
    world_.desk.act([&] { reports::type(threePages(), form.RichTextBox1); });
    settle();
    wheel(-120, {});
    EXPECT_GT(view().verticalScrollBar()->value(), view().verticalScrollBar()->minimum());
    EXPECT_EQ(view().zoom(), 1);
}

TEST_F(EditorWindow, FollowsTheCaretDownThePage) {
    RicheT& form = open();
    world_.desk.act([&] { reports::type(threePages(), form.RichTextBox1); });
    settle();
    QTest::keyClick(&view(), Qt::Key_End, Qt::ControlModifier);
    const QRect caret = view().inputMethodQuery(Qt::ImCursorRectangle).toRect();
    EXPECT_TRUE(view().viewport()->rect().contains(caret));
}

TEST_F(EditorWindow, BreaksItsLinesWherePaperWithTheSameMarginsDoes) {
    RicheT& form = open();
    world_.desk.act([&] { reports::type(threePages(), form.RichTextBox1); });
    settle();
    const QString file = world_.folder.filePath("rapport.pdf");
    reports::PrintRTF(form.RichTextBox1, *PdfPrinters(file).standard(), "Essai", reports::kEditorMargins);
    QStringList onPaper;
    for (const PrintedPage& page : readPdf(file)) {
        onPaper << page.lines;
    }
    EXPECT_EQ(editorLines().join(u'\n').toStdString(), onPaper.join(u'\n').toStdString());
    EXPECT_GT(onPaper.size(), 80);
}

TEST_F(EditorWindow, BreaksNoLineElsewhereWhenItIsZoomedOrResized) {
    RicheT& form = open();
    world_.desk.act([&] { reports::type(threePages(), form.RichTextBox1); });
    const QStringList before = editorLines();
    wheel(120, Qt::ControlModifier);
    EXPECT_GT(view().zoom(), 1);
    EXPECT_EQ(editorLines(), before);
    window().resize(500, 400);
    settle();
    EXPECT_EQ(editorLines(), before);
    window().resize(1300, 700);
    settle();
    EXPECT_EQ(editorLines(), before);
    EXPECT_EQ(view().verticalScrollBar()->value(), view().verticalScrollBar()->minimum()) << "still at its top";
    QTest::keyClick(&view(), Qt::Key_0, Qt::ControlModifier);
    EXPECT_EQ(view().zoom(), 1);
    EXPECT_EQ(editorLines(), before);
}

TEST_F(EditorWindow, BreaksItsLinesAtItsOwnWidthWithoutAPrinter) {
    world_.printers.page.reset();
    openWith(QString("mot ").repeated(200));
    const QStringList before = editorLines();
    window().resize(500, 400);
    settle();
    EXPECT_GT(editorLines().size(), before.size());
}

TEST_F(EditorWindow, IsAsWideAsThePageAndNoHigherThanTheScreen) {
    open();
    EXPECT_EQ(window().width(), 759);  // 11386 twips
    EXPECT_LE(window().height(), window().screen()->availableGeometry().height());
    EXPECT_GE(window().height(), window().screen()->availableGeometry().height() - 40);
}

TEST_F(EditorWindow, KeepsItsTextInsideTheWindow) {
    RicheT& form = open();
    window().resize(800, 600);
    settle();
    const int inside = 600 - window().layout()->menuBar()->height();
    EXPECT_EQ(form.RichTextBox1.place(), (forms::Place{100, 500, 800 * 15 - 200, inside * 15 - 600}));
    EXPECT_EQ(view().pos(), QPoint(7, 33));
    EXPECT_EQ(view().width(), 787);
}

TEST_F(EditorWindow, HasAContextMenuOfItsOwnSize) {
    RicheT& form = openWith("un deux");
    QTest::keyClick(&view(), Qt::Key_A, Qt::ControlModifier);
    const QPoint at = view().viewport()->rect().center();
    QContextMenuEvent asked(QContextMenuEvent::Mouse, at, view().viewport()->mapToGlobal(at));
    QApplication::sendEvent(view().viewport(), &asked);
    auto* menu = view().findChild<QMenu*>();
    ASSERT_NE(menu, nullptr);
    EXPECT_TRUE(menu->isVisible());
    EXPECT_TRUE(menu->isWindow());
    QStringList entries;
    QAction* cut = nullptr;
    for (QAction* action : menu->actions()) {
        entries << action->text().remove(u'&');
        cut = action->text() == "Co&uper" ? action : cut;
    }
    EXPECT_EQ(entries, QStringList({"Annuler", "Rétablir", "", "Couper", "Copier", "Coller", "", "Tout sélectionner"}));
    ASSERT_NE(cut, nullptr);
    cut->trigger();
    EXPECT_EQ(form.RichTextBox1.text(), "");
    menu->close();
}

TEST_F(EditorWindow, GoesWhenItIsLeftAndComesBackEmpty) {
    openWith("texte");
    press("Quitter");
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(world_.desk.peek("RicheT"), nullptr);
    EXPECT_EQ(open().RichTextBox1.text(), "");
    type("neuf");
    EXPECT_EQ(world_.desk.at<RicheT>().RichTextBox1.text(), "neuf");
}

TEST(PageViewWidget, GoesWhileItHasTheFocus) {
    QTextDocument document;
    auto* page = new PageView(document, "Essai");
    page->show();
    QApplication::setActiveWindow(page);
    page->setFocus();
    QApplication::processEvents();
    ASSERT_TRUE(page->hasFocus());
    page->release();
    delete page;
}

// A later window's editor may stand where this one stood in memory: a screen reader must not be told of the old one.
TEST_F(EditorWindow, LeavesNothingToAScreenReaderWhenItIsLeft) {
    open();
    const QAccessible::Id page = QAccessible::uniqueId(QAccessible::queryAccessibleInterface(&view().edit()));
    ASSERT_NE(QAccessible::accessibleInterface(page), nullptr);
    press("Quitter");
    QApplication::processEvents();
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(QAccessible::accessibleInterface(page), nullptr);
}

TEST_F(EditorWindow, TellsWhatEachToolDoesAndOffersItAlways) {
    RicheT& form = open();
    QStringList tips;
    for (const auto& button : form.tbToolBar.buttons()) {
        auto* tool = static_cast<QToolButton*>(window().widgetOf(*button));
        EXPECT_TRUE(tool->isEnabled()) << qPrintable(button->key());
        EXPECT_FALSE(tool->icon().isNull()) << qPrintable(button->key());
        tips << tool->toolTip();
    }
    EXPECT_EQ(tips, QStringList({"Imprimer", "Couper", "Copier", "Coller", "Gras", "Italique", "Souligné", "Police",
                                 "Aligner à gauche", "Centrer", "Aligner à droite", "Quitte"}));
}

TEST_F(EditorWindow, PrintsFromItsMenuBar) {
    RicheT& form = openWith("texte");
    window().actionOf(form.imprimer)->trigger();
    EXPECT_EQ(world_.printers.dialogs, 1);
    EXPECT_EQ(world_.printers.jobs.size(), 1u);
}

TEST_F(EditorWindow, ShowsItsTitle) {
    open();
    EXPECT_EQ(window().windowTitle(), "Impression");
}

TEST_F(EditorWindow, StopsItsTabsEveryHalfInch) {
    openWith("\ta\tb");
    const QTextLine line = view().edit().document()->firstBlock().layout()->lineAt(0);
    EXPECT_NEAR(line.cursorToX(1), 720, 0.1);
    EXPECT_NEAR(line.cursorToX(3), 1440, 0.1);
}

TEST_F(EditorWindow, LeavesTheDocumentMeasuredInTwips) {
    openWith("x");
    const QTextLine line = view().edit().document()->firstBlock().layout()->lineAt(0);
    EXPECT_NEAR(line.height(), 276, 1) << "12 points of Arial";
}

}  // namespace
}  // namespace qt
