#include "forms/desk.h"

#include <gtest/gtest.h>

#include "forms/sample_form.h"

namespace forms {
namespace {

using base::ErrorNumber;
using base::RuntimeError;

class RecordingStage final : public Stage {
public:
    explicit RecordingStage(QStringList& log) : log_(log) {}
    void formShown(Form& form) override { log_ << form.name() + QStringLiteral(" shown"); }
    void formHidden(Form& form) override { log_ << form.name() + QStringLiteral(" hidden"); }
    void formForgotten(Form& form) override { log_ << form.name() + QStringLiteral(" forgotten"); }
    void programEnded() override { log_ << QStringLiteral("ended"); }

private:
    QStringList& log_;
};

class DeskRules : public ::testing::Test {
protected:
    DeskRules() {
        desk_.setStage(&stage_);
        desk_.setErrorReport([this](const RuntimeError& error) {
            log_ << QStringLiteral("report %1").arg(static_cast<int>(error.number()));
        });
        for (const char* name : {"A", "B"}) {
            desk_.add(name, [this, name] {
                auto form = std::make_unique<SampleForm>(desk_, name, log_);
                prepare(*form);
                return form;
            });
        }
    }

    SampleForm& form(const QString& name) { return static_cast<SampleForm&>(desk_.at(name)); }

