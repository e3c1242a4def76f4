#include <gtest/gtest.h>

#include "forms/desk.h"
#include "forms/form.h"
#include "readable.h"
#include "sample_exams.h"

namespace reports {
namespace {

using forms::Alignment;

constexpr auto kFull = Detail::Full;
constexpr auto kMinimum = Detail::Minimum;

class Editor final : public forms::Form {
public:
    explicit Editor(forms::Desk& desk) : Form(desk, "Editor", "Editor") {}
    forms::RichText Box{*this, "Box"};
};

class TypedReport : public ::testing::Test {
protected:
    forms::Desk desk;
    Editor form{desk};
    forms::RichText& box = form.Box;
};

TEST(FirstTrimesterReport, StartsByTheLetterheadAsItsOperations) {
    const Report report = CptRendu1T(sampleExam("1"), kFull, std::nullopt);
    const Operations expected{
        SelAlignment{Alignment::Centre},
        SelFontSize{14},
        SelBold{true},
        SelText{"Clinique des Tilleuls\r\nDocteur Hélène MARCHAND\r\n"},
        SelFontSize{12},
        SelText{"12, rue du Vieux Pont\r\n67000 STRASBOURG\r\n"},
        SelBold{false},
        SelText{"Tél. 03 88 00 00 00\r\n\r\n"},
        SelFontSize{14},
        SelText{"ECHOGRAPHIE du 1° Ter\r\n"},
        SelFontSize{10},
        SelText{"Appareil: Echographe A\r\n"},
        SelText{"1ère mise en service le 15/01/2001\r\n\r\n\r\n"},
        SelAlignment{Alignment::Left},
        SelFontSize{14},
        SelBold{true},
        SelText{"               Mme Zoé D'ALMEIDA\r\n\r\n"},
    };
    ASSERT_GT(report.operations.size(), expected.size());
    EXPECT_EQ(Operations(report.operations.begin(), report.operations.begin() + expected.size()), expected);
}

TEST(FirstTrimesterReport, EndsByTheCentredSignatureAndTheCaretAtTheStart) {
    for (const Report& report : {CptRendu1T(sampleExam("1"), kFull, std::nullopt), CptRenduDat(sampleExam("1"))}) {
        const Operations& all = report.operations;
        EXPECT_EQ(all.back(), Operation(SelStart{0}));
        EXPECT_EQ(all[all.size() - 2], Operation(SelText{"Dr MARCHAND le 05/04/2002"}));
        EXPECT_EQ(all[all.size() - 3], Operation(SelAlignment{Alignment::Centre}));
        EXPECT_EQ(std::count(all.begin(), all.end(), Operation(SelAlignment{Alignment::Left})), 1);
    }
}

TEST(FirstTrimesterReport, InItsMinimumFormSaysTheFixedSentenceOfEveryEmbryo) {
    for (const int count : {1, 2, 3}) {
        const QString text = plain(CptRendu1T(sampleExam(QString::number(count)), kMinimum, std::nullopt));
        EXPECT_EQ(text.count("Ont été examinés : la tête et ses structures, l'abdomen et ses organes, le thorax, le "
                             "rachis et les membres. Il n'a pas été mis en évidence d'anomalie compte tenu des limites "
                             "actuelles de l'échographie, de la position foetale, des conditions maternelles et des "
                             "circonstances de l'examen."),
                  count);
        EXPECT_FALSE(text.contains("Sans anomalie décelée."));
        EXPECT_FALSE(text.contains("Estomac vu."));
        EXPECT_FALSE(text.contains("Vessie vue."));
    }
}

TEST(FirstTrimesterReport, DiffersInItsMinimumFormByTheMorphologyAlone) {
    FirstTrimesterExam exam = sampleExam("3");
    const QString minimum = plain(CptRendu1T(exam, kMinimum, kIntroduction));
    for (Embryo& embryo : exam.embryos) {
        embryo.TxtMorpho = kExaminedSentence;
    }
    EXPECT_EQ(plain(CptRendu1T(exam, kFull, kIntroduction)), minimum);
}

TEST(FirstTrimesterReport, WithAnEmptyIntroductionHasItsLineEndsAlone) {
    const QString without = plain(CptRendu1T(sampleExam("1"), kFull, std::nullopt));
    const QString empty = plain(CptRendu1T(sampleExam("1"), kFull, QString()));
    EXPECT_TRUE(without.contains("15/01/2001\r\n\r\n\r\n               Mme"));
    EXPECT_TRUE(empty.contains("15/01/2001\r\n\r\n\r\n\r\n\r\n\r\n               Mme"));
}

TEST(FirstTrimesterReport, KeepsAStoredBlankInThePatientLine) {
    FirstTrimesterExam exam = sampleExam("1");
    exam.patient = {"", " ", "DUPONT"};
    EXPECT_TRUE(plain(CptRendu1T(exam, kFull, std::nullopt)).contains("                  DUPONT\r\n\r\n"));
}

TEST(FirstTrimesterReport, ReadsTheCountByTheLocaleTiesToEven) {
    const auto embryos = [](const QString& count) {
        const QString text = plain(CptRendu1T(sampleExam(count), kFull, std::nullopt));
        return text.contains("TRIPLE") ? 3 : text.contains("JUMEAU") ? 2 : text.contains("BIOMETRIE") ? 1 : 0;
    };
    EXPECT_EQ(embryos("-1"), 1);
    EXPECT_EQ(embryos("0,5"), 1);
    EXPECT_EQ(embryos("1,5"), 2);
    EXPECT_EQ(embryos("2,5"), 2);
    EXPECT_EQ(embryos(" 3 "), 3);
    EXPECT_EQ(embryos("3,5"), 0);
    EXPECT_EQ(embryos("12"), 0);
}

TEST(FirstTrimesterReport, ShowsTheCountAsItStands) {
    EXPECT_TRUE(plain(CptRendu1T(sampleExam("1,5"), kFull, std::nullopt)).contains("Nombre : 1,5\r\n\r\nJUMEAU"));
}

TEST(FirstTrimesterReport, FailsOnACountThatIsNoNumber) {
    EXPECT_EQ(CptRendu1T(sampleExam(""), kFull, std::nullopt).failure, base::ErrorNumber::TypeMismatch);
    EXPECT_EQ(CptRendu1T(sampleExam("deux"), kFull, std::nullopt).failure, base::ErrorNumber::TypeMismatch);
    EXPECT_EQ(CptRendu1T(sampleExam("40000"), kFull, std::nullopt).failure, base::ErrorNumber::Overflow);
}

TEST(FirstTrimesterReport, GoesStraightToTheLiquidAfterAnUnusualCount) {
    EXPECT_TRUE(plain(CptRendu1T(sampleExam("4"), kFull, std::nullopt))
                    .contains("EMBRYON\r\n          LIQUIDE AMNIOTIQUE\r\n          Quantité normale\r\n\r\n"));
}

TEST(DatingReport, TellsOfTheFirstEmbryoAloneAndReadsNoCount) {
    const Report report = CptRenduDat(sampleExam("trois"));
    EXPECT_FALSE(report.failure);
    const QString text = plain(report);
    EXPECT_EQ(text.count("          Nombre : trois\r\n"), 2);
    EXPECT_EQ(text.count("LCC : 55 mm."), 1);
    EXPECT_FALSE(text.contains("54"));
    EXPECT_FALSE(text.contains("PELVIS"));
    EXPECT_FALSE(text.contains("MORPHOLOGIE"));
}

TEST_F(TypedReport, StandsInTheEditorWithItsCaretAtTheStart) {
    const Report report = CptRendu1T(sampleExam("1"), kFull, kIntroduction);
    type(report, box);
    EXPECT_EQ(box.text(), plain(report));
    EXPECT_EQ(box.SelStart(), 0);
    EXPECT_EQ(box.SelBold(), true);
    EXPECT_EQ(box.SelFontSize(), 14);
    EXPECT_EQ(box.SelAlignment(), Alignment::Centre);
}

TEST_F(TypedReport, ComesOnTopOfTheOneThatIsThereInOneParagraphWithItsFirstLine) {
    const Report report = CptRenduDat(sampleExam("1"));
    type(report, box);
    type(report, box);
    EXPECT_EQ(box.text(), plain(report) + plain(report));
    EXPECT_TRUE(box.text().contains("Dr MARCHAND le 05/04/2002Clinique des Tilleuls\r\n"));
    const int joint = static_cast<int>(box.document().toRawText().indexOf("Dr MARCHAND"));
    box.select(joint, joint + 5);
    EXPECT_EQ(box.SelBold(), false);
    EXPECT_EQ(box.SelFontSize(), 12);
    EXPECT_EQ(box.SelAlignment(), Alignment::Centre);
    box.select(joint + 25, joint + 29);
    EXPECT_EQ(box.SelText(), "Clin");
    EXPECT_EQ(box.SelBold(), true);
    EXPECT_EQ(box.SelFontSize(), 14);
}

TEST_F(TypedReport, KeepsTheAttributesOfEachPieceOnTopOfAnother) {
    const Report report = CptRenduDat(sampleExam("1"));
    type(report, box);
    type(report, box);
    const int dates = static_cast<int>(box.document().toRawText().indexOf("BMI"));
    box.select(dates, dates + 3);
    EXPECT_EQ(box.SelBold(), false);
    EXPECT_EQ(box.SelFontSize(), 12);
    EXPECT_EQ(box.SelAlignment(), Alignment::Left);
}

TEST_F(TypedReport, IsCentredFromItsSignatureOn) {
    type(CptRenduDat(sampleExam("1")), box);
    box.SelStart(static_cast<int>(box.text().size()));
    box.SelText("\r\nVu par le secrétariat");
    EXPECT_EQ(box.SelAlignment(), Alignment::Centre);
}

TEST_F(TypedReport, ThatFailsIsComposedTwiceBehindWhatIsThereAndThenThrown) {
    box.SelText("Déjà là. ");
    const Report report = CptRendu1T(sampleExam(""), kFull, std::nullopt);
    try {
        type(report, box);
        FAIL() << "no error";
    } catch (const base::RuntimeError& error) {
        EXPECT_EQ(error.number(), base::ErrorNumber::TypeMismatch);
    }
    EXPECT_EQ(box.text(), "Déjà là. " + plain(report) + plain(report));
    EXPECT_TRUE(box.text().endsWith("EMBRYON\r\n          "));
    EXPECT_EQ(box.SelStart(), box.text().size());
}

}  // namespace
}  // namespace reports
