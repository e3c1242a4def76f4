#pragma once

#include <QString>
#include <optional>

namespace store {

/// Takes a query text apart, as the reader of the grammar asks for it. Each call skips the blanks in front and either
/// takes what it is asked for or leaves the text as it stands.
class Scanner {
public:
    explicit Scanner(QStringView text) : text_(text) {}

    /// Takes a key word, case apart.
    bool word(QStringView word);
    /// Takes a sign such as "<=".
    bool sign(QStringView sign);
    /// Takes a name of letters, digits and underscores that starts with no digit, or any such name in square brackets.
    std::optional<QString> name();
    /// The same for a table, whose name may start with a digit.
    std::optional<QString> tableName();
    /// Takes digits, with a minus in front and a point inside if they are there; returns them as they stand.
    std::optional<QString> number();
    /// Takes a text in quotes; returns it without them.
    std::optional<QString> quotedText();

    /// The same, where nothing else may follow. Throw QuerySyntax.
    void expectWord(QStringView word);
    void expectSign(QStringView sign);
    void expectEnd();

    /// Throws QuerySyntax with the text that could not be read.
    [[noreturn]] void fail() const;

private:
    void skipBlanks();
    bool isNext(char16_t c) const { return at_ < text_.size() && text_[at_] == c; }
    qsizetype wordEnd(qsizetype from) const;
    qsizetype digitsEnd(qsizetype from) const;
    QString take(qsizetype end);
    std::optional<QString> bracketedName();

    QStringView text_;
    qsizetype at_ = 0;
};

}  // namespace store
