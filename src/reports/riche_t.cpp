#include "reports/riche_t.h"

#include <array>

#include "forms/desk.h"
#include "reports/wisiwi.h"

namespace reports {
namespace {

using forms::Alignment;
using Push = forms::ToolButton::Push;

constexpr int kFrameWidth = 200;
constexpr int kFrameHeight = 800;

std::vector<forms::ToolBar::Item> tools() {
    return {
        {"Imprimer", "Print", "Imprimer"},
        {"Couper", "Cut", "Couper"},
        {"Copier", "Copy", "Copier"},
        {"Coller", "Paste", "Coller"},
        {"Gras", "Bold", "Gras", Push::Toggles},
        {"Italique", "Italic", "Italique", Push::Toggles},
        {"Souligné", "Underline", "Souligné", Push::Toggles},
        {"Police", "Police", "Police"},
        {"Aligner à gauche", "Align Left", "Aligner à gauche", Push::Toggles},
        {"Centrer", "Center", "Centrer", Push::Toggles},
        {"Aligner à droite", "Align Right", "Aligner à droite", Push::Toggles},
        {"Quitter", "Quitte", "Quitte"},
    };
}

// A step that fails is passed over without a word.
template <class Step>
void skipping(Step step) {
    try {
        step();
    } catch (const base::RuntimeError&) {
    }
}

}  // namespace

RicheT::RicheT(ports::Surroundings& around)
    : Form(around.desk, kName.toString(), QStringLiteral("Rich Text Box WYSIWYG Printing Example")),
      tbToolBar(*this, QStringLiteral("tbToolBar"), tools()),
      around_(around) {
    imprimer.onClick = [this] { imprimer_Click(); };
    tbToolBar.onButtonClick = [this](const QString& key) { tbToolBar_ButtonClick(key); };
    RichTextBox1.onSelectionChange = [this] { RichTextBox1_SelChange(); };
}

void RicheT::load() {
    RichTextBox1.SelFontName(QStringLiteral("Arial"));
    RichTextBox1.SelFontSize(12);
    RichTextBox1.document().clearUndoRedoStacks();
    skipping([this] { fitToPrinter(); });
}

void RicheT::fitToPrinter() {
    if (const auto printer = around_.printers.standard()) {
        const PrintableArea area = WYSIWYG_RTF(RichTextBox1, printer->geometry(), kEditorMargins);
        size_ = {area.width + kFrameWidth, area.height + kFrameHeight};
    }
}

void RicheT::Form_Resize(int width, int height) {
    RichTextBox1.setPlace({100, 500, width - 200, height - 600});
}

void RicheT::tbToolBar_ButtonClick(const QString& key) {
    static constexpr std::array<std::pair<QStringView, void (RicheT::*)()>, 12> kActions{{
        {u"Imprimer", &RicheT::print},
        {u"Couper", &RicheT::cut},
        {u"Copier", &RicheT::copy},
        {u"Coller", &RicheT::paste},
        {u"Gras", &RicheT::bold},
        {u"Italique", &RicheT::italic},
        {u"Souligné", &RicheT::underline},
        {u"Police", &RicheT::chooseFont},
        {u"Aligner à gauche", &RicheT::alignLeft},
        {u"Centrer", &RicheT::centre},
        {u"Aligner à droite", &RicheT::alignRight},
        {u"Quitter", &RicheT::leave},
    }};
    for (const auto& [name, action] : kActions) {
        if (key == name) {
            (this->*action)();
            return;
        }
    }
}

void RicheT::RichTextBox1_SelChange() {
    tbToolBar(u"Gras").setChecked(RichTextBox1.SelBold() == true);
    tbToolBar(u"Italique").setChecked(RichTextBox1.SelItalic() == true);
    tbToolBar(u"Souligné").setChecked(RichTextBox1.SelUnderline() == true);
    const std::optional<Alignment> alignment = RichTextBox1.SelAlignment();
    tbToolBar(u"Aligner à gauche").setChecked(alignment == Alignment::Left);
    tbToolBar(u"Centrer").setChecked(alignment == Alignment::Centre);
    tbToolBar(u"Aligner à droite").setChecked(alignment == Alignment::Right);
}

void RicheT::imprimer_Click() {
    skipping([this] {
        around_.printers.choose(
            [this](ports::Printer& printer) { PrintRTF(RichTextBox1, printer, title(), kPaperMargins); });
    });
}

void RicheT::print() {
    skipping([this] {
        if (const auto printer = around_.printers.standard()) {
            PrintRTF(RichTextBox1, *printer, title(), kPaperMargins);
        }
    });
}

void RicheT::cut() {
    if (!RichTextBox1.SelText().isEmpty()) {
        copy();
        RichTextBox1.SelText(QString());
    }
}

void RicheT::copy() {
    if (const QString text = RichTextBox1.SelText(); !text.isEmpty()) {
        skipping([&] { around_.clipboard.setText(text); });
    }
}

void RicheT::paste() {
    skipping([this] { RichTextBox1.SelText(around_.clipboard.text()); });
}

// A mixed selection becomes bold, and so on.
void RicheT::bold() {
    RichTextBox1.SelBold(!RichTextBox1.SelBold().value_or(false));
}

void RicheT::italic() {
    RichTextBox1.SelItalic(!RichTextBox1.SelItalic().value_or(false));
}

void RicheT::underline() {
    RichTextBox1.SelUnderline(!RichTextBox1.SelUnderline().value_or(false));
}

void RicheT::chooseFont() {
    // The name is offered, but the text keeps its family.
    if (const auto font = around_.fontDialog.choose(fontOfSelection())) {
        RichTextBox1.SelFontSize(font->size);
        RichTextBox1.SelBold(font->bold);
        RichTextBox1.SelItalic(font->italic);
        RichTextBox1.SelUnderline(font->underline);
        RichTextBox1.SelStrikeThru(font->strike);
        RichTextBox1.SelColor(font->color);
    }
}

ports::FontChoice RicheT::fontOfSelection() const {
    const ports::FontChoice usual;
    return {RichTextBox1.SelFontName().value_or(QString()),        RichTextBox1.SelFontSize().value_or(usual.size),
            RichTextBox1.SelBold().value_or(usual.bold),           RichTextBox1.SelItalic().value_or(usual.italic),
            RichTextBox1.SelUnderline().value_or(usual.underline), RichTextBox1.SelStrikeThru().value_or(usual.strike),
            RichTextBox1.SelColor().value_or(usual.color)};
}

void RicheT::alignLeft() {
    RichTextBox1.SelAlignment(Alignment::Left);
}

void RicheT::centre() {
    RichTextBox1.SelAlignment(Alignment::Centre);
}

void RicheT::alignRight() {
    RichTextBox1.SelAlignment(Alignment::Right);
}

void RicheT::leave() {
    unload();
}

RicheT& openEditor(forms::Desk& desk, const QString& title) {
    desk.show(RicheT::kName.toString());
    auto& editor = desk.at<RicheT>();
    editor.setTitle(title);
    return editor;
}

}  // namespace reports
