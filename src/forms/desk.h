#pragma once

#include <QStringList>
#include <functional>
#include <map>
#include <memory>
#include <vector>

#include "base/errors.h"
#include "forms/form.h"

namespace forms {

/// What shows the windows of a desk. Without one the desk works all the same, off any screen.
class Stage {
public:
    virtual ~Stage() = default;
    virtual void formShown(Form& form) = 0;
    virtual void formHidden(Form& form) = 0;
    /// The window is about to be destroyed; no control of it may be touched afterwards.
    virtual void formForgotten(Form& form) = 0;
    virtual void programEnded() = 0;
};

/// Which windows exist. It makes each at its first mention, keeps one of each, and forgets it when it is unloaded.
/// Names compare without regard to case.
class Desk {
public:
    using Factory = std::function<std::unique_ptr<Form>()>;

    Desk() = default;
    ~Desk();
    Desk(const Desk&) = delete;
    Desk& operator=(const Desk&) = delete;

    /// Makes a window known. Nothing is created yet.
    void add(const QString& name, Factory factory);
    /// The names of all known windows.
    const QStringList& known() const { return known_; }
    void setStage(Stage* stage) { stage_ = stage; }
    /// Who shows a person what ended a handler.
    void setErrorReport(std::function<void(const base::RuntimeError&)> report) { report_ = std::move(report); }

    /// A mention: the window of this name, made and loaded if need be. While it is being unloaded, that same instance.
    /// Throws ObjectNotSet for an unknown name, and what the window's load throws.
    Form& at(const QString& name);
    template <class F>
    F& at() {
        return static_cast<F&>(at(F::kName.toString()));
    }

    /// The window if it is loaded, null otherwise; never loads it.
    Form* peek(const QString& name) const;
    template <class F>
    F* peek() const {
        return static_cast<F*>(peek(F::kName.toString()));
    }

    /// Loads the window if need be, shows it and brings it to the front.
    void show(const QString& name);
    /// Takes the window off the screen; it stays loaded. Does nothing if it isn't loaded or is being unloaded.
    void hide(const QString& name);
    /// Runs the window's closing steps, takes it off the screen and forgets it: its next mention is a fresh one. Does
    /// nothing if it isn't loaded or is being unloaded. The instance lives until the outermost handler has returned.
    void unload(const QString& name);

    /// All loaded windows, in the order of their loading.
    std::vector<Form*> loaded() const;

    /// The boundary around each handler that a person's action starts. An error that nothing caught ends the outermost
    /// handler, nested ones with it, and is reported once.
    void act(const std::function<void()>& handler);
    /// Whether a handler is running.
    bool acting() const { return depth_ > 0; }

    /// Ends the program at once: no window's closing steps run.
    void end();
    bool ended() const { return ended_; }

private:
    struct Place {
        std::unique_ptr<Form> form;
        bool unloading = false;
    };

    static QString key(const QString& name) { return name.toUpper(); }
    Place* placeOf(const QString& name);
    const Place* placeOf(const QString& name) const;
    void retire(const QString& key);
    void forgetRetired();
    void report(const base::RuntimeError& error);

    std::map<QString, Factory> factories_;
    QStringList known_;
    std::map<QString, Place> places_;
    std::vector<Form*> order_;
    std::vector<std::unique_ptr<Form>> retired_;
    Stage* stage_ = nullptr;
    std::function<void(const base::RuntimeError&)> report_;
    int depth_ = 0;
    bool ended_ = false;
};

}  // namespace forms