    QStringList log_;
    RecordingStage stage_{log_};
    std::function<void(SampleForm&)> prepare = [](SampleForm&) {};
    Desk desk_;
};

TEST_F(DeskRules, AWindowIsLoadedAtItsFirstMentionAndKept) {
    Form& first = desk_.at("A");
    EXPECT_EQ(&desk_.at("a"), &first);
    EXPECT_EQ(log_, QStringList({"A load"}));
    EXPECT_FALSE(first.shown());
}

TEST_F(DeskRules, ConstructingAWindowFiresNoEvent) {
    prepare = [this](SampleForm& made) {
        for (Control* control : made.controls()) {
            control->onFocus = [this] { log_ << "focus"; };
        }
        made.Text1.onChange = [this] { log_ << "change"; };
        made.Label1.onChange = [this] { log_ << "change"; };
    };
    desk_.at("A");
    EXPECT_EQ(log_, QStringList({"A load"}));
}

TEST_F(DeskRules, PeekAsksForAWindowWithoutLoadingIt) {
    EXPECT_EQ(desk_.peek("A"), nullptr);
    EXPECT_TRUE(log_.isEmpty());
    Form& made = desk_.at("A");
    EXPECT_EQ(desk_.peek("A"), &made);
}

TEST_F(DeskRules, AnUnknownWindowIsAnError) {
    EXPECT_THROW(desk_.at("Z"), RuntimeError);
    EXPECT_THROW(desk_.show("Z"), RuntimeError);
}

TEST_F(DeskRules, HidingOrUnloadingWhatIsNotLoadedDoesNothing) {
    desk_.hide("A");
    desk_.unload("A");
    EXPECT_TRUE(log_.isEmpty());
}

TEST_F(DeskRules, AnUnloadedWindowIsForgottenAndTheNextMentionIsAFreshOne) {
    form("A").Text1.setText("reste");
    desk_.unload("A");
    EXPECT_EQ(form("A").Text1.text(), "");
    EXPECT_EQ(log_, QStringList({"A load", "A unloading", "A forgotten", "A destroyed", "A load"}));
}

TEST_F(DeskRules, AHiddenWindowKeepsItsState) {
    desk_.show("A");
    form("A").Text1.setText("reste");
    desk_.hide("A");
    EXPECT_FALSE(form("A").shown());
    EXPECT_EQ(form("A").Text1.text(), "reste");
    EXPECT_EQ(log_, QStringList({"A load", "A shown", "A hidden"}));
}

TEST_F(DeskRules, AWindowIsToldEachTimeItComesUpAndNotWhenItIsLoadedAlone) {
    prepare = [this](SampleForm& made) { made.onShowing = [this] { log_ << "A showing"; }; };
    form("A");
    EXPECT_EQ(log_, QStringList({"A load"}));
    desk_.show("A");
    desk_.show("A");
    EXPECT_EQ(log_, QStringList({"A load", "A showing", "A shown", "A showing", "A shown"}));
}

TEST_F(DeskRules, AMentionDuringItsUnloadingReachesTheSameInstance) {
    SampleForm& closing = form("A");
    closing.Text1.setText("encore");
    QString seen;
    closing.onUnloading = [&] {
        EXPECT_EQ(&desk_.at("A"), &closing);
        seen = form("A").Text1.text();
        desk_.unload("A");
        desk_.hide("A");
        desk_.show("A");
    };
    desk_.unload("A");
    EXPECT_EQ(seen, "encore");
    EXPECT_EQ(log_.count("A unloading"), 1);
    EXPECT_FALSE(log_.contains("A shown"));
}

TEST_F(DeskRules, AWindowThatUnloadsItselfLivesUntilTheOutermostHandlerHasReturned) {
    SampleForm& closing = form("A");
    desk_.act([&] {
        desk_.act([&] { desk_.unload("A"); });
        EXPECT_FALSE(log_.contains("A destroyed"));
        closing.Text1.setText("still there");
        EXPECT_EQ(closing.Text1.text(), "still there");
    });
    EXPECT_TRUE(log_.contains("A destroyed"));
}

TEST_F(DeskRules, AWindowUnloadedAndMentionedInOneHandlerIsFresh) {
    SampleForm& old = form("A");
    desk_.act([&] {
        desk_.unload("A");
        desk_.show("A");
        EXPECT_NE(desk_.peek("A"), &old);
    });
    EXPECT_TRUE(desk_.peek("A")->shown());
}

TEST_F(DeskRules, AFailingLoadLeavesTheWindowUnloaded) {
    prepare = [](SampleForm& made) { made.onLoad = [] { throw RuntimeError(ErrorNumber::DatabaseNotFound); }; };
    EXPECT_THROW(desk_.show("A"), RuntimeError);
    EXPECT_EQ(desk_.peek("A"), nullptr);
    EXPECT_FALSE(log_.contains("A shown"));
    EXPECT_FALSE(log_.contains("A unloading"));
    prepare = [](SampleForm&) {};
    desk_.show("A");
    EXPECT_TRUE(desk_.peek("A")->shown());
}

TEST_F(DeskRules, AnErrorEndsTheOutermostHandlerAndIsReportedOnce) {
    bool inner = false;
    bool outer = false;
    desk_.act([&] {
        desk_.act([&] {
            throw RuntimeError(ErrorNumber::NoCurrentRecord);
            inner = true;
        });
        outer = true;
    });
    EXPECT_FALSE(inner);
    EXPECT_FALSE(outer);
    EXPECT_EQ(log_, QStringList({"report 3021"}));
    EXPECT_FALSE(desk_.acting());
}

TEST_F(DeskRules, AnErrorOfAClosingStepStillClosesTheWindow) {
    form("A").onUnloading = [] { throw RuntimeError(ErrorNumber::DiskFull); };
    desk_.act([&] { desk_.unload("A"); });
    EXPECT_EQ(desk_.peek("A"), nullptr);
    EXPECT_TRUE(log_.contains("report 61"));
}

TEST_F(DeskRules, AnErrorOfAnotherKindIsReportedToo) {
    desk_.act([] { throw std::runtime_error("x"); });
    EXPECT_EQ(log_, QStringList({"report 5"}));
}

TEST_F(DeskRules, EndingRunsNoClosingSteps) {
    desk_.show("A");
    desk_.show("B");
    desk_.act([&] { desk_.end(); });
    EXPECT_TRUE(desk_.ended());
    EXPECT_FALSE(log_.contains("A unloading"));
    EXPECT_FALSE(log_.contains("B unloading"));
    EXPECT_TRUE(log_.contains("ended"));
    EXPECT_TRUE(desk_.loaded().empty());
    desk_.show("A");
    EXPECT_EQ(desk_.peek("A"), nullptr);
}

TEST_F(DeskRules, TheFocusMovesByLeavingThenEntering) {
    desk_.show("A");
    SampleForm& a = form("A");
    a.Text1.onFocus = [&] { log_ << "in 1"; };
    a.Text1.onLeave = [&] { log_ << "out 1"; };
    a.Text2.onFocus = [&] { log_ << "in 2"; };
    log_.clear();
    a.Text1.setFocus();
    a.Text2.setFocus();
    EXPECT_EQ(log_, QStringList({"in 1", "out 1", "in 2"}));
    EXPECT_EQ(a.focused(), &a.Text2);
}

TEST_F(DeskRules, AskingForTheFocusAgainFiresNothing) {
    desk_.show("A");
    SampleForm& a = form("A");
    int times = 0;
    a.Text1.onFocus = [&] { ++times; };
    a.Text1.setFocus();
    a.Text1.setFocus();
    EXPECT_EQ(times, 1);
}

TEST_F(DeskRules, AControlOutOfReachDoesNotTakeTheFocus) {
    desk_.show("A");
    SampleForm& a = form("A");
    a.Text1.setFocus();
    a.Frame1.hide();
    a.Text2.setFocus();
    EXPECT_EQ(a.focused(), &a.Text1);
    a.Frame1.show();
    a.Text2.setEnabled(false);
    a.Text2.setFocus();
    EXPECT_EQ(a.focused(), &a.Text1);
}

TEST_F(DeskRules, AControlThatIsHiddenLosesTheFocus) {
    desk_.show("A");
    SampleForm& a = form("A");
    a.Text2.setFocus();
    a.Frame1.hide();
    EXPECT_EQ(a.focused(), nullptr);
}

TEST_F(DeskRules, AWindowThatIsNotShownTakesNoFocus) {
    form("A").Text1.setFocus();
    EXPECT_EQ(form("A").focused(), nullptr);
}

TEST_F(DeskRules, ClosingByTheFrameRunsTheClosingSteps) {
    desk_.show("A");
    form("A").close();
    EXPECT_EQ(log_, QStringList({"A load", "A shown", "A unloading", "A hidden", "A forgotten", "A destroyed"}));
}

}  // namespace
}  // namespace forms
