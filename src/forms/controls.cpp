#include "forms/controls.h"

#include <algorithm>

#include "base/dates.h"
#include "forms/form.h"

namespace forms {

void TextControl::setText(const QString& text) {
    if (text_ == text) {
        return;
    }
    text_ = text;
    tell(Aspect::Text);
    if (onChange) {
        onChange();
    }
}

void TextControl::setColor(std::optional<Color> color) {
    recolor(color_, color);
}

void TextControl::setBack(std::optional<Color> back) {
    recolor(back_, back);
}

void TextControl::recolor(std::optional<Color>& place, std::optional<Color> value) {
    if (place != value) {
        place = value;
        tell(Aspect::Colors);
    }
}

void TextControl::setPoints(int points) {
    if (points_ != points) {
        points_ = points;
        tell(Aspect::Points);
    }
}

void TextBox::select(int start, int length) {
    const int size = static_cast<int>(text().size());
    const int from = std::clamp(start, 0, size);
    const int count = std::clamp(length, 0, size - from);
    if (from == start_ && count == length_) {
        return;
    }
    start_ = from;
    length_ = count;
    tell(Aspect::Selection);
}

void ListBox::add(const QString& line) {
    insert(count(), line);
}

void ListBox::insert(int row, const QString& line) {
    items_.insert(row, line);
    if (row_ >= row) {
        ++row_;
    }
    tell(Aspect::ItemAdded, row);
}

void ListBox::remove(int row) {
    if (row < 0 || row >= count()) {
        return;
    }
    items_.removeAt(row);
    if (row_ == row) {
        row_ = -1;
    } else if (row_ > row) {
        --row_;
    }
    tell(Aspect::ItemRemoved, row);
}

void ListBox::clear() {
    if (items_.isEmpty()) {
        return;
    }
    items_.clear();
    row_ = -1;
    tell(Aspect::Items);
}

void ListBox::setItems(QStringList items) {
    items_ = std::move(items);
    row_ = -1;
    tell(Aspect::Items);
}

void ListBox::setRow(int row) {
    const int wanted = row >= 0 && row < count() ? row : -1;
    if (row_ == wanted) {
        return;
    }
    row_ = wanted;
    tell(Aspect::Row);
}

void ComboBox::add(const QString& line) {
    items_.append(line);
    tell(Aspect::Items);
}

void ComboBox::clear() {
    if (items_.isEmpty()) {
        return;
    }
    items_.clear();
    tell(Aspect::Items);
}

void ScrollBar::setValue(int value) {
    const int wanted = std::clamp(value, range_.min, range_.max);
    if (value_ == wanted) {
        return;
    }
    value_ = wanted;
    tell(Aspect::Value);
    if (onChange) {
        onChange();
    }
}

void Image::setPicture(const QImage& picture) {
    picture_ = picture;
    tell(Aspect::Picture);
}

void Image::setDrawing(const QString& name) {
    if (drawing_ != name) {
        drawing_ = name;
        tell(Aspect::Picture);
    }
}

void Marker::setColor(Color color) {
    if (color_ != color) {
        color_ = color;
        tell(Aspect::Colors);
    }
}

void Calendar::setDate(QDate date) {
    if (date_ == date) {
        return;
    }
    date_ = date;
    tell(Aspect::Text);
}

QString Calendar::text() const {
    return base::shortDate(date_);
}

void Calendar::choose(QDate date) {
    setDate(date);
    if (onDateChosen) {
        onDateChosen(date);
    }
}

void lockBoxes(const Form& form, const QStringList& open) {
    for (Control* control : form.controls()) {
        const bool locked = !open.contains(control->name(), Qt::CaseInsensitive);
        if (control->kind() == Kind::TextBox) {
            static_cast<TextBox*>(control)->setLocked(locked);
        } else if (control->kind() == Kind::ComboBox) {
            static_cast<ComboBox*>(control)->setLocked(locked);
        }
    }
}

void Switch::setChecked(bool checked) {
    if (checked_ == checked) {
        return;
    }
    checked_ = checked;
    tell(Aspect::Checked);
}

void Option::setChecked(bool checked) {
    if (checked) {
        for (Control* other : form().controls()) {
            if (other != this && other->kind() == Kind::Option && other->holder() == holder()) {
                static_cast<Option*>(other)->Switch::setChecked(false);
            }
        }
    }
    Switch::setChecked(checked);
}

ToolBar::ToolBar(Form& form, const QString& name, const std::vector<Item>& items) {
    for (const Item& item : items) {
        buttons_.push_back(std::make_unique<ToolButton>(form, name, item.key, item.image, item.toolTip, item.push));
        buttons_.back()->onClick = [this, key = item.key] {
            if (onButtonClick) {
                onButtonClick(key);
            }
        };
    }
}

ToolButton& ToolBar::operator()(QStringView key) const {
    return **std::find_if(buttons_.begin(), buttons_.end(), [key](const auto& button) { return button->key() == key; });
}

}  // namespace forms
