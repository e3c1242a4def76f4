#pragma once

#include <QColor>
#include <QTextCursor>
#include <QTextDocument>
#include <optional>

#include "forms/control.h"

namespace forms {

/// How the lines of a paragraph stand, under the numbers that the operations carry.
enum class Alignment { Left = 0, Right = 1, Centre = 2 };

/// A text whose characters and paragraphs carry attributes. It owns its document, and a view edits that very document.
///
/// The operations `Sel...` act on the selection; with an empty one they tell the attributes of what is inserted next.
/// Read, they are empty where the selection is mixed. At the start of a paragraph its first character tells the state,
/// elsewhere the one before the caret.
class RichText final : public Control {
public:
    RichText(Form& form, QString name, int index = -1);

    QTextDocument& document() { return document_; }
    const QTextDocument& document() const { return document_; }

    /// The whole text. Line ends are "\r\n".
    QString text() const override;

    std::optional<Alignment> SelAlignment() const;
    std::optional<QString> SelFontName() const;
    /// In points.
    std::optional<double> SelFontSize() const;
    std::optional<bool> SelBold() const;
    std::optional<bool> SelItalic() const;
    std::optional<bool> SelUnderline() const;
    std::optional<bool> SelStrikeThru() const;
    std::optional<QColor> SelColor() const;
    /// The selected text. Line ends are "\r\n".
    QString SelText() const;
    /// Where the selection starts, and how long it is, counted in the characters of `text()`.
    int SelStart() const;
    int SelLength() const;

    void SelAlignment(Alignment alignment);
    void SelFontName(const QString& name);
    void SelFontSize(double points);
    void SelBold(bool on);
    void SelItalic(bool on);
    void SelUnderline(bool on);
    void SelStrikeThru(bool on);
    void SelColor(const QColor& color);
    /// Puts a text in the place of the selection and the caret behind it.
    void SelText(const QString& text);
    /// Moves the caret; nothing is selected any more.
    void SelStart(int start);

    /// The selection as the document counts it: a line end is one character.
    const QTextCursor& cursor() const { return cursor_; }
    void select(int anchor, int position);
    /// Called by a view that edits the document: the selection as it stands there now, whose attributes may be others
    /// than before. Ignored while steps run together: theirs is the last word.
    void follow(int anchor, int position);

    /// Runs steps as one change: one undo takes them all back, and the selection is told once, at their end.
    void together(const std::function<void()>& steps);

    /// The width at which lines break, in twips; without one the control's own width.
    std::optional<int> lineWidth() const { return lineWidth_; }
    void setLineWidth(int twips);

    /// Runs after the selection, or what the `Sel...` operations read of it, has changed.
    std::function<void()> onSelectionChange;

private:
    void attributesChanged();
    void merge(const QTextCharFormat& attributes);
    void selectionMoved();
    int textLength(int position) const;

    QTextDocument document_;
    QTextCursor cursor_{&document_};
    std::optional<int> lineWidth_;
    int together_ = 0;
};

/// What the attributes of characters say, by the names of the operations above.
namespace attributes {

QString family(const QTextCharFormat& format);
double points(const QTextCharFormat& format);
bool bold(const QTextCharFormat& format);
/// Black unless another was chosen.
QColor color(const QTextCharFormat& format);
Alignment alignment(const QTextBlockFormat& format);

}  // namespace attributes
}  // namespace forms
