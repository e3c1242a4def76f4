#pragma once

#include <functional>
#include <span>

#include "forms/controls.h"
#include "ports/clock.h"
#include "responses/exam_field.h"
#include "store/state.h"

namespace responses {

/// The controls of an exam window from which its fields are filled.
struct PanelControls {
    forms::ListBox& List1;
    forms::ListBox& List2;
    forms::Calendar& Calendar1;
    forms::TextBox& Text1;
    forms::Button& CmdEfface;
};

/// Where the walk through the fields starts again: from `last` or a later field it goes to `first`.
struct Wrap {
    int last;
    int first = 1;
};

/// What stands beside the fields of an exam window: the phrases, the numbers, the calendar and the free entry, and the
/// field that they fill, the current one. It hangs its steps on the `onFocus` of each field of the array and on the
/// panel's controls; a window that does something else at one of them hangs its own handler there afterwards and calls
/// the step from it. It lives as long as the window.
class OfferPanel {
public:
    /// `rows` outlive the panel. The list of numbers and the calendar are hidden at first.
    OfferPanel(store::State& state, const ports::Clock& clock, std::span<const ExamField> rows,
               forms::Array<forms::TextBox>& fields, const PanelControls& controls, Wrap wrap);
    OfferPanel(const OfferPanel&) = delete;
    OfferPanel& operator=(const OfferPanel&) = delete;

    /// The field that the lists, the calendar, the free entry and `CmdEfface` act on; 0 before any had the focus.
    int current() const { return current_; }

    void setWrap(Wrap wrap) { wrap_ = wrap; }
    /// When a right click on a list moves on to the next field; always, if nothing is said.
    void setRightClickRule(std::function<bool()> applies) { rightClickApplies_ = std::move(applies); }
    /// One more box of free entry.
    void addFreeEntry(forms::TextBox& box);

    /// A field got the focus: it becomes the current one, the calendar goes, and its row's offer shows.
    void enter(int index);
    /// Makes a field the current one, puts its caret at the end of its text and asks for the focus. A field that can't
    /// take the focus is the current one all the same.
    void goTo(int index);
    /// Goes to the field after the current one.
    void goOn();

    /// Fills the list of phrases from the query in `SqlEcho`, on `DbEcho` into `Rs`.
    void BOUCLE();
    /// The same from a query of one's own: puts it in `SqlEcho` first.
    void offerPhrases(const QString& query);

    /// Appends the text of a box of free entry to the current field and empties the box; nothing if it is empty. It
    /// runs at Enter and as the box loses the focus. A window calls it before it saves: a button that is pressed by its
    /// Alt key takes no focus.
    void takeFreeEntry(forms::TextBox& box);
    void takeFreeEntries();

private:
    void show(const Offer& offer);
    void offerNumbers(const Offer& offer);
    void offerCalendar();

    void takePhrase();
    void takeNumber();
    void takeDate(QDate date);
    void rightClick();
    void erase();

    forms::TextBox& box() const { return fields_(current_); }
    void write(const QString& text);

    store::State& state_;
    const ports::Clock& clock_;
    std::span<const ExamField> rows_;
    forms::Array<forms::TextBox>& fields_;
    PanelControls controls_;
    Wrap wrap_;
    std::function<bool()> rightClickApplies_ = [] { return true; };
    std::vector<forms::TextBox*> freeEntries_;
    int current_ = 0;
};

}  // namespace responses
