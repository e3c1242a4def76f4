#include "responses/offer_panel.h"

#include "base/dates.h"

namespace responses {
namespace {

const QString kUsed = QStringLiteral("--- OK");

QString suffixOf(const QString& closing) {
    if (closing == u"A") {
        return QStringLiteral(" ");
    }
    if (closing == u"B") {
        return QStringLiteral("\r\n");
    }
    if (closing == u"C") {
        return QStringLiteral("\t");
    }
    return {};
}

}  // namespace

OfferPanel::OfferPanel(store::State& state, const ports::Clock& clock, std::span<const ExamField> rows,
                       forms::Array<forms::TextBox>& fields, const PanelControls& controls, Wrap wrap)
    : state_(state), clock_(clock), rows_(rows), fields_(fields), controls_(controls), wrap_(wrap) {
    for (int index = fields.first(); index <= fields.last(); ++index) {
        fields(index).onFocus = [this, index] { enter(index); };
    }
    for (forms::ListBox* list : {&controls_.List1, &controls_.List2}) {
        list->onRightClick = [this] { rightClick(); };
        list->onEscape = [this] { goTo(current_); };
    }
    controls_.List1.onDoubleClick = [this] { takePhrase(); };
    controls_.List2.onDoubleClick = [this] { takeNumber(); };
    controls_.Calendar1.onDateChosen = [this](QDate date) { takeDate(date); };
    controls_.CmdEfface.onClick = [this] { erase(); };
    addFreeEntry(controls_.Text1);
    controls_.List2.hide();
    controls_.Calendar1.hide();
}

void OfferPanel::addFreeEntry(forms::TextBox& box) {
    box.onEnter = [this, &box] { takeFreeEntry(box); };
    box.onLeave = [this, &box] { takeFreeEntry(box); };
    freeEntries_.push_back(&box);
}

void OfferPanel::enter(int index) {
    current_ = index;
    controls_.Calendar1.hide();
    const auto row = std::ranges::find(rows_, index, &ExamField::index);
    show(row == rows_.end() ? nothing() : row->offer);
}

void OfferPanel::show(const Offer& offer) {
    controls_.List2.setVisible(offer.kind == Offer::Kind::Numbers);
    switch (offer.kind) {
        case Offer::Kind::Nothing:
            break;
        case Offer::Kind::Phrases:
            offerPhrases(QStringLiteral("SELECT*FROM OPTIONS WHERE NUMEROS = %1 ORDER BY INDEX").arg(offer.rubric));
            break;
        case Offer::Kind::Numbers:
            offerNumbers(offer);
            break;
        case Offer::Kind::Calendar:
            offerCalendar();
            break;
    }
}

void OfferPanel::offerPhrases(const QString& query) {
    state_.SqlEcho = query;
    BOUCLE();
}

void OfferPanel::BOUCLE() {
    // Whatever comes, no phrase of another field stays in sight.
    controls_.List1.clear();
    state_.Rs = state_.DbEcho.openRecordset(state_.SqlEcho);
    QStringList lines;
    for (; !state_.Rs.eof(); state_.Rs.moveNext()) {
        lines << state_.Rs.text(QStringLiteral("Texte")) + suffixOf(state_.Rs.text(QStringLiteral("TERMINAIS")));
    }
    controls_.List1.setItems(lines);
}

void OfferPanel::offerNumbers(const Offer& offer) {
    const QStringList lines = numberLines(offer);
    controls_.List1.clear();
    controls_.List2.setItems(lines);
    controls_.List2.setRow(static_cast<int>(lines.indexOf(typicalLine(offer))));
}

void OfferPanel::offerCalendar() {
    const QDate today = clock_.today();
    controls_.List1.clear();
    controls_.Calendar1.setDate(base::readDate(box().text(), today).value_or(today));
    controls_.Calendar1.show();
}

void OfferPanel::goTo(int index) {
    current_ = index;
    box().select(static_cast<int>(box().text().size()), 0);
    box().setFocus();
}

void OfferPanel::goOn() {
    goTo(current_ >= wrap_.last ? wrap_.first : current_ + 1);
}

void OfferPanel::write(const QString& text) {
    box().setText(text);
    box().select(static_cast<int>(text.size()), 0);
}

void OfferPanel::takePhrase() {
    forms::ListBox& list = controls_.List1;
    const int row = list.row();
    if (row < 0) {
        return;
    }
    write(box().text() + list.text());
    list.remove(row);
    list.insert(row, kUsed);
    list.setRow(row);
    if (box().text().endsWith(u'\t')) {
        write(box().text().chopped(1));
        goOn();
    }
}

void OfferPanel::takeNumber() {
    if (controls_.List2.row() < 0) {
        return;
    }
    const QString number = controls_.List2.text();
    write(box().text().isEmpty() ? number : box().text() + u' ' + number);
}

void OfferPanel::takeDate(QDate date) {
    write(base::shortDate(date));
    goTo(current_ + 1);
}

void OfferPanel::rightClick() {
    if (rightClickApplies_()) {
        goOn();
    }
}

void OfferPanel::erase() {
    box().setText({});
    box().setFocus();
}

void OfferPanel::takeFreeEntry(forms::TextBox& entry) {
    const QString text = entry.text();
    if (text.isEmpty()) {
        return;
    }
    entry.setText({});
    write(box().text() + u' ' + text + u' ');
    goTo(current_);
}

void OfferPanel::takeFreeEntries() {
    for (forms::TextBox* entry : freeEntries_) {
        takeFreeEntry(*entry);
    }
}

}  // namespace responses
