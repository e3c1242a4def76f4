#pragma once

#include <QString>
#include <vector>

#include "forms/control.h"
#include "forms/observers.h"

namespace forms {

class Desk;

enum class Pointer { Normal, Busy };

/// A window without a toolkit: named controls and the steps of their handlers. The desk makes it at its first mention
/// and keeps one of each.
class Form {
public:
    Form(Desk& desk, QString name, QString title);
    virtual ~Form() = default;
    Form(const Form&) = delete;
    Form& operator=(const Form&) = delete;

    Desk& desk() const { return desk_; }
    const QString& name() const { return name_; }
    const QString& title() const { return title_; }
    void setTitle(const QString& title);
    bool shown() const { return shown_; }

    /// While such a window is on screen, those behind it take no input.
    virtual bool exclusive() const { return false; }

    Pointer pointer() const { return pointer_; }
    void setPointer(Pointer pointer);

    /// All controls, in the order of their declaration.
    const std::vector<Control*>& controls() const { return controls_; }
    /// The control of this name without regard to case; index -1 also finds the one element of an array of one. Null if
    /// there is none.
    Control* find(QStringView name, int index = -1) const;

    /// The control that has the focus when the window is the active one; null if none ever had it.
    Control* focused() const { return focused_; }
    /// Moves the focus, by a person or a step: the leaving control's handler runs, then the new one's. A control that
    /// is out of reach, or on a window that is not shown, leaves the focus where it is.
    void moveFocus(Control& control);

    /// Called by the view when a person closes the window by its frame: unloads it.
    virtual void close();

    [[nodiscard]] Subscription observePointer(std::function<void()> listener) {
        return pointerObservers_.add(std::move(listener));
    }
    [[nodiscard]] Subscription observeTitle(std::function<void()> listener) {
        return titleObservers_.add(std::move(listener));
    }

protected:
    /// Runs once, at the first mention of the window, before anything shows. A failure leaves the window unloaded.
    virtual void load() {}
    /// Runs each time the window is asked to come up, before it does: a loaded one need never be seen.
    virtual void showing() {}
    /// Runs as the window is unloaded, however that comes about, while its controls can still be read.
    virtual void unloading() {}

    /// Shorthands for handlers.
    void show();
    void hide();
    void unload();

private:
    friend class Control;
    friend class Desk;
    void add(Control& control) { controls_.push_back(&control); }
    void dropLostFocus();

    Desk& desk_;
    QString name_;
    QString title_;
    bool shown_ = false;
    Pointer pointer_ = Pointer::Normal;
    std::vector<Control*> controls_;
    Control* focused_ = nullptr;
    Observers<> pointerObservers_;
    Observers<> titleObservers_;
};

/// Shows a busy pointer on a window while it lives, also when a step fails.
class BusyPointer {
public:
    explicit BusyPointer(Form& form) : form_(form) { form.setPointer(Pointer::Busy); }
    ~BusyPointer() { form_.setPointer(Pointer::Normal); }
    BusyPointer(const BusyPointer&) = delete;
    BusyPointer& operator=(const BusyPointer&) = delete;

private:
    Form& form_;
};

}  // namespace forms
