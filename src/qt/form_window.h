#pragma once

#include <QWidget>
#include <functional>
#include <map>
#include <vector>

#include "forms/form.h"

class QAction;

namespace forms {
class TextControl;
}

namespace qt {

/// The real window of a form: which widget shows which control, and the way of a person's actions to the form.
class FormWindow final : public QWidget {
public:
    explicit FormWindow(forms::Form& form);

    forms::Form& form() const { return form_; }

    /// Makes a widget the view of a control: it takes the control's name, and its state from now on.
    void bind(forms::Control& control, QWidget* widget, std::function<void(forms::Aspect, int)> sync);
    /// Tells what else of a bound control changes.
    void alsoBind(forms::Control& control, std::function<void(forms::Aspect, int)> sync);
    /// Makes an entry of the menu bar the view of a control.
    void bind(forms::Control& control, QAction* action, std::function<void()> sync);
    /// The menu entry that shows a control, null if none does.
    QAction* actionOf(const forms::Control& control) const;
    /// The widget that shows a control, null if none does.
    QWidget* widgetOf(const forms::Control& control) const;

    /// Runs a handler that a person's action starts. One that comes while another is running waits for it; one that
    /// comes after the window was forgotten is dropped.
    void act(std::function<void()> handler);

    bool alive() const { return alive_; }
    /// What is to be let go of when the form goes.
    void atRetirement(std::function<void()> release) { releases_.push_back(std::move(release)); }
    /// The form is about to be destroyed: the window lets go of it, leaves the screen and is deleted later.
    void retire();

    /// Shows the window in front; the first time centred on its screen. The window of an exclusive form keeps those
    /// behind it from taking input.
    void present();

protected:
    void closeEvent(QCloseEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void syncState(forms::Control& control, QWidget* widget);
    void syncLook(const forms::TextControl& control, QWidget* widget);
    void showFocus();
    void standInFrontOf(const QWidget* behind);

    forms::Form& form_;
    bool alive_ = true;
    bool placed_ = false;
    std::map<const forms::Control*, QWidget*> widgets_;
    std::map<const forms::Control*, QAction*> actions_;
    std::map<const QObject*, forms::Control*> controls_;
    std::vector<forms::Subscription> subscriptions_;
    std::vector<std::function<void()>> releases_;
};

}  // namespace qt
