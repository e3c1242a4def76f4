#include "qt/stage.h"

#include <QShortcut>

#include "qt/layouts.h"

namespace qt {

WindowStage::WindowStage(forms::Desk& desk, std::function<void()> ended) : desk_(desk), ended_(std::move(ended)) {
    desk_.setStage(this);
}

WindowStage::~WindowStage() {
    desk_.setStage(nullptr);
    for (const auto& [form, window] : windows_) {
        window->retire();
        delete window;
    }
}

FormWindow* WindowStage::windowOf(const forms::Form& form) const {
    const auto it = windows_.find(&form);
    return it == windows_.end() ? nullptr : it->second;
}

void WindowStage::formShown(forms::Form& form) {
    FormWindow* window = windowOf(form);
    (window ? *window : make(form)).present();
}

void WindowStage::formHidden(forms::Form& form) {
    if (FormWindow* window = windowOf(form)) {
        window->hide();
    }
}

void WindowStage::formForgotten(forms::Form& form) {
    if (FormWindow* window = windowOf(form)) {
        windows_.erase(&form);
        window->retire();
    }
}

void WindowStage::programEnded() {
    ended_();
}

FormWindow& WindowStage::make(forms::Form& form) {
    auto* window = new FormWindow(form);
    windows_[&form] = window;
    if (const Layout layOut = layoutOf(form.name())) {
        layOut(form, *window);
    }
    connect(new QShortcut(QKeySequence::HelpContents, window), &QShortcut::activated, this,
            [this, name = form.name()] { onHelp(name); });
    return *window;
}

}  // namespace qt
