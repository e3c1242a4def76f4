#pragma once

#include <QDate>
#include <QImage>
#include <QStringList>
#include <cstdint>
#include <memory>
#include <optional>
#include <type_traits>
#include <vector>

#include "forms/control.h"

namespace forms {

/// A colour as 0xRRGGBB.
using Color = std::uint32_t;

/// The colour that a platform counting blue, green, red from the top writes as `bgr`: 0xFFFFC0 is the blue-green
/// #c0ffff.
constexpr Color fromBlueGreenRed(std::uint32_t bgr) {
    return ((bgr & 0x0000FF) << 16) | (bgr & 0x00FF00) | ((bgr & 0xFF0000) >> 16);
}

/// A control with a text that steps write. Writing a text that differs fires `onChange` at once, whoever writes;
/// writing the same text is silent.
class TextControl : public Control {
public:
    QString text() const override { return text_; }
    void setText(const QString& text);

    /// The colour of its text and behind it; none is the palette's own.
    std::optional<Color> color() const { return color_; }
    std::optional<Color> back() const { return back_; }
    void setColor(std::optional<Color> color);
    void setBack(std::optional<Color> back);

    /// The size of its text in points; none is the window's own.
    std::optional<int> points() const { return points_; }
    void setPoints(int points);

    std::function<void()> onChange;

protected:
    TextControl(Form& form, Kind kind, QString name, int index, QString text)
        : Control(form, kind, std::move(name), index), text_(std::move(text)) {}

private:
    void recolor(std::optional<Color>& place, std::optional<Color> value);

    QString text_;
    std::optional<Color> color_;
    std::optional<Color> back_;
    std::optional<int> points_;
};

class Label final : public TextControl {
public:
    Label(Form& form, QString name, QString caption = {}, int index = -1)
        : TextControl(form, Kind::Label, std::move(name), index, std::move(caption)) {}
};

class Button final : public TextControl {
public:
    Button(Form& form, QString name, QString caption = {}, int index = -1)
        : TextControl(form, Kind::Button, std::move(name), index, std::move(caption)) {}
};

/// A frame with a caption, or a bare panel; it holds other controls.
class Frame final : public TextControl {
public:
    Frame(Form& form, QString name, QString caption = {}, int index = -1)
        : TextControl(form, Kind::Frame, std::move(name), index, std::move(caption)) {}

    template <class... Controls>
    void holds(Controls&... controls) {
        (controls.setHolder(this), ...);
    }
};

/// A text box, of one or several lines. Line ends are "\r\n".
class TextBox final : public TextControl {
public:
    TextBox(Form& form, QString name, QString text = {}, int index = -1)
        : TextControl(form, Kind::TextBox, std::move(name), index, std::move(text)) {}

    /// Sees each typed character before the box does. A paste or a write by a step doesn't pass here.
    std::function<void(KeyPress&)> onKey;
    std::function<void(Key)> onKeyDown;
    /// Enter, in a box of one line.
    std::function<void()> onEnter;

    /// A locked box shows its text, and a person can copy from it but not write.
    bool locked() const { return locked_; }
    void setLocked(bool locked) { locked_ = locked; }

    /// The selected part, in characters; a length of 0 is the caret.
    int selectionStart() const { return start_; }
    int selectionLength() const { return length_; }
    QString selectedText() const { return text().mid(start_, length_); }
    void select(int start, int length);

private:
    bool locked_ = false;
    int start_ = 0;
    int length_ = 0;
};

/// A list of lines, of which one at most is chosen.
class ListBox final : public Control {
public:
    ListBox(Form& form, QString name, int index = -1) : Control(form, Kind::ListBox, std::move(name), index) {}

    const QStringList& items() const { return items_; }
    int count() const { return static_cast<int>(items_.size()); }
    void add(const QString& line);
    void insert(int row, const QString& line);
    void remove(int row);
    void clear();
    /// Puts other lines in the place of all, as one change; none is chosen then.
    void setItems(QStringList items);

