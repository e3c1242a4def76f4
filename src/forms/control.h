#pragma once

#include <QString>
#include <functional>
#include <optional>
#include <vector>

#include "forms/observers.h"

namespace forms {

class Form;

enum class Kind {
    Label,
    TextBox,
    ListBox,
    ComboBox,
    Button,
    Option,
    Check,
    Frame,
    Menu,
    ScrollBar,
    Image,
    Marker,
    Calendar,
    RichText
};

/// The name of a kind: "Label", "TextBox" and so on.
QString kindName(Kind kind);

/// What of a control has changed, told to its view. `index` is the line for `ItemAdded` and `ItemRemoved`.
enum class Aspect {
    Text,
    Visible,
    Enabled,
    Items,
    ItemAdded,
    ItemRemoved,
    Row,
    Checked,
    Selection,
    Focus,
    Colors,
    Points,
    Place,
    LineWidth,
    Value,
    Picture
};

/// Where a control stands on its window, in twips (1440 an inch) from the inner top left corner.
struct Place {
    int left = 0;
    int top = 0;
    int width = 0;
    int height = 0;
    bool operator==(const Place&) const = default;
};

/// Where the top left corner of a control lies whose place is reckoned, in twips from that of its window.
struct Spot {
    float left = 0;
    float top = 0;
    bool operator==(const Spot&) const = default;
};

/// A character on its way into a text box. A key filter may let it be, put another in its place, or swallow it.
class KeyPress {
public:
    explicit KeyPress(QChar character) : character_(character) {}

    QChar character() const { return character_; }
    bool swallowed() const { return swallowed_; }
    void replace(QChar other) { character_ = other; }
    void swallow() { swallowed_ = true; }

private:
    QChar character_;
    bool swallowed_ = false;
};

/// The keys without a character that steps listen to.
enum class Key { Left, Right };

/// One named thing on a window. Constructing it fires no event. It lives as long as its form and never moves.
///
/// Each event has one slot, for the form's own steps; a view listens by `observe`.
class Control {
public:
    Control(Form& form, Kind kind, QString name, int index);
    virtual ~Control() = default;
    Control(const Control&) = delete;
    Control& operator=(const Control&) = delete;

    Form& form() const { return form_; }
    Kind kind() const { return kind_; }
    const QString& name() const { return name_; }
    /// The place in a control array, -1 for a control of its own.
    int index() const { return index_; }
    /// "Text1", or "Txt1Ter(2)" in an array.
    QString label() const;

    /// The text or caption; what is no text has none.
    virtual QString text() const { return {}; }

    /// Its own state; what holds it may be hidden all the same.
    bool visible() const { return visible_; }
    void setVisible(bool visible);
    void show() { setVisible(true); }
    void hide() { setVisible(false); }

    bool enabled() const { return enabled_; }
    void setEnabled(bool enabled);

    /// The frame that holds it, null on the bare window.
    Control* holder() const { return holder_; }
    void setHolder(Control* frame) { holder_ = frame; }

    /// Makes this panel lie over another one: while both are visible, only this one is seen.
    void layOver(Control& lower);
    /// Whether a visible panel lies over it.
    bool covered() const;

    /// Where a step has put it; none if that is the layout's own matter.
    std::optional<Place> place() const { return place_; }
    void setPlace(const Place& place);
    /// The same for a control that moves over a picture.
    std::optional<Spot> spot() const { return spot_; }
    void moveTo(const Spot& spot);

    /// Whether it and all that holds it is visible, not covered and enabled.
    bool reachable() const;

    /// Asks for the focus; ignored if the control is out of reach or its window is not shown.
    void setFocus();

    std::function<void()> onFocus;
    std::function<void()> onLeave;
    std::function<void()> onClick;
    std::function<void()> onDoubleClick;

    /// Called by the view when a person clicks. A slot that is empty does nothing.
    void click();
    void doubleClick();

    [[nodiscard]] Subscription observe(std::function<void(Aspect, int)> listener) {
        return observers_.add(std::move(listener));
    }

protected:
    friend class Form;
    void tell(Aspect aspect, int index = -1) const { observers_.tell(aspect, index); }

private:
    Form& form_;
    Kind kind_;
    QString name_;
    int index_;
    Control* holder_ = nullptr;
    std::vector<const Control*> upper_;
    std::vector<const Control*> lower_;
    bool visible_ = true;
    bool enabled_ = true;
    std::optional<Place> place_;
    std::optional<Spot> spot_;
    Observers<Aspect, int> observers_;
};

}  // namespace forms
