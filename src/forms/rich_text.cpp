#include "forms/rich_text.h"

#include <QFont>
#include <QTextBlock>
#include <algorithm>
#include <exception>
#include <utility>

namespace forms {
namespace {

// The document ends a paragraph with one character of its own, and so a line within it.
QString withLineEnds(QString raw) {
    return raw.replace(QChar::ParagraphSeparator, QStringLiteral("\r\n"))
        .replace(QChar::LineSeparator, QStringLiteral("\r\n"));
}

/// What all parts agree on; nothing once two of them differ.
template <class T>
class Common {
public:
    /// False as soon as it is settled that they differ.
    bool add(const T& value) {
        mixed_ = mixed_ || (value_ && *value_ != value);
        value_ = value;
        return !mixed_;
    }
    std::optional<T> value() const { return mixed_ ? std::nullopt : value_; }
    bool any() const { return value_.has_value(); }

private:
    std::optional<T> value_;
    bool mixed_ = false;
};

template <class T, class Read>
bool addBlock(Common<T>& common, const QTextBlock& block, const QTextCursor& cursor, Read read) {
    for (auto it = block.begin(); !it.atEnd(); ++it) {
        const QTextFragment piece = it.fragment();
        const bool selected =
            piece.position() < cursor.selectionEnd() && piece.position() + piece.length() > cursor.selectionStart();
        if (selected && !common.add(read(piece.charFormat()))) {
            return false;
        }
    }
    return true;
}

/// What the characters of the selection agree on, or the caret's own attributes.
template <class T, class Read>
std::optional<T> ofCharacters(const QTextCursor& cursor, Read read) {
    Common<T> common;
    if (cursor.hasSelection()) {
        const QTextDocument& document = *cursor.document();
        const QTextBlock last = document.findBlock(cursor.selectionEnd());
        for (QTextBlock block = document.findBlock(cursor.selectionStart()); block.isValid(); block = block.next()) {
            if (!addBlock(common, block, cursor, read) || block == last) {
                break;
            }
        }
    }
    if (!common.any()) {
        common.add(read(cursor.charFormat()));
    }
    return common.value();
}

}  // namespace

namespace attributes {

QString family(const QTextCharFormat& format) {
    const QStringList families = format.fontFamilies().toStringList();
    return families.isEmpty() ? QString() : families.first();
}

double points(const QTextCharFormat& format) {
    return format.fontPointSize();
}

bool bold(const QTextCharFormat& format) {
    return format.fontWeight() > QFont::Medium;
}

QColor color(const QTextCharFormat& format) {
    return format.foreground().style() == Qt::NoBrush ? QColor(Qt::black) : format.foreground().color();
}

Alignment alignment(const QTextBlockFormat& format) {
    const Qt::Alignment value = format.alignment();
    if (value & Qt::AlignHCenter) {
        return Alignment::Centre;
    }
    return value & Qt::AlignRight ? Alignment::Right : Alignment::Left;
}

}  // namespace attributes

RichText::RichText(Form& form, QString name, int index) : Control(form, Kind::RichText, std::move(name), index) {
    document_.setDocumentMargin(0);
}

QString RichText::text() const {
    return withLineEnds(document_.toRawText());
}

std::optional<Alignment> RichText::SelAlignment() const {
    Common<Alignment> common;
    const QTextBlock last = document_.findBlock(cursor_.selectionEnd());
    for (QTextBlock block = document_.findBlock(cursor_.selectionStart()); block.isValid(); block = block.next()) {
        if (!common.add(attributes::alignment(block.blockFormat())) || block == last) {
            break;
        }
    }
    return common.value();
}

std::optional<QString> RichText::SelFontName() const {
    return ofCharacters<QString>(cursor_, attributes::family);
}

std::optional<double> RichText::SelFontSize() const {
    return ofCharacters<double>(cursor_, attributes::points);
}

std::optional<bool> RichText::SelBold() const {
    return ofCharacters<bool>(cursor_, attributes::bold);
}

std::optional<bool> RichText::SelItalic() const {
    return ofCharacters<bool>(cursor_, [](const QTextCharFormat& format) { return format.fontItalic(); });
}

std::optional<bool> RichText::SelUnderline() const {
    return ofCharacters<bool>(cursor_, [](const QTextCharFormat& format) { return format.fontUnderline(); });
}

std::optional<bool> RichText::SelStrikeThru() const {
    return ofCharacters<bool>(cursor_, [](const QTextCharFormat& format) { return format.fontStrikeOut(); });
}

std::optional<QColor> RichText::SelColor() const {
    return ofCharacters<QColor>(cursor_, attributes::color);
}

QString RichText::SelText() const {
    return withLineEnds(cursor_.selectedText());
}

int RichText::textLength(int position) const {
    return static_cast<int>(withLineEnds(document_.toRawText().first(position)).size());
}

int RichText::SelStart() const {
    return textLength(cursor_.selectionStart());
}

int RichText::SelLength() const {
    return textLength(cursor_.selectionEnd()) - SelStart();
}

void RichText::SelAlignment(Alignment alignment) {
    QTextBlockFormat attributes;
    attributes.setAlignment(alignment == Alignment::Centre  ? Qt::AlignHCenter
                            : alignment == Alignment::Right ? Qt::AlignRight
                                                            : Qt::AlignLeft);
    cursor_.mergeBlockFormat(attributes);
    selectionMoved();
}

void RichText::SelFontName(const QString& name) {
    QTextCharFormat attributes;
    attributes.setFontFamilies({name});
    merge(attributes);
}

void RichText::SelFontSize(double points) {
    QTextCharFormat attributes;
    attributes.setFontPointSize(points);
    merge(attributes);
}

void RichText::SelBold(bool on) {
    QTextCharFormat attributes;
    attributes.setFontWeight(on ? QFont::Bold : QFont::Normal);
    merge(attributes);
}

void RichText::SelItalic(bool on) {
    QTextCharFormat attributes;
    attributes.setFontItalic(on);
    merge(attributes);
}

void RichText::SelUnderline(bool on) {
    QTextCharFormat attributes;
    attributes.setFontUnderline(on);
    merge(attributes);
}

void RichText::SelStrikeThru(bool on) {
    QTextCharFormat attributes;
    attributes.setFontStrikeOut(on);
    merge(attributes);
}

void RichText::SelColor(const QColor& color) {
    QTextCharFormat attributes;
    attributes.setForeground(color);
    merge(attributes);
}

void RichText::SelText(const QString& text) {
    // What follows takes these attributes too, even in front of a text that has others.
    const QTextCharFormat attributes = cursor_.charFormat();
    cursor_.insertText(text, attributes);
    cursor_.setCharFormat(attributes);
    selectionMoved();
}

void RichText::SelStart(int start) {
    const QString raw = document_.toRawText();
    int position = 0;
    for (int counted = 0; position < raw.size() && counted < start; ++position) {
        const bool lineEnd = raw[position] == QChar::ParagraphSeparator || raw[position] == QChar::LineSeparator;
        counted += lineEnd ? 2 : 1;
    }
    cursor_.setPosition(position);
    selectionMoved();
}

void RichText::select(int anchor, int position) {
    if (cursor_.anchor() == anchor && cursor_.position() == position) {
        return;
    }
    const int last = document_.characterCount() - 1;
    cursor_.setPosition(std::clamp(anchor, 0, last));
    cursor_.setPosition(std::clamp(position, 0, last), QTextCursor::KeepAnchor);
    selectionMoved();
}

void RichText::follow(int anchor, int position) {
    if (together_ > 0) {
        return;
    }
    select(anchor, position);
    attributesChanged();
}

void RichText::together(const std::function<void()>& steps) {
    ++together_;
    cursor_.beginEditBlock();
    std::exception_ptr failure;
    try {
        steps();
    } catch (...) {
        failure = std::current_exception();
    }
    cursor_.endEditBlock();
    --together_;
    selectionMoved();
    if (failure) {
        std::rethrow_exception(failure);
    }
}

void RichText::setLineWidth(int twips) {
    if (lineWidth_ != twips) {
        lineWidth_ = twips;
        tell(Aspect::LineWidth);
    }
}

void RichText::attributesChanged() {
    if (together_ == 0 && onSelectionChange) {
        onSelectionChange();
    }
}

void RichText::merge(const QTextCharFormat& attributes) {
    cursor_.mergeCharFormat(attributes);
    // An empty paragraph keeps what is to be typed into it, wherever the caret goes meanwhile.
    if (!cursor_.hasSelection() && cursor_.block().length() == 1) {
        cursor_.setBlockCharFormat(cursor_.charFormat());
    }
    selectionMoved();
}

void RichText::selectionMoved() {
    if (together_ == 0) {
        tell(Aspect::Selection);
        attributesChanged();
    }
}

}  // namespace forms