    /// The right mouse button, or the key that stands for it.
    std::function<void()> onRightClick;
    std::function<void()> onEscape;

    /// The chosen line, -1 if there is none.
    int row() const { return row_; }
    void setRow(int row);
    /// The text of the chosen line, empty if there is none.
    QString text() const override { return row_ < 0 ? QString() : items_.at(row_); }

private:
    QStringList items_;
    int row_ = -1;
};

/// A text box with a list of offers. Choosing an offer writes it into the text.
class ComboBox final : public TextControl {
public:
    ComboBox(Form& form, QString name, QStringList items = {}, int index = -1)
        : TextControl(form, Kind::ComboBox, std::move(name), index, {}), items_(std::move(items)) {}

    const QStringList& items() const { return items_; }
    void add(const QString& line);
    void clear();

    std::function<void(KeyPress&)> onKey;

    /// A locked box shows its text, and a person can't write in it.
    bool locked() const { return locked_; }
    void setLocked(bool locked) { locked_ = locked; }

private:
    QStringList items_;
    bool locked_ = false;
};

/// Keeps a person from writing in the text boxes and combo boxes of a form, but for those whose names are in `open`.
void lockBoxes(const Form& form, const QStringList& open = {});

/// What is on or off: an option button, a check box, a menu entry with a mark.
class Switch : public TextControl {
public:
    bool checked() const { return checked_; }
    void setChecked(bool checked);

protected:
    Switch(Form& form, Kind kind, QString name, QString caption, int index, bool checked)
        : TextControl(form, kind, std::move(name), index, std::move(caption)), checked_(checked) {}

private:
    bool checked_;
};

/// One of a group: those that the same frame holds. Switching one on switches the others off.
class Option final : public Switch {
public:
    Option(Form& form, QString name, QString caption = {}, bool checked = false, int index = -1)
        : Switch(form, Kind::Option, std::move(name), std::move(caption), index, checked) {}

    void setChecked(bool checked);
};

class Check final : public Switch {
public:
    Check(Form& form, QString name, QString caption = {}, bool checked = false, int index = -1)
        : Switch(form, Kind::Check, std::move(name), std::move(caption), index, checked) {}
};

/// An entry of the menu bar; it may hold others. Some carry a mark that is on or off.
class Menu final : public Switch {
public:
    Menu(Form& form, QString name, QString caption, std::optional<bool> mark = {})
        : Switch(form, Kind::Menu, std::move(name), std::move(caption), -1, mark.value_or(false)),
          marked_(mark.has_value()) {}

    bool hasMark() const { return marked_; }

    template <class... Entries>
    void holds(Entries&... entries) {
        (entries.setHolder(this), ...);
    }

private:
    bool marked_;
};

/// A button of a toolbar, told apart from the others by its key: "tbToolBar(Gras)". Its text is its tool tip.
class ToolButton final : public Switch {
public:
    /// Whether it stays pressed as long as what it stands for is on.
    enum class Push { Acts, Toggles };

    ToolButton(Form& form, const QString& bar, QString key, QString image, QString toolTip, Push push)
        : Switch(form, Kind::Button, QStringLiteral("%1(%2)").arg(bar, key), std::move(toolTip), -1, false),
          key_(std::move(key)),
          image_(std::move(image)),
          push_(push) {}

    const QString& key() const { return key_; }
    /// The name of its picture.
    const QString& image() const { return image_; }
    bool toggles() const { return push_ == Push::Toggles; }

private:
    QString key_;
    QString image_;
    Push push_;
};

/// The buttons of a toolbar in their order. A click on any of them is told with its key.
class ToolBar {
public:
    struct Item {
        QString key;
        QString image;
        QString toolTip;
        ToolButton::Push push = ToolButton::Push::Acts;
    };

