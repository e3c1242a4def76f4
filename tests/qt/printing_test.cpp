#include <gtest/gtest.h>

#include <QApplication>
#include <QDialogButtonBox>
#include <QFile>
#include <QLineEdit>
#include <QPainter>
#include <QPrintDialog>
#include <QPrintPreviewWidget>
#include <QPrinter>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTimer>

#include "fakes/world.h"
#include "printed_pages.h"
#include "qt/real_font_dialog.h"
#include "reports/riche_t.h"
#include "reports/twips.h"
#include "reports/wisiwi.h"

namespace qt {
namespace {

using reports::Margins;

class PrintedReport : public ::testing::Test {
protected:
    PrintedReport() {
        world_.desk.add("RicheT", [this] { return std::make_unique<reports::RicheT>(world_.around); });
        reports::type(threePages(), box());
    }

    forms::RichText& box() { return world_.desk.at<reports::RicheT>().RichTextBox1; }

    std::vector<PrintedPage> print(const Margins& margins) {
        reports::PrintRTF(box(), *printers_.standard(), "Essai", margins);
        return readPdf(file_);
    }
    /// The lines of the text laid out for a width, as the editor lays it out.
    QStringList linesAt(int width) {
        QTextDocument& document = box().document();
        reports::measureInTwips(document);
        document.setTextWidth(width);
        document.size();
        return linesOf(document);
    }
    static QStringList allLines(const std::vector<PrintedPage>& pages) {
        QStringList lines;
        for (const PrintedPage& page : pages) {
            lines << page.lines;
        }
        return lines;
    }
    static void expectInside(const std::vector<PrintedPage>& pages, double margin) {
        constexpr double kHair = 0.5;
        for (const PrintedPage& page : pages) {
            ASSERT_FALSE(page.words.empty());
            for (const QRectF& word : page.words) {
                EXPECT_GE(word.left(), margin - kHair);
                EXPECT_LE(word.right(), 595.3 - margin + kHair);
                EXPECT_GE(word.top(), margin - kHair);
                EXPECT_LE(word.bottom(), 841.9 - margin + kHair);
            }
        }
    }

