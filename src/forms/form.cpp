#include "forms/form.h"

#include <utility>

#include "forms/desk.h"

namespace forms {

Form::Form(Desk& desk, QString name, QString title) : desk_(desk), name_(std::move(name)), title_(std::move(title)) {}

void Form::setPointer(Pointer pointer) {
    pointer_ = pointer;
    pointerObservers_.tell();
}

void Form::setTitle(const QString& title) {
    if (title_ != title) {
        title_ = title;
        titleObservers_.tell();
    }
}

Control* Form::find(QStringView name, int index) const {
    Control* only = nullptr;
    int named = 0;
    for (Control* control : controls_) {
        // Windows are filled through here: the cheap looks come first.
        const bool other = index >= 0 && control->index() != index;
        if (other || control->name().size() != name.size() || name.compare(control->name(), Qt::CaseInsensitive) != 0) {
            continue;
        }
        if (control->index() == index) {
            return control;
        }
        only = control;
        ++named;
    }
    return named == 1 ? only : nullptr;
}

void Form::moveFocus(Control& control) {
    if (!shown_ || !control.reachable()) {
        return;
    }
    Control* before = std::exchange(focused_, &control);
    control.tell(Aspect::Focus);
    if (before == &control) {
        return;
    }
    if (before && before->onLeave) {
        before->onLeave();
    }
    if (focused_ == &control && control.onFocus) {
        control.onFocus();
    }
}

void Form::close() {
    unload();
}

void Form::show() {
    desk_.show(name_);
}

void Form::hide() {
    desk_.hide(name_);
}

void Form::unload() {
    desk_.unload(name_);
}

void Form::dropLostFocus() {
    if (focused_ && !focused_->reachable()) {
        focused_ = nullptr;
    }
}

}  // namespace forms
