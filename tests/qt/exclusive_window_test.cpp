#include <gtest/gtest.h>

#include <QApplication>
#include <QPushButton>
#include <QTest>
#include <QVBoxLayout>
#include <QWindow>

#include "forms/controls.h"
#include "forms/desk.h"
#include "qt/binder.h"

namespace qt {
namespace {

class OneButton final : public forms::Form {
public:
    OneButton(forms::Desk& desk, const QString& name, bool exclusive) : Form(desk, name, name), exclusive_(exclusive) {
        Command1.onClick = [this] { ++clicks; };
    }
    forms::Button Command1{*this, "Command1", "Essai"};
    int clicks = 0;

    bool exclusive() const override { return exclusive_; }

private:
    bool exclusive_;
};

/// Two windows of one button each, the second in front.
class TwoWindows : public ::testing::Test {
protected:
    struct Shown {
        OneButton* form;
        std::unique_ptr<FormWindow> window;
        QPushButton* button;
    };

    Shown show(const QString& name, bool exclusive) {
        desk_.add(name, [=, this] { return std::make_unique<OneButton>(desk_, name, exclusive); });
        desk_.show(name);
        auto* form = static_cast<OneButton*>(&desk_.at(name));
        auto window = std::make_unique<FormWindow>(*form);
        auto* button = Binder(*window).button(form->Command1);
        (new QVBoxLayout(window.get()))->addWidget(button);
        window->present();
        QApplication::setActiveWindow(window.get());
        return {form, std::move(window), button};
    }
    // Through the window system, as the mouse of a person comes.
    static void click(const Shown& shown) {
        const QPoint at = shown.button->mapTo(shown.window.get(), shown.button->rect().center());
        QTest::mouseClick(shown.window->windowHandle(), Qt::LeftButton, {}, at);
    }

    forms::Desk desk_;
};

TEST_F(TwoWindows, TakeInputBothIfNeitherIsExclusive) {
    const Shown behind = show("Derriere", false);
    const Shown front = show("Devant", false);
    click(behind);
    click(front);
    EXPECT_EQ(behind.form->clicks, 1);
    EXPECT_EQ(front.form->clicks, 1);
}

TEST_F(TwoWindows, TakeInputInFrontAloneWhileAnExclusiveOneIsThere) {
    const Shown behind = show("Derriere", false);
    const Shown front = show("Devant", true);
    click(behind);
    click(front);
    EXPECT_EQ(behind.form->clicks, 0);
    EXPECT_EQ(front.form->clicks, 1);
    front.window->hide();
    click(behind);
    EXPECT_EQ(behind.form->clicks, 1);
}

TEST_F(TwoWindows, StayInTheirOrderIfTheFrontOneIsExclusive) {
    const Shown behind = show("Derriere", false);
    const Shown front = show("Devant", true);
    EXPECT_EQ(front.window->windowHandle()->transientParent(), behind.window->windowHandle());
}

}  // namespace
}  // namespace qt
