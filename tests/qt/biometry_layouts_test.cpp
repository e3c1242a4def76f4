#include <gtest/gtest.h>

#include <QLabel>

#include "biometry/form12.h"
#include "biometry/sample_exam.h"
#include "fakes/practice_files.h"
#include "qt/stage.h"

namespace qt {
namespace {

class SampleInView final : public biometry::ExamInView {
public:
    biometry::Exam exam() const override { return sampleExam(); }
};

/// The biometry window of a sample exam.
class BiometryLayout : public ::testing::Test {
protected:
    BiometryLayout() {
        fakes::makeFiles(world_);
        state_.PathEcho = fakes::pathOf(world_, store::FileKind::Echo);
        world_.desk.add("Form12", [this] { return std::make_unique<biometry::Form12>(world_.around, state_, exam_); });
        world_.desk.act([this] { world_.desk.show("Form12"); });
    }

    biometry::Form12& form() { return world_.desk.at<biometry::Form12>(); }
    FormWindow& window() { return *stage_.windowOf(form()); }

    /// The caption that stands beside a control.
    QString captionOf(const forms::Control& control) {
        for (const QLabel* label : window().findChildren<QLabel*>()) {
            if (label->buddy() && label->buddy() == window().widgetOf(control)) {
                return label->text();
            }
        }
        return QStringLiteral("none");
    }

    fakes::World world_;
    store::State state_;
    SampleInView exam_;
    WindowStage stage_{world_.desk, [] {}};
};

TEST_F(BiometryLayout, CaptionsTheDatesAndTheColumnsOfTheRecall) {
    const biometry::Form12& f = form();
    const std::vector<std::pair<const forms::Control*, const char*>> captions{
        {&f.LblDGUS, "Début de G. le"},
        {&f.LblAgeGesta, "Age gesta"},
        {&f.DateDGf3, "Début de Grossesse"},
        {&f.DateJourF3, "Date de l'écho"},
        {&f.ListDate, "Date"},
        {&f.ListNumecho, "N°"},
        {&f.ListSA, "S.A."},
        {&f.ListBip, "Bip"},
        {&f.ListCa, "Ca"},
        {&f.ListFem, "Fem"},
    };
    for (const auto& [control, caption] : captions) {
        EXPECT_EQ(captionOf(*control), caption) << control->name().toStdString();
    }
}

TEST_F(BiometryLayout, NamesItsThreeCharts) {
    EXPECT_EQ(window().widgetOf(form().ImgBip)->accessibleName(), "Diamètre Bipariétal");
    EXPECT_EQ(window().widgetOf(form().ImgCa)->accessibleName(), "Circonférence Abdominale");
    EXPECT_EQ(window().widgetOf(form().ImgFem)->accessibleName(), "Fémur");
}

}  // namespace
}  // namespace qt
