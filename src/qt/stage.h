#pragma once

#include <QObject>
#include <functional>
#include <map>

#include "forms/desk.h"
#include "qt/form_window.h"

namespace qt {

/// Shows the windows of a desk as real ones.
class WindowStage final : public QObject, public forms::Stage {
public:
    /// `ended` is called when the program has ended.
    explicit WindowStage(forms::Desk& desk, std::function<void()> ended);
    ~WindowStage() override;

    /// Called with a window's name when a person asks for help in it.
    std::function<void(const QString& window)> onHelp = [](const QString&) {};

    /// The real window of a form, null if it was never shown.
    FormWindow* windowOf(const forms::Form& form) const;

    void formShown(forms::Form& form) override;
    void formHidden(forms::Form& form) override;
    void formForgotten(forms::Form& form) override;
    void programEnded() override;

private:
    FormWindow& make(forms::Form& form);

    forms::Desk& desk_;
    std::function<void()> ended_;
    std::map<const forms::Form*, FormWindow*> windows_;
};

}  // namespace qt
