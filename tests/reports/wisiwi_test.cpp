#include "reports/wisiwi.h"

#include <gtest/gtest.h>

#include <QFontInfo>
#include <limits>

#include "fakes/world.h"
#include "reports/twips.h"
#include "sample_exams.h"

namespace reports {
namespace {

constexpr std::int32_t kLeast = std::numeric_limits<std::int32_t>::min();
constexpr std::int32_t kMost = std::numeric_limits<std::int32_t>::max();

class Editor final : public forms::Form {
public:
    explicit Editor(forms::Desk& desk) : Form(desk, "Editor", "Editor") {}
    forms::RichText Box{*this, "Box"};
};

class Wisiwi : public ::testing::Test {
protected:
    Wisiwi() {
        form.Box.SelFontName("Arial");
        form.Box.SelFontSize(12);
        printers.page = fakes::kA4;
        job = printers.standard()->openText("Essai");
    }
    base::ErrorNumber setUpError(const ports::PageGeometry& page, const Margins& margins) {
        try {
            WYSIWYG_RTF(form.Box, page, margins);
        } catch (const base::RuntimeError& error) {
            return error.number();
        }
        return {};
    }
    std::vector<int> pageStarts(TextRenderer& renderer) {
        std::vector<int> starts{0};
        for (int next = 0; (next = renderer.render(*job, next)) < renderer.textLength();) {
            starts.push_back(next);
        }
        return starts;
    }
    TextRenderer rendererOf(const Margins& margins) {
        return {form.Box.document(), drawingRectangle(fakes::kA4, margins)};
    }

