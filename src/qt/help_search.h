#pragma once

#include <QList>
#include <QString>
#include <QUrl>
#include <vector>

namespace qt {

class HelpFile;

/// A page that holds all the words looked for.
struct HelpHit {
    QUrl page;
    QString title;
    /// A piece of its text around the first of the words.
    QString extract;
};

/// The text without case and accents, letter by letter: it is as long as the text, so that places in the two agree.
QString withoutAccents(const QString& text);
/// What is looked for, as words without case and accents.
QStringList searchedWords(const QString& query);
/// Where, from a place on, a word of such a text begins as the searched one does; -1 if none does.
qsizetype wordStart(const QString& plainText, const QString& word, qsizetype from = 0);

/// Finds words in the text of the pages: their beginnings, without regard to case and accents. Pages that have them in
/// their titles come first, then those that have them most often.
class HelpSearch {
public:
    explicit HelpSearch(const HelpFile& file);

    QList<HelpHit> find(const QString& query) const;

private:
    struct Page {
        QUrl address;
        QString title, text;
        QString plainTitle, plainText;
    };

    std::vector<Page> pages_;
};

}  // namespace qt
