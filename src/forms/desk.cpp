#include "forms/desk.h"

#include <algorithm>
#include <exception>
#include <utility>

namespace forms {

using base::ErrorNumber;
using base::RuntimeError;

Desk::~Desk() {
    stage_ = nullptr;
}

void Desk::add(const QString& name, Factory factory) {
    factories_[key(name)] = std::move(factory);
    known_ << name;
}

Form& Desk::at(const QString& name) {
    const QString k = key(name);
    if (const Place* place = placeOf(k)) {
        return *place->form;
    }
    const auto factory = factories_.find(k);
    if (factory == factories_.end()) {
        throw RuntimeError(ErrorNumber::ObjectNotSet, QStringLiteral("La fenêtre %1 n'existe pas.").arg(name));
    }
    Form& form = *(places_[k].form = factory->second());
    order_.push_back(&form);
    try {
        form.load();
    } catch (...) {
        retire(k);
        throw;
    }
    return form;
}

Form* Desk::peek(const QString& name) const {
    const Place* place = placeOf(key(name));
    return place ? place->form.get() : nullptr;
}

void Desk::show(const QString& name) {
    if (ended_) {
        return;
    }
    Form& form = at(name);
    const Place* place = placeOf(key(name));
    // A load may have unloaded its own window, and a closing window does not come back.
    if (!place || place->unloading || place->form.get() != &form) {
        return;
    }
    form.showing();
    form.shown_ = true;
    if (stage_) {
        stage_->formShown(form);
    }
}

void Desk::hide(const QString& name) {
    Place* place = placeOf(key(name));
    if (!place || place->unloading || !place->form->shown_) {
        return;
    }
    place->form->shown_ = false;
    if (stage_) {
        stage_->formHidden(*place->form);
    }
}

void Desk::unload(const QString& name) {
    const QString k = key(name);
    Place* place = placeOf(k);
    if (!place || place->unloading) {
        return;
    }
    place->unloading = true;
    std::exception_ptr failure;
    try {
        place->form->unloading();
    } catch (...) {
        // The window goes all the same: one that can't be closed is worse than the failure, which is told.
        failure = std::current_exception();
    }
    retire(k);
    if (failure) {
        std::rethrow_exception(failure);
    }
}

std::vector<Form*> Desk::loaded() const {
    return order_;
}

void Desk::act(const std::function<void()>& handler) {
    if (depth_ > 0) {
        handler();
        return;
    }
    ++depth_;
    try {
        handler();
    } catch (const RuntimeError& error) {
        report(error);
    } catch (const std::exception& error) {
        report(RuntimeError(ErrorNumber::InvalidCall, QString::fromLocal8Bit(error.what())));
    }
    --depth_;
    forgetRetired();
}

void Desk::end() {
    ended_ = true;
    while (!order_.empty()) {
        retire(key(order_.back()->name()));
    }
    if (stage_) {
        stage_->programEnded();
    }
    if (depth_ == 0) {
        forgetRetired();
    }
}

Desk::Place* Desk::placeOf(const QString& k) {
    return const_cast<Place*>(std::as_const(*this).placeOf(k));
}

const Desk::Place* Desk::placeOf(const QString& k) const {
    const auto it = places_.find(k);
    return it == places_.end() ? nullptr : &it->second;
}

void Desk::retire(const QString& k) {
    const auto it = places_.find(k);
    if (it == places_.end()) {
        return;
    }
    std::unique_ptr<Form> form = std::move(it->second.form);
    places_.erase(it);
    std::erase(order_, form.get());
    const bool wasShown = std::exchange(form->shown_, false);
    if (wasShown && stage_) {
        stage_->formHidden(*form);
    }
    retired_.push_back(std::move(form));
    if (depth_ == 0) {
        forgetRetired();
    }
}

void Desk::forgetRetired() {
    while (!retired_.empty()) {
        const std::unique_ptr<Form> form = std::move(retired_.back());
        retired_.pop_back();
        if (stage_) {
            stage_->formForgotten(*form);
        }
    }
}

void Desk::report(const RuntimeError& error) {
    if (report_) {
        report_(error);
    }
}

}  // namespace forms
