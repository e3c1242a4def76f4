#pragma once

#include <QString>

#include "forms/controls.h"
#include "store/state.h"

namespace dossier {

/// The medical history of the patient whose number a label shows, in a text box of the window that owns it. An error of
/// the store ends showing and saving without a word.
class History {
public:
    History(store::State& state, const forms::Label& number, forms::TextBox& text, forms::Button& saveButton)
        : state_(state), number_(number), text_(text), saveButton_(saveButton) {}

    /// Shows the text, nothing if there is none, and lets it be saved.
    void show();
    /// Stores the text: a first one with a blank in front, a later one as it stands.
    void save();
    /// Takes the text away; it can't be saved until it is shown again.
    void reset();

private:
    void open(const QString& query);
    void read();
    void write();

    store::State& state_;
    const forms::Label& number_;
    forms::TextBox& text_;
    forms::Button& saveButton_;
};

}  // namespace dossier
