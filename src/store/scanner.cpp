#include "store/scanner.h"

#include "base/errors.h"
#include "store/names.h"

namespace store {
namespace {

bool isBlank(QChar c) {
    return c == u' ' || (c >= u'\t' && c <= u'\r');
}

bool isDigit(QChar c) {
    return c >= u'0' && c <= u'9';
}

bool isOfName(QChar c) {
    const char16_t letter = capital(c.unicode());
    return (letter >= u'A' && letter <= u'Z') || isDigit(c) || c == u'_';
}

}  // namespace

bool Scanner::word(QStringView word) {
    skipBlanks();
    const qsizetype end = wordEnd(at_);
    if (!sameName(text_.sliced(at_, end - at_), word)) {
        return false;
    }
    at_ = end;
    return true;
}

bool Scanner::sign(QStringView sign) {
    skipBlanks();
    if (!text_.sliced(at_).startsWith(sign)) {
        return false;
    }
    at_ += sign.size();
    return true;
}

std::optional<QString> Scanner::name() {
    skipBlanks();
    if (isNext(u'[')) {
        return bracketedName();
    }
    if (at_ < text_.size() && isDigit(text_[at_])) {
        return std::nullopt;
    }
    return tableName();
}

std::optional<QString> Scanner::tableName() {
    skipBlanks();
    if (isNext(u'[')) {
        return bracketedName();
    }
    const qsizetype end = wordEnd(at_);
    return end == at_ ? std::nullopt : std::optional(take(end));
}

std::optional<QString> Scanner::number() {
    skipBlanks();
    const qsizetype digits = isNext(u'-') ? at_ + 1 : at_;
    qsizetype end = digitsEnd(digits);
    if (end == digits) {
        return std::nullopt;
    }
    if (end < text_.size() && text_[end] == u'.') {
        end = digitsEnd(end + 1);
    }
    return take(end);
}

std::optional<QString> Scanner::quotedText() {
    skipBlanks();
    if (!isNext(u'\'') && !isNext(u'"')) {
        return std::nullopt;
    }
    const QChar quote = text_[at_];
    QString text;
    for (qsizetype from = at_ + 1;;) {
        const qsizetype end = text_.indexOf(quote, from);
        if (end < 0) {
            fail();
        }
        text += text_.sliced(from, end - from);
        if (end + 1 == text_.size() || text_[end + 1] != quote) {
            at_ = end + 1;
            return text;
        }
        text += quote;
        from = end + 2;
    }
}

void Scanner::expectWord(QStringView word) {
    if (!this->word(word)) {
        fail();
    }
}

void Scanner::expectSign(QStringView sign) {
    if (!this->sign(sign)) {
        fail();
    }
}

void Scanner::expectEnd() {
    skipBlanks();
    if (at_ < text_.size()) {
        fail();
    }
}

void Scanner::fail() const {
    const auto number = base::ErrorNumber::QuerySyntax;
    throw base::RuntimeError(number, base::errorText(number, text_.toString()));
}

void Scanner::skipBlanks() {
    while (at_ < text_.size() && isBlank(text_[at_])) {
        ++at_;
    }
}

qsizetype Scanner::wordEnd(qsizetype from) const {
    while (from < text_.size() && isOfName(text_[from])) {
        ++from;
    }
    return from;
}

qsizetype Scanner::digitsEnd(qsizetype from) const {
    while (from < text_.size() && isDigit(text_[from])) {
        ++from;
    }
    return from;
}

QString Scanner::take(qsizetype end) {
    QString taken = text_.sliced(at_, end - at_).toString();
    at_ = end;
    return taken;
}

std::optional<QString> Scanner::bracketedName() {
    const qsizetype end = wordEnd(at_ + 1);
    if (end == at_ + 1 || end == text_.size() || text_[end] != u']') {
        return std::nullopt;
    }
    ++at_;
    QString name = take(end);
    ++at_;
    return name;
}

}  // namespace store
