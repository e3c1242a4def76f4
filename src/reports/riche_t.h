#pragma once

#include "forms/controls.h"
#include "forms/form.h"
#include "forms/rich_text.h"
#include "ports/surroundings.h"

namespace reports {

/// The editor in which every report appears, to be corrected and printed. Nothing is kept: closing it loses the text.
class RicheT final : public forms::Form {
public:
    static constexpr QStringView kName = u"RicheT";

    explicit RicheT(ports::Surroundings& around);

    forms::Menu imprimer{*this, "imprimer", "&Imprimer"};
    forms::ToolBar tbToolBar;
    forms::RichText RichTextBox1{*this, "RichTextBox1"};

    /// How large the window wants to be, in twips. The screen may not have as much.
    struct Size {
        int width = 11386;
        int height = 10800;
    };
    const Size& size() const { return size_; }

    /// Puts the text in its place; called whenever the inside of the window has another size, in twips.
    void Form_Resize(int width, int height);
    /// Does what the button of this key stands for; an unknown key does nothing.
    void tbToolBar_ButtonClick(const QString& key);

private:
    void load() override;
    void fitToPrinter();
    void RichTextBox1_SelChange();

    void imprimer_Click();
    void print();
    void cut();
    void copy();
    void paste();
    void chooseFont();
    void bold();
    void italic();
    void underline();
    void alignLeft();
    void centre();
    void alignRight();
    void leave();

    ports::FontChoice fontOfSelection() const;

    ports::Surroundings& around_;
    Size size_;
};

/// Loads the editor if need be and shows it under this title: a report can be typed into it.
RicheT& openEditor(forms::Desk& desk, const QString& title);

}  // namespace reports
