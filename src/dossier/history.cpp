#include "dossier/history.h"

#include "base/errors.h"
#include "base/numbers.h"

namespace dossier {
namespace {

const QString kText = QStringLiteral("Texte");

}  // namespace

void History::show() {
    try {
        read();
    } catch (const base::RuntimeError&) {
        // Most often a patient without a history: the first entry is made from here.
        text_.setText({});
    }
    saveButton_.setEnabled(true);
}

void History::save() {
    try {
        write();
        saveButton_.setText(QStringLiteral("Enregistré"));
    } catch (const base::RuntimeError&) {
        // The caption that stays tells that nothing was stored.
    }
}

void History::reset() {
    saveButton_.setEnabled(false);
    saveButton_.setText(QStringLiteral("Enregistrer les Informations"));
    text_.setText({});
}

void History::open(const QString& query) {
    state_.DbAtcd = store::Database::open(state_.WorkAtcd);
    state_.SqlAtcd = query;
    state_.RsAtcd = state_.DbAtcd.openRecordset(query);
}

void History::read() {
    const QString n = base::queryNumber(number_.text());
    open(QStringLiteral("SELECT*FROM FICHEATCD WHERE NUMINT=") + n + QStringLiteral("AND TYPE='1'"));
    state_.RsAtcd.findFirst(QStringLiteral("NUMINT=") + n);
    text_.setText({});
    text_.setText(state_.RsAtcd.text(kText));
}

void History::write() {
    const QString n = base::queryNumber(number_.text());
    open(QStringLiteral("SELECT*FROM FICHEATCD WHERE NUMINT=") + n);
    store::Recordset& history = state_.RsAtcd;
    history.findFirst(QStringLiteral("NUMINT=") + n);
    if (history.noMatch()) {
        history.addNew();
        history.set(QStringLiteral("Type"), 1);
        history.set(QStringLiteral("Numint"), n);
        history.set(kText, u' ' + text_.text());
    } else {
        history.edit();
        history.set(kText, text_.text());
    }
    history.update();
}

}  // namespace dossier
