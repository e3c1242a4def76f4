#include "pictures/key_words.h"

namespace pictures {
namespace {

const QString kWord = QStringLiteral("CRIT");
const QString kList = QStringLiteral("NUMCRIT");

template <class Step>
void quietly(Step step) {
    try {
        step();
    } catch (const base::RuntimeError&) {
    }
}

}  // namespace

void KeyWords::fill() {
    for (const Boxes& boxes : lists_) {
        boxes.search.clear();
        boxes.entry.clear();
    }
    for (int list = 0; list < kLists; ++list) {
        fillList(list);
    }
}

void KeyWords::fillList(int list) {
    store::Recordset words = base_.open(QStringLiteral("SELECT*FROM CLEFS WHERE NUMCRIT = %1 ").arg(list));
    for (; !words.eof(); words.moveNext()) {
        const QString word = words.text(kWord);
        boxesOf(list).search.add(word);
        boxesOf(list).entry.add(word);
    }
}

bool KeyWords::confirm(const QString& doing, const QString& word, int list) const {
    const QString kind = list == 0 ? QStringLiteral("critère diagnostique") : QStringLiteral("mot clef");
    return boxes_.ask(QStringLiteral("Voulez vous vraiment ") + doing + u' ' + word + QStringLiteral(" comme ") + kind +
                          QStringLiteral(" ?"),
                      ports::Icon::Question);
}

void KeyWords::add(int list) {
    if (const QString word = boxesOf(list).entry.text(); !word.isEmpty()) {
        quietly([&] { addAsked(list, word); });
    }
}

void KeyWords::addAsked(int list, const QString& word) {
    store::Recordset words = base_.open(QStringLiteral("SELECT * FROM CLEFS "));
    if (!confirm(QStringLiteral("ajouter"), word, list)) {
        return;
    }
    words.addNew();
    words.set(kList, list);
    words.set(kWord, word);
    words.update();
}

void KeyWords::remove(int list) {
    if (const QString word = boxesOf(list).search.text(); !word.isEmpty()) {
        quietly([&] { removeAsked(list, word); });
    }
}

void KeyWords::removeAsked(int list, const QString& word) {
    store::Recordset words = base_.open(QStringLiteral("SELECT * FROM CLEFS WHERE NUMCRIT= %1").arg(list));
    words.findFirst(QStringLiteral("CRIT='") + word + u'\'');
    if (words.noMatch() || !confirm(QStringLiteral("supprimer"), word, list)) {
        return;
    }
    words.remove();
    for (forms::ComboBox* box : {&boxesOf(list).search, &boxesOf(list).entry}) {
        box->clear();
        box->setText({});
    }
    fillList(list);
}

}  // namespace pictures
