#include "forms/control.h"

#include <algorithm>
#include <utility>

#include "forms/form.h"

namespace forms {

QString kindName(Kind kind) {
    switch (kind) {
        case Kind::Label:
            return QStringLiteral("Label");
        case Kind::TextBox:
            return QStringLiteral("TextBox");
        case Kind::ListBox:
            return QStringLiteral("ListBox");
        case Kind::ComboBox:
            return QStringLiteral("ComboBox");
        case Kind::Button:
            return QStringLiteral("Button");
        case Kind::Option:
            return QStringLiteral("Option");
        case Kind::Check:
            return QStringLiteral("Check");
        case Kind::Frame:
            return QStringLiteral("Frame");
        case Kind::Menu:
            return QStringLiteral("Menu");
        case Kind::ScrollBar:
            return QStringLiteral("ScrollBar");
        case Kind::Image:
            return QStringLiteral("Image");
        case Kind::RichText:
            return QStringLiteral("RichText");
        case Kind::Calendar:
            return QStringLiteral("Calendar");
        case Kind::Marker:
            return QStringLiteral("Marker");
    }
    return {};
}

Control::Control(Form& form, Kind kind, QString name, int index)
    : form_(form), kind_(kind), name_(std::move(name)), index_(index) {
    form.add(*this);
}

QString Control::label() const {
    return index_ < 0 ? name_ : QStringLiteral("%1(%2)").arg(name_).arg(index_);
}

void Control::setVisible(bool visible) {
    if (visible_ == visible) {
        return;
    }
    visible_ = visible;
    tell(Aspect::Visible);
    for (const Control* lower : lower_) {
        lower->tell(Aspect::Visible);
    }
    form_.dropLostFocus();
}

void Control::setEnabled(bool enabled) {
    if (enabled_ == enabled) {
        return;
    }
    enabled_ = enabled;
    tell(Aspect::Enabled);
    form_.dropLostFocus();
}

void Control::layOver(Control& lower) {
    lower.upper_.push_back(this);
    lower_.push_back(&lower);
}

bool Control::covered() const {
    return std::ranges::any_of(upper_, &Control::visible);
}

void Control::setPlace(const Place& place) {
    if (place_ != place) {
        place_ = place;
        tell(Aspect::Place);
    }
}

void Control::moveTo(const Spot& spot) {
    if (spot_ != spot) {
        spot_ = spot;
        tell(Aspect::Place);
    }
}

bool Control::reachable() const {
    return visible_ && !covered() && enabled_ && (!holder_ || holder_->reachable());
}

void Control::setFocus() {
    form_.moveFocus(*this);
}

void Control::click() {
    if (onClick) {
        onClick();
    }
}

void Control::doubleClick() {
    if (onDoubleClick) {
        onDoubleClick();
    }
}

}  // namespace forms
