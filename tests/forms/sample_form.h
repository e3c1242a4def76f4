#pragma once

#include <QStringList>

#include "forms/controls.h"
#include "forms/desk.h"

namespace forms {

/// A window to try the rules on: it writes down what happens to it.
class SampleForm : public Form {
public:
    static constexpr QStringView kName = u"Sample";

    SampleForm(Desk& desk, QString name, QStringList& log)
        : Form(desk, std::move(name), QStringLiteral("Essai")), log_(log) {
        Frame1.holds(Option1, Option2, Text2);
    }

    Label Label1{*this, "Label1", "avant"};
    TextBox Text1{*this, "Text1"};
    Frame Frame1{*this, "Frame1", "Cadre"};
    TextBox Text2{*this, "Text2"};
    Option Option1{*this, "Option1"};
    Option Option2{*this, "Option2"};
    Option Option3{*this, "Option3"};
    ListBox List1{*this, "List1"};
    Calendar Calendar1{*this, "Calendar1"};
    ScrollBar Scroll1{*this, "Scroll1", {.min = 1, .max = 100, .largeStep = 10}, 90};
    Image Image1{*this, "Image1"};
    Marker Marker1{*this, "Marker1"};
    Array<TextBox> Texts{*this, "Texts", 0, 3};
    Array<Frame> Lone{*this, "Lone", 3, 3};

    std::function<void()> onLoad = [] {};
    std::function<void()> onShowing = [] {};
    std::function<void()> onUnloading = [] {};

    ~SampleForm() override { log_ << name() + QStringLiteral(" destroyed"); }

    void load() override {
        log_ << name() + QStringLiteral(" load");
        onLoad();
    }
    void showing() override { onShowing(); }
    void unloading() override {
        log_ << name() + QStringLiteral(" unloading");
        onUnloading();
    }

private:
    QStringList& log_;
};

}  // namespace forms