    fakes::World world_;
    QString file_ = world_.folder.filePath("rapport.pdf");
    PdfPrinters printers_{file_};
};

TEST_F(PrintedReport, HasTheLinesOfTheEditorWhenItIsPrintedWithItsMargins) {
    const QStringList inEditor = linesAt(11186);
    ASSERT_GT(inEditor.size(), 80);
    for (const int resolution : {96, 300, 600, 1200}) {
        printers_.resolution = resolution;
        const auto pages = print(reports::kEditorMargins);
        EXPECT_EQ(allLines(pages).join(u'\n').toStdString(), inEditor.join(u'\n').toStdString()) << resolution;
        expectInside(pages, 18);
    }
}

TEST_F(PrintedReport, LosesAndCutsNoLineBetweenItsPages) {
    const auto pages = print(reports::kPaperMargins);
    EXPECT_EQ(pages.size(), 3u);
    EXPECT_EQ(allLines(pages).join(u'\n').toStdString(), linesAt(9026).join(u'\n').toStdString());
    expectInside(pages, 72);
}

TEST_F(PrintedReport, BreaksElsewhereOnPaperThanInTheEditor) {
    EXPECT_NE(allLines(print(reports::kPaperMargins)), linesAt(11186));
}

TEST_F(PrintedReport, IsPrintedInItsOwnSizes) {
    // Letters are as high as the ascent and descent of Liberation Sans say: 1854 + 434 of 2048.
    const auto pages = print(reports::kPaperMargins);
    EXPECT_NEAR(pages[0].words[0].height(), 14 * 2288 / 2048.0, 0.05);
    EXPECT_NEAR(pages[2].words[0].height(), 12 * 2288 / 2048.0, 0.05);
}

TEST_F(PrintedReport, IsOneBlankPageWhenItIsEmpty) {
    box().document().clear();
    print(reports::kPaperMargins);
    QFile pdf(file_);
    ASSERT_TRUE(pdf.open(QIODevice::ReadOnly));
    EXPECT_TRUE(pdf.readAll().contains("/Count 1"));
}

TEST_F(PrintedReport, ReplacesTheFileOfTheOneBefore) {
    print(reports::kPaperMargins);
    box().document().clear();
    box().SelText("court");
    const auto pages = print(reports::kPaperMargins);
    ASSERT_EQ(pages.size(), 1u);
    EXPECT_EQ(pages[0].lines, QStringList({"court"}));
}

TEST_F(PrintedReport, FailsWhereItsFileCanNotBeWritten) {
    PdfPrinters nowhere(world_.folder.filePath("absent/rapport.pdf"));
    try {
        reports::PrintRTF(box(), *nowhere.standard(), "Essai", reports::kPaperMargins);
        FAIL() << "no error";
    } catch (const base::RuntimeError& error) {
        EXPECT_EQ(error.number(), base::ErrorNumber::DeviceError);
    }
}

TEST(RealPrinter, IsA4UprightWithoutAnEdgeWhereItWritesAFile) {
    QTemporaryDir folder;
    PdfPrinters printers(folder.filePath("x.pdf"));
    const ports::PageGeometry page = printers.standard()->geometry();
    EXPECT_EQ(page.width, 11906);
    EXPECT_EQ(page.height, 16838);
    EXPECT_EQ(page.dpiX, 1200);
    EXPECT_EQ(page.dpiY, 1200);
    EXPECT_EQ(page.physicalOffsetX, 0);
    EXPECT_EQ(page.physicalOffsetY, 0);
}

/// Presses a button of the dialog that is about to come up.
template <class Prepare>
void answerDialog(QDialogButtonBox::StandardButton which, Prepare prepare) {
    QTimer::singleShot(0, qApp, [which, prepare] {
        auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        ASSERT_NE(dialog, nullptr);
        prepare(*dialog);
        for (const QDialogButtonBox* box : dialog->findChildren<QDialogButtonBox*>()) {
            if (QPushButton* button = box->button(which)) {
                button->click();
                return;
            }
        }
        FAIL() << "no such button";
    });
}

TEST(PrinterDialog, LeadsToThePrinterChosen) {
    QTemporaryDir folder;
    PdfPrinters printers(folder.filePath("x.pdf"));
    answerDialog(QDialogButtonBox::Ok, [](const QDialog& dialog) { EXPECT_EQ(dialog.objectName(), "print"); });
    int width = 0;
    printers.choose([&](ports::Printer& printer) { width = printer.geometry().width; });
    EXPECT_EQ(width, 11906);
}

TEST(PrinterDialog, LeadsNowhereWhenItIsCancelled) {
    QTemporaryDir folder;
    PdfPrinters printers(folder.filePath("x.pdf"));
    answerDialog(QDialogButtonBox::Cancel, [](const QDialog&) {});
    printers.choose([](ports::Printer&) { FAIL() << "printed"; });
    EXPECT_FALSE(QFile::exists(folder.filePath("x.pdf")));
}

/// A machine without any printer.
class NoPrinters final : public RealPrinters {
protected:
    std::unique_ptr<QPrinter> makeStandard() const override { return nullptr; }
};

TEST(PrinterDialog, OffersAPdfFileOnAMachineWithoutAPrinter) {
    QTemporaryDir folder;
    const QString file = folder.filePath("choisi.pdf");
    NoPrinters printers;
    EXPECT_EQ(printers.standard(), nullptr);
    answerDialog(QDialogButtonBox::Ok, [file](QDialog& dialog) {
        auto* name = dialog.findChild<QLineEdit*>("filename");
        ASSERT_NE(name, nullptr);
        EXPECT_TRUE(name->text().endsWith(".pdf"));
        name->setText(file);
    });
    printers.choose([&](ports::Printer& printer) {
        const auto job = printer.open("Essai");
        job->painter().drawLine(0, 0, 100, 100);
        EXPECT_FALSE(QFile::exists(file)) << "a PDF is there when it is whole";
        job->end();
    });
    EXPECT_TRUE(QFile::exists(file));
}

/// Presses the preview's button in the printer dialog, looks at the preview, closes it, and cancels the dialog.
template <class Look>
void previewAndCancel(Look look) {
    answerDialog(QDialogButtonBox::Cancel, [look](QDialog& dialog) {
        for (QPushButton* button : dialog.findChildren<QPushButton*>()) {
            if (button->text() == "A&perçu") {
                QTimer::singleShot(0, qApp, [look] {
                    auto* preview = qobject_cast<QDialog*>(QApplication::activeModalWidget());
                    ASSERT_NE(preview, nullptr);
                    look(*preview);
                    preview->reject();
                });
                button->click();
                return;
            }
        }
        FAIL() << "no preview";
    });
}

TEST(PrinterDialog, ShowsThePagesBeforeTheyArePrinted) {
    QTemporaryDir folder;
    PdfPrinters printers(folder.filePath("x.pdf"));
    int pages = 0;
    previewAndCancel([&](const QDialog& dialog) {
        EXPECT_EQ(dialog.windowTitle(), "Aperçu avant impression");
        auto* preview = dialog.findChild<QPrintPreviewWidget*>();
        ASSERT_NE(preview, nullptr);
        preview->updatePreview();
        pages = preview->pageCount();
    });
    printers.choose([](ports::Printer& printer) {
        const auto job = printer.open("Essai");
        job->painter().drawText(100, 100, "un");
        job->newPage();
        job->painter().drawText(100, 100, "deux");
    });
    EXPECT_EQ(pages, 2);
    EXPECT_FALSE(QFile::exists(folder.filePath("x.pdf")));
}

TEST(PrinterDialog, TellsWhatFailsInThePreview) {
    QTemporaryDir folder;
    PdfPrinters printers(folder.filePath("x.pdf"));
    previewAndCancel([](const QDialog& dialog) { dialog.findChild<QPrintPreviewWidget*>()->updatePreview(); });
    EXPECT_THROW(printers.choose([](ports::Printer&) { throw base::RuntimeError(base::ErrorNumber::InvalidPicture); }),
                 base::RuntimeError);
}

TEST(FontDialogBox, GivesBackWhatItWasOfferedWhenNothingIsChanged) {
    const ports::FontChoice offered{"Arial", 14, true, false, true, false, QColor(0x12, 0x34, 0x56)};
    answerDialog(QDialogButtonBox::Ok, [](const QDialog& dialog) { EXPECT_EQ(dialog.objectName(), "font"); });
    const auto chosen = RealFontDialog().choose(offered);
    ASSERT_TRUE(chosen);
    EXPECT_EQ(chosen->name, "Arial");
    EXPECT_EQ(chosen->size, 14);
    EXPECT_TRUE(chosen->bold);
    EXPECT_FALSE(chosen->italic);
    EXPECT_TRUE(chosen->underline);
    EXPECT_FALSE(chosen->strike);
    EXPECT_EQ(chosen->color, QColor(0x12, 0x34, 0x56));
}

TEST(FontDialogBox, GivesBackWhatAPersonChanges) {
    answerDialog(QDialogButtonBox::Ok, [](QDialog& dialog) {
        static_cast<FontBox&>(dialog).show({"DejaVu Sans", 10.5, false, true, false, true, Qt::red});
    });
    const auto chosen = RealFontDialog().choose({});
    ASSERT_TRUE(chosen);
    EXPECT_EQ(chosen->name, "DejaVu Sans");
    EXPECT_EQ(chosen->size, 10.5);
    EXPECT_TRUE(chosen->italic);
    EXPECT_TRUE(chosen->strike);
    EXPECT_EQ(chosen->color, QColor(Qt::red));
}

TEST(FontDialogBox, GivesBackNothingOnCancel) {
    answerDialog(QDialogButtonBox::Cancel, [](const QDialog&) {});
    EXPECT_FALSE(RealFontDialog().choose({}));
}

}  // namespace
}  // namespace qt
