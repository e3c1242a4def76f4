// Text boxes: an editor of one line, or of several, shows the text and the selection of its control and follows them.

#include <QKeyEvent>
#include <QLineEdit>
#include <QPlainTextEdit>

#include "forms/desk.h"
#include "qt/binder.h"
#include "qt/key_filter.h"

namespace qt {
namespace {

using forms::Aspect;

// The program's texts end their lines with "\r\n", the editor's with "\n".
QString toEditor(QString text) {
    return text.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
}

QString fromEditor(QString text) {
    return text.replace(u'\n', QStringLiteral("\r\n"));
}

// Of a text of several lines, a place as the program counts it (a line end is two characters) and as the editor does.
int toEditorPlace(const QString& text, int place) {
    return place - static_cast<int>(text.left(place).count(QStringLiteral("\r\n")));
}

int fromEditorPlace(const QString& plain, int place) {
    return place + static_cast<int>(plain.left(place).count(u'\n'));
}

struct Selected {
    int start, length;
    bool operator==(const Selected&) const = default;
};

Selected selectedIn(const QLineEdit* edit) {
    return edit->hasSelectedText() ? Selected{edit->selectionStart(), edit->selectionLength()}
                                   : Selected{edit->cursorPosition(), 0};
}

Selected selectedIn(const QPlainTextEdit* edit) {
    const QString plain = edit->toPlainText();
    const int start = fromEditorPlace(plain, edit->textCursor().selectionStart());
    return {start, fromEditorPlace(plain, edit->textCursor().selectionEnd()) - start};
}

void selectIn(QLineEdit* edit, const forms::TextBox& control) {
    edit->setSelection(control.selectionStart(), control.selectionLength());
}

void selectIn(QPlainTextEdit* edit, const forms::TextBox& control) {
    QTextCursor cursor = edit->textCursor();
    const int end = control.selectionStart() + control.selectionLength();
    cursor.setPosition(toEditorPlace(control.text(), control.selectionStart()));
    cursor.setPosition(toEditorPlace(control.text(), end), QTextCursor::KeepAnchor);
    edit->setTextCursor(cursor);
}

bool shows(const QLineEdit* edit, const QString& text) {
    return edit->text() == text;
}

bool shows(const QPlainTextEdit* edit, const QString& text) {
    return edit->toPlainText() == toEditor(text);
}

void showText(QLineEdit* edit, const QString& text) {
    edit->setText(text);
    // A long text that nobody is writing shows its beginning.
    if (!edit->hasFocus()) {
        edit->home(false);
    }
}

void showText(QPlainTextEdit* edit, const QString& text) {
    edit->setPlainText(toEditor(text));
}

}  // namespace

template <class Edit>
void Binder::bindKeys(forms::TextBox& control, Edit* edit) {
    new KeyFilter(edit, {.filters = [&control] { return static_cast<bool>(control.onKey); },
                         .typed = [this_ = &window_, &control](
                                      forms::KeyPress& key) { this_->form().desk().act([&] { control.onKey(key); }); },
                         .pressed =
                             [this_ = &window_, &control](forms::Key key) {
                                 if (control.onKeyDown) {
                                     this_->act([&control, key] { control.onKeyDown(key); });
                                 }
                             }});
}

template <class Edit>
void Binder::bindText(forms::TextBox& control, Edit* edit) {
    const auto sync = [&control, edit](Aspect aspect, int) {
        if (aspect == Aspect::Text) {
            if (!shows(edit, control.text())) {
                showText(edit, control.text());
            }
        } else if (aspect == Aspect::Selection &&
                   selectedIn(edit) != Selected{control.selectionStart(), control.selectionLength()}) {
            selectIn(edit, control);
        }
    };
    window_.bind(control, edit, sync);
    sync(Aspect::Text, -1);
    bindKeys(control, edit);
}

template <class Edit>
void Binder::followCaret(forms::TextBox& control, Edit* edit) {
    const auto moved = [window = &window_, &control, edit] {
        // While a character is typed the caret may be ahead of the text.
        if (window->alive() && shows(edit, control.text())) {
            const Selected now = selectedIn(edit);
            control.select(now.start, now.length);
        }
    };
    QObject::connect(edit, &Edit::selectionChanged, &window_, moved);
    QObject::connect(edit, &Edit::cursorPositionChanged, &window_, moved);
    QObject::connect(edit, &Edit::textChanged, &window_, moved);
}

QLineEdit* Binder::line(forms::TextBox& control, const QString& caption) {
    auto* edit = new QLineEdit;
    edit->setReadOnly(control.locked());
    edit->setAccessibleName(caption);
    bindText(control, edit);
    FormWindow* window = &window_;
    QObject::connect(edit, &QLineEdit::textEdited, window, [window, &control](const QString& text) {
        window->act([&control, text] { control.setText(text); });
    });
    new PressFilter(edit, [window, &control](const QKeyEvent& event) {
        const bool taken = isEnter(event) && window->alive() && control.onEnter;
        if (taken) {
            window->act([&control] { control.onEnter(); });
        }
        return taken;
    });
    followCaret(control, edit);
    return edit;
}

QPlainTextEdit* Binder::memo(forms::TextBox& control, const QString& caption) {
    auto* edit = new QPlainTextEdit;
    edit->setReadOnly(control.locked());
    edit->setAccessibleName(caption);
    edit->setTabChangesFocus(true);
    bindText(control, edit);
    QObject::connect(edit, &QPlainTextEdit::textChanged, &window_, [this_ = &window_, &control, edit] {
        if (this_->alive() && !shows(edit, control.text())) {
            const QString text = fromEditor(edit->toPlainText());
            this_->act([&control, text] { control.setText(text); });
        }
    });
    followCaret(control, edit);
    return edit;
}

}  // namespace qt
