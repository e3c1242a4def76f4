#include "reports/riche_t.h"

#include <gtest/gtest.h>

#include "fakes/world.h"
#include "sample_exams.h"

namespace reports {
namespace {

using forms::Alignment;

class ReportEditor : public ::testing::Test {
protected:
    ReportEditor() {
        world_.printers.page = fakes::kA4;
        world_.desk.add("RicheT", [this] { return std::make_unique<RicheT>(world_.around); });
    }
    RicheT& open() { return openEditor(world_.desk, "Impression"); }
    RicheT& openWith(const QString& text) {
        RicheT& form = open();
        form.RichTextBox1.SelText(text);
        return form;
    }
    void press(RicheT& form, const QString& key) {
        world_.desk.act([&] { form.tbToolBar(key).click(); });
    }
    void chooseMenu(RicheT& form) {
        world_.desk.act([&] { form.imprimer.click(); });
    }
    static QStringList pressed(const RicheT& form) {
        QStringList keys;
        for (const auto& button : form.tbToolBar.buttons()) {
            if (button->checked()) {
                keys << button->key();
            }
        }
        return keys;
    }

    fakes::World world_;
};

TEST_F(ReportEditor, HasItsTitleUntilAReportGivesItAnother) {
    EXPECT_EQ(world_.desk.at("RicheT").title(), "Rich Text Box WYSIWYG Printing Example");
    EXPECT_EQ(open().title(), "Impression");
}

TEST_F(ReportEditor, HasTwelveToolsInTheirOrder) {
    QStringList keys, tips, images;
    for (const auto& button : open().tbToolBar.buttons()) {
        keys << button->key();
        tips << button->text();
        images << button->image();
    }
    EXPECT_EQ(keys, QStringList({"Imprimer", "Couper", "Copier", "Coller", "Gras", "Italique", "Souligné", "Police",
                                 "Aligner à gauche", "Centrer", "Aligner à droite", "Quitter"}));
    EXPECT_EQ(images, QStringList({"Print", "Cut", "Copy", "Paste", "Bold", "Italic", "Underline", "Police",
                                   "Align Left", "Center", "Align Right", "Quitte"}));
    keys.last() = "Quitte";
    EXPECT_EQ(tips, keys);
}

TEST_F(ReportEditor, StartsInArialOfTwelvePoints) {
    RicheT& form = open();
    EXPECT_EQ(form.RichTextBox1.text(), "");
    EXPECT_EQ(form.RichTextBox1.SelFontName(), "Arial");
    EXPECT_EQ(form.RichTextBox1.SelFontSize(), 12);
    EXPECT_EQ(form.RichTextBox1.SelAlignment(), Alignment::Left);
}

TEST_F(ReportEditor, TakesItsLineWidthAndItsSizeFromThePrinter) {
    const RicheT& form = open();
    EXPECT_EQ(form.RichTextBox1.lineWidth(), 11186);
    EXPECT_EQ(form.size().width, 11386);
    EXPECT_EQ(form.size().height, 16918);
}

TEST_F(ReportEditor, OpensWithoutPrintingAnything) {
    open();
    EXPECT_TRUE(world_.printers.jobs.empty());
    EXPECT_EQ(world_.printers.dialogs, 0);
}

TEST_F(ReportEditor, OpensQuietlyWithoutAPrinter) {
    world_.printers.page.reset();
    RicheT& form = openWith("texte");
    const RicheT::Size stored;
    EXPECT_EQ(form.size().width, stored.width);
    EXPECT_EQ(form.size().height, stored.height);
    EXPECT_EQ(form.RichTextBox1.lineWidth(), std::nullopt);
    EXPECT_EQ(form.RichTextBox1.text(), "texte");
    EXPECT_EQ(world_.boxes.said, QStringList());
    EXPECT_EQ(world_.boxes.reported, QList<int>());
}

TEST_F(ReportEditor, OpensQuietlyOnAPageBeyondAllMeasure) {
    world_.printers.page = ports::PageGeometry{
        .width = std::numeric_limits<std::int32_t>::min(), .height = 16838, .dpiX = 600, .dpiY = 600};
    const RicheT& form = open();
    EXPECT_EQ(form.size().width, RicheT::Size().width);
    EXPECT_EQ(form.RichTextBox1.lineWidth(), std::nullopt);
    EXPECT_EQ(world_.boxes.reported, QList<int>());
}

TEST_F(ReportEditor, PutsItsTextInsideItsWindow) {
    RicheT& form = open();
    form.Form_Resize(11386, 9000);
    EXPECT_EQ(form.RichTextBox1.place(), (forms::Place{100, 500, 11186, 8400}));
    form.Form_Resize(15000, 6000);
    EXPECT_EQ(form.RichTextBox1.place(), (forms::Place{100, 500, 14800, 5400}));
}

TEST_F(ReportEditor, CutsTheSelectedTextToTheClipboard) {
    RicheT& form = openWith("un deux");
    form.RichTextBox1.select(0, 3);
    press(form, "Couper");
    EXPECT_EQ(form.RichTextBox1.text(), "deux");
    EXPECT_EQ(world_.clipboard.content, "un ");
}

TEST_F(ReportEditor, CopiesTheSelectedTextToTheClipboard) {
    RicheT& form = openWith("un\r\ndeux");
    form.RichTextBox1.select(0, 4);
    press(form, "Copier");
    EXPECT_EQ(form.RichTextBox1.text(), "un\r\ndeux");
    EXPECT_EQ(world_.clipboard.content, "un\r\nd");
}

TEST_F(ReportEditor, LeavesTheClipboardAloneWithNothingSelected) {
    RicheT& form = openWith("un deux");
    world_.clipboard.content = "gardé";
    press(form, "Couper");
    press(form, "Copier");
    EXPECT_EQ(form.RichTextBox1.text(), "un deux");
    EXPECT_EQ(world_.clipboard.content, "gardé");
}

TEST_F(ReportEditor, PastesTheClipboardInPlaceOfTheSelection) {
    RicheT& form = openWith("un deux");
    world_.clipboard.content = "trois\r\nquatre";
    form.RichTextBox1.select(3, 7);
    press(form, "Coller");
    EXPECT_EQ(form.RichTextBox1.text(), "un trois\r\nquatre");
}

TEST_F(ReportEditor, PassesOverAClipboardThatFails) {
    RicheT& form = openWith("un deux");
    world_.clipboard.fails = true;
    form.RichTextBox1.select(0, 3);
    press(form, "Couper");
    EXPECT_EQ(form.RichTextBox1.text(), "deux");
    EXPECT_EQ(world_.boxes.reported, QList<int>());
}

TEST_F(ReportEditor, InvertsBoldItalicAndUnderlineAndShowsThemPressed) {
    RicheT& form = openWith("texte");
    forms::RichText& box = form.RichTextBox1;
    box.select(0, 5);
    for (const QString& key : {QString("Gras"), QString("Italique"), QString("Souligné")}) {
        press(form, key);
        EXPECT_TRUE(form.tbToolBar(key).checked()) << qPrintable(key);
    }
    EXPECT_EQ(box.SelBold(), true);
    EXPECT_EQ(box.SelItalic(), true);
    EXPECT_EQ(box.SelUnderline(), true);
    EXPECT_EQ(pressed(form), QStringList({"Gras", "Italique", "Souligné", "Aligner à gauche"}));
    press(form, "Italique");
    EXPECT_EQ(box.SelItalic(), false);
    EXPECT_EQ(pressed(form), QStringList({"Gras", "Souligné", "Aligner à gauche"}));
}

TEST_F(ReportEditor, MakesAMixedSelectionBold) {
    RicheT& form = openWith("gras ");
    form.RichTextBox1.SelBold(true);
    form.RichTextBox1.SelText("maigre");
    form.RichTextBox1.select(0, 11);
    EXPECT_FALSE(form.tbToolBar(u"Gras").checked());
    press(form, "Gras");
    EXPECT_EQ(form.RichTextBox1.SelBold(), true);
    EXPECT_TRUE(form.tbToolBar(u"Gras").checked());
}

TEST_F(ReportEditor, SetsWhatIsTypedNextWithNothingSelected) {
    RicheT& form = openWith("un ");
    press(form, "Gras");
    EXPECT_TRUE(form.tbToolBar(u"Gras").checked());
    form.RichTextBox1.SelText("deux");
    form.RichTextBox1.select(0, 3);
    EXPECT_EQ(form.RichTextBox1.SelBold(), false);
    form.RichTextBox1.select(3, 7);
    EXPECT_EQ(form.RichTextBox1.SelBold(), true);
}

TEST_F(ReportEditor, AlignsTheParagraphsOfTheSelection) {
    RicheT& form = openWith("un\r\ndeux\r\ntrois");
    forms::RichText& box = form.RichTextBox1;
    box.select(0, 4);
    press(form, "Centrer");
    EXPECT_EQ(box.SelAlignment(), Alignment::Centre);
    EXPECT_EQ(pressed(form), QStringList({"Centrer"}));
    box.select(9, 9);
    EXPECT_EQ(pressed(form), QStringList({"Aligner à gauche"}));
    press(form, "Aligner à droite");
    EXPECT_EQ(box.SelAlignment(), Alignment::Right);
    EXPECT_EQ(pressed(form), QStringList({"Aligner à droite"}));
    box.select(0, 9);
    EXPECT_EQ(pressed(form), QStringList());
    press(form, "Aligner à gauche");
    EXPECT_EQ(box.SelAlignment(), Alignment::Left);
}

TEST_F(ReportEditor, BringsItsButtonsInLineWithEachSelection) {
    RicheT& form = open();
    type(CptRenduDat(sampleExam("1")), form.RichTextBox1);
    EXPECT_EQ(pressed(form), QStringList({"Gras", "Centrer"}));
    form.RichTextBox1.SelStart(static_cast<int>(form.RichTextBox1.text().indexOf("BMI")) + 1);
    EXPECT_EQ(pressed(form), QStringList({"Aligner à gauche"}));
}

TEST_F(ReportEditor, AppliesTheFontChosenButNotItsName) {
    RicheT& form = openWith("un deux");
    forms::RichText& box = form.RichTextBox1;
    box.select(3, 7);
    world_.fontDialog.chosen = ports::FontChoice{"DejaVu Sans", 16, true, true, true, true, QColor(0, 0, 128)};
    press(form, "Police");
    EXPECT_EQ(box.SelFontName(), "Arial");
    EXPECT_EQ(box.SelFontSize(), 16);
    EXPECT_EQ(box.SelBold(), true);
    EXPECT_EQ(box.SelItalic(), true);
    EXPECT_EQ(box.SelUnderline(), true);
    EXPECT_EQ(box.SelStrikeThru(), true);
    EXPECT_EQ(box.SelColor(), QColor(0, 0, 128));
    EXPECT_EQ(pressed(form), QStringList({"Gras", "Italique", "Souligné", "Aligner à gauche"}));
    box.select(0, 3);
    EXPECT_EQ(box.SelFontSize(), 12);
    EXPECT_EQ(box.SelBold(), false);
}

TEST_F(ReportEditor, OffersTheFontOfTheSelection) {
    RicheT& form = open();
    form.RichTextBox1.SelFontSize(14);
    form.RichTextBox1.SelBold(true);
    form.RichTextBox1.SelColor(Qt::red);
    form.RichTextBox1.SelText("x");
    press(form, "Police");
    EXPECT_EQ(world_.fontDialog.offered.name, "Arial");
    EXPECT_EQ(world_.fontDialog.offered.size, 14);
    EXPECT_TRUE(world_.fontDialog.offered.bold);
    EXPECT_EQ(world_.fontDialog.offered.color, QColor(Qt::red));
}

TEST_F(ReportEditor, LeavesTheSelectionAsItWasWhenTheFontDialogIsCancelled) {
    RicheT& form = openWith("un deux");
    form.RichTextBox1.select(3, 7);
    const QString before = form.RichTextBox1.document().toHtml();
    press(form, "Police");
    EXPECT_EQ(form.RichTextBox1.document().toHtml(), before);
    EXPECT_EQ(form.RichTextBox1.SelText(), "deux");
}

TEST_F(ReportEditor, PrintsAtOnceFromItsToolbar) {
    RicheT& form = openWith("texte");
    press(form, "Imprimer");
    ASSERT_EQ(world_.printers.jobs.size(), 1u);
    EXPECT_EQ(world_.printers.jobs.front().title, "Impression");
    EXPECT_TRUE(world_.printers.jobs.front().ended);
    EXPECT_EQ(world_.printers.dialogs, 0);
}

TEST_F(ReportEditor, PrintsFromItsMenuThroughTheDialog) {
    RicheT& form = openWith("texte");
    chooseMenu(form);
    EXPECT_EQ(world_.printers.dialogs, 1);
    EXPECT_EQ(world_.printers.jobs.size(), 1u);
}

TEST_F(ReportEditor, PrintsNothingWhenThePrinterDialogIsCancelled) {
    RicheT& form = openWith("texte");
    world_.printers.accepts = false;
    chooseMenu(form);
    EXPECT_EQ(world_.printers.dialogs, 1);
    EXPECT_TRUE(world_.printers.jobs.empty());
    EXPECT_EQ(world_.boxes.said + QStringList(world_.boxes.reported.isEmpty() ? "" : "!"), QStringList({""}));
}

TEST_F(ReportEditor, SaysNothingWhenThereIsNoPrinterOrItRefuses) {
    RicheT& form = openWith("texte");
    world_.printers.refuses = true;
    press(form, "Imprimer");
    chooseMenu(form);
    world_.printers.page.reset();
    press(form, "Imprimer");
    EXPECT_TRUE(world_.printers.jobs.empty());
    EXPECT_EQ(world_.boxes.said, QStringList());
    EXPECT_EQ(world_.boxes.reported, QList<int>());
    EXPECT_EQ(form.RichTextBox1.text(), "texte");
}

TEST_F(ReportEditor, LosesItsTextWhenItIsLeft) {
    RicheT& form = openWith("texte");
    press(form, "Quitter");
    EXPECT_EQ(world_.desk.peek("RicheT"), nullptr);
    EXPECT_EQ(open().RichTextBox1.text(), "");
}

TEST_F(ReportEditor, DoesNothingForAnUnknownKey) {
    RicheT& form = openWith("texte");
    form.RichTextBox1.select(0, 5);
    for (const QString& key : {QString(""), QString("gras"), QString("Gras "), QString("Quitte")}) {
        form.tbToolBar_ButtonClick(key);
    }
    EXPECT_EQ(form.RichTextBox1.SelBold(), false);
    EXPECT_NE(world_.desk.peek("RicheT"), nullptr);
}

TEST_F(ReportEditor, KeepsTheFirstReportBelowTheSecond) {
    for (int i = 0; i < 2; ++i) {
        type(CptRenduDat(sampleExam("1")), open().RichTextBox1);
    }
    EXPECT_EQ(open().RichTextBox1.text().count("ECHOGRAPHIE du 1° Ter"), 2);
}

TEST_F(ReportEditor, UndoesWhatWasCorrectedButNotTheReportItself) {
    RicheT& form = open();
    const Report report = CptRenduDat(sampleExam("1"));
    type(report, form.RichTextBox1);
    const QString text = form.RichTextBox1.text();
    form.RichTextBox1.SelText("Corrigé ");
    form.RichTextBox1.document().undo();
    EXPECT_EQ(form.RichTextBox1.text(), text);
    EXPECT_FALSE(form.RichTextBox1.document().isUndoAvailable());
}

}  // namespace
}  // namespace reports