    forms::Desk desk;
    Editor form{desk};
    fakes::Printers printers;
    std::unique_ptr<ports::TextJob> job;
};

/// Answers as it is told and writes down what it is asked.
class ScriptedRenderer final : public PageRenderer {
public:
    explicit ScriptedRenderer(std::vector<int> answers) : answers_(std::move(answers)) {}
    int render(ports::TextJob&, int first) override {
        asked.push_back(first);
        return answers_.at(asked.size() - 1);
    }
    std::vector<int> asked;

private:
    std::vector<int> answers_;
};

TEST(Twips, AreRoundedFromPixelsTiesToEven) {
    EXPECT_EQ(toTwips(150, 600), 360);
    EXPECT_EQ(toTwips(1, 1200), 1);
    EXPECT_EQ(toTwips(1, 2880), 0);
    EXPECT_EQ(toTwips(3, 2880), 2);
    EXPECT_THROW(toTwips(kMost, 1), base::RuntimeError);
    EXPECT_THROW(toTwips(1, 0), base::RuntimeError);
}

TEST(Twips, AreSubtractedWithoutWrapping) {
    EXPECT_EQ(subtract(kMost, 1), kMost - 1);
    EXPECT_EQ(subtract(-1, kMost), kLeast);
    EXPECT_THROW(subtract(-2, kMost), base::RuntimeError);
    EXPECT_THROW(subtract(kMost, -1), base::RuntimeError);
}

TEST_F(Wisiwi, BreaksTheLinesOfTheEditorForA4) {
    EXPECT_EQ(WYSIWYG_RTF(form.Box, fakes::kA4, kEditorMargins), (PrintableArea{11186, 16118}));
    EXPECT_EQ(form.Box.lineWidth(), 11186);
}

TEST_F(Wisiwi, FindsTheSameAreaWhateverThePrinterCantReach) {
    ports::PageGeometry page = fakes::kA4;
    page.physicalOffsetX = 100;
    page.physicalOffsetY = 140;
    page.dpiY = 300;
    EXPECT_EQ(WYSIWYG_RTF(form.Box, page, kEditorMargins), (PrintableArea{11186, 16118}));
}

TEST_F(Wisiwi, ChecksEachSubtractionOfTheSetUp) {
    ports::PageGeometry page = fakes::kA4;
    page.physicalOffsetX = 600;  // 1440 twips
    page.physicalOffsetY = 600;
    constexpr auto kOverflow = base::ErrorNumber::Overflow;
    EXPECT_EQ(setUpError(page, {kLeast, 0, 0, 0}), kOverflow);                            // left - offset
    EXPECT_EQ(setUpError(page, {0, 0, -kMost, 0}), kOverflow);                            // page width - right
    EXPECT_EQ(setUpError(page, {0, kLeast, 0, 0}), kOverflow);                            // top - offset
    EXPECT_EQ(setUpError(page, {0, 0, 0, -kMost}), kOverflow);                            // page height - bottom
    EXPECT_EQ(setUpError(page, {-kMost + 2000, 0, 0, 0}), kOverflow);                     // width: right - left
    EXPECT_EQ(setUpError(page, {0, -kMost + 2000, 0, 0}), kOverflow);                     // height: bottom - top
    EXPECT_EQ(setUpError({-100, 16838, 600, 600, 600, 0}, {0, 0, kMost, 0}), kOverflow);  // ... - offset
    EXPECT_EQ(setUpError(page, kEditorMargins), base::ErrorNumber{});
    EXPECT_EQ(form.Box.lineWidth(), 11186);
}

TEST_F(Wisiwi, LeavesTheEditorAsItWasWhenTheSetUpFails) {
    EXPECT_EQ(setUpError(fakes::kA4, {0, 0, -kMost, 0}), base::ErrorNumber::Overflow);
    EXPECT_EQ(form.Box.lineWidth(), std::nullopt);
}

TEST_F(Wisiwi, CountsTheDrawingRectangleFromThePrintableCorner) {
    ports::PageGeometry page = fakes::kA4;
    page.physicalOffsetX = 100;  // 240 twips at 600
    page.physicalOffsetY = 100;  // 480 twips at 300
    page.dpiY = 300;
    EXPECT_EQ(drawingRectangle(page, kPaperMargins), (Rectangle{1200, 960, 10226, 14918}));
    EXPECT_EQ(drawingRectangle(fakes::kA4, kPaperMargins), (Rectangle{1440, 1440, 10466, 15398}));
    EXPECT_THROW(drawingRectangle(page, {0, kLeast, 0, 0}), base::RuntimeError);
    EXPECT_THROW(drawingRectangle(page, {0, 0, 0, -kMost}), base::RuntimeError);
}

TEST_F(Wisiwi, RendersATextOfOnePageOnce) {
    ScriptedRenderer renderer({120});
    printPages(renderer, *job, 120);
    EXPECT_EQ(renderer.asked, std::vector<int>({0}));
    EXPECT_EQ(printers.jobs.front().pages, 1);
    EXPECT_TRUE(printers.jobs.front().ended);
}

TEST_F(Wisiwi, GoesOnFromTheFirstCharacterThatDidNotFit) {
    ScriptedRenderer renderer({50, 90, 121});
    printPages(renderer, *job, 120);
    EXPECT_EQ(renderer.asked, std::vector<int>({0, 50, 90}));
    EXPECT_EQ(printers.jobs.front().pages, 3);
}

TEST_F(Wisiwi, OpensAndClosesTheJobOfAnEmptyText) {
    PrintRTF(form.Box, *printers.standard(), "Vide", kPaperMargins);
    ASSERT_EQ(printers.jobs.size(), 2u);
    EXPECT_EQ(printers.jobs.back().title, "Vide");
    EXPECT_EQ(printers.jobs.back().pages, 1);
    EXPECT_TRUE(printers.jobs.back().ended);
}

TEST_F(Wisiwi, FillsAPageWithFiftyLinesOfTwelvePoints) {
    // A line of 12 points is 276 twips (1854 + 434 + 67 of 2048, of 240), the page between the margins 13958.
    ASSERT_TRUE(QStringList({"Liberation Sans", "Arial", "Arimo"}).contains(QFontInfo(QFont("Arial")).family()));
    for (int i = 0; i < 120; ++i) {
        form.Box.SelText(QString("%1\r\n").arg(i, 3, 10, QChar(u'0')));
    }
    TextRenderer renderer = rendererOf(kPaperMargins);
    EXPECT_EQ(renderer.textLength(), 480);
    EXPECT_EQ(pageStarts(renderer), std::vector<int>({0, 200, 400}));
}

TEST_F(Wisiwi, StartsAPageInTheMiddleOfAParagraphThatRunsOver) {
    form.Box.SelText(QString("mot ").repeated(3000));
    TextRenderer renderer = rendererOf(kPaperMargins);
    const std::vector<int> starts = pageStarts(renderer);
    ASSERT_GT(starts.size(), 1u);
    for (std::size_t i = 1; i < starts.size(); ++i) {
        EXPECT_GT(starts[i], starts[i - 1]);
        EXPECT_EQ(starts[i] % 4, 0) << "a word was cut";
    }
}

TEST_F(Wisiwi, ComesToAnEndOnAPageThatHoldsNoLine) {
    form.Box.SelText("un\r\ndeux\r\ntrois");
    TextRenderer renderer(form.Box.document(), {0, 0, 9000, 10});
    EXPECT_EQ(pageStarts(renderer), std::vector<int>({0, 3, 8}));
}

TEST_F(Wisiwi, LeavesTheDocumentOfTheEditorAlone) {
    type(CptRendu1T(sampleExam("3"), Detail::Minimum, kIntroduction), form.Box);
    const QString before = form.Box.document().toHtml();
    PrintRTF(form.Box, *printers.standard(), "Essai", kPaperMargins);
    EXPECT_EQ(form.Box.document().toHtml(), before);
    EXPECT_EQ(printers.jobs.back().pages, 2);
}

}  // namespace
}  // namespace reports