    ToolBar(Form& form, const QString& name, const std::vector<Item>& items);

    std::function<void(const QString& key)> onButtonClick;

    const std::vector<std::unique_ptr<ToolButton>>& buttons() const { return buttons_; }
    /// The button of this key, which must be there.
    ToolButton& operator()(QStringView key) const;

private:
    std::vector<std::unique_ptr<ToolButton>> buttons_;
};

/// A bar that stands on a whole number.
class ScrollBar final : public Control {
public:
    struct Range {
        int min = 0;
        int max = 100;
        /// What a page key or a click beside the slider adds.
        int largeStep = 1;
    };

    ScrollBar(Form& form, QString name, Range range, int value, int index = -1)
        : Control(form, Kind::ScrollBar, std::move(name), index), range_(range), value_(value) {}

    const Range& range() const { return range_; }
    int value() const { return value_; }
    /// Puts it on a number, or on the end of its range that is nearest. A number that differs fires `onChange` at once.
    void setValue(int value);
    /// The number in digits.
    QString text() const override { return QString::number(value_); }

    std::function<void()> onChange;

private:
    Range range_;
    int value_;
};

/// A place for a picture, empty at first.
class Image final : public Control {
public:
    explicit Image(Form& form, QString name, int index = -1) : Control(form, Kind::Image, std::move(name), index) {}

    const QImage& picture() const { return picture_; }
    bool empty() const { return picture_.isNull(); }
    void setPicture(const QImage& picture);
    void clear() { setPicture({}); }

    /// A drawing of this program in the place of a picture, by its name, which is its text too; empty for none.
    const QString& drawing() const { return drawing_; }
    void setDrawing(const QString& name);
    QString text() const override { return drawing_; }

private:
    QImage picture_;
    QString drawing_;
};

/// A small square mark that steps move over a picture.
class Marker final : public Control {
public:
    explicit Marker(Form& form, QString name, int index = -1) : Control(form, Kind::Marker, std::move(name), index) {}

    /// Its width and height, in twips.
    int side() const { return side_; }
    void setSide(int twips) { side_ = twips; }

    std::optional<Color> color() const { return color_; }
    void setColor(Color color);

private:
    int side_ = 0;
    std::optional<Color> color_;
};

/// A month of days, of which a person chooses one.
class Calendar final : public Control {
public:
    explicit Calendar(Form& form, QString name, int index = -1)
        : Control(form, Kind::Calendar, std::move(name), index) {}

    /// The day on which it stands, whose month it shows.
    QDate date() const { return date_; }
    /// Puts it on a day; that is no choice.
    void setDate(QDate date);
    /// The day as DD/MM/YYYY.
    QString text() const override;

    std::function<void(QDate)> onDateChosen;
    /// Called by the view when a person chooses a day, be it the one on which it stands already.
    void choose(QDate date);

private:
    QDate date_;
};

/// Controls of one name, told apart by a number from `first` to `last`.
template <class T>
class Array {
public:
    Array(Form& form, const QString& name, int first, int last) : first_(first) {
        for (int i = first; i <= last; ++i) {
            if constexpr (std::is_same_v<ComboBox, T>) {
                controls_.push_back(std::make_unique<T>(form, name, QStringList(), i));
            } else if constexpr (std::is_base_of_v<TextControl, T>) {
                controls_.push_back(std::make_unique<T>(form, name, QString(), i));
            } else {
                controls_.push_back(std::make_unique<T>(form, name, i));
            }
        }
    }

    T& operator()(int index) { return *controls_.at(static_cast<std::size_t>(index - first_)); }
    const T& operator()(int index) const { return *controls_.at(static_cast<std::size_t>(index - first_)); }
    int first() const { return first_; }
    int last() const { return first_ + static_cast<int>(controls_.size()) - 1; }

private:
    int first_;
    std::vector<std::unique_ptr<T>> controls_;
};

}  // namespace forms
