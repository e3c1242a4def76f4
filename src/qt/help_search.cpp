#include "qt/help_search.h"

#include <QTextDocumentFragment>
#include <algorithm>

#include "qt/help_file.h"

namespace qt {
namespace {

// Of an extract, before and behind the word.
constexpr qsizetype kBefore = 40;
constexpr qsizetype kBehind = 90;
constexpr int kTitleWeight = 1000;

QChar plain(QChar letter) {
    const QString parts = letter.decomposition();
    return (parts.isEmpty() ? letter : parts.at(0)).toLower();
}

QString textOf(const QByteArray& page) {
    const QString text = QString::fromUtf8(page);
    // The heading repeats the title, which is kept by itself.
    const qsizetype body = text.indexOf(QStringLiteral("</h1>"));
    return QTextDocumentFragment::fromHtml(text.mid(qMax<qsizetype>(0, body))).toPlainText().simplified();
}

QString titleOf(const QByteArray& page) {
    const QString text = QString::fromUtf8(page);
    const qsizetype start = text.indexOf(QStringLiteral("<title>"));
    const qsizetype end = text.indexOf(QStringLiteral("</title>"));
    return start < 0 || end < start
               ? QString()
               : QTextDocumentFragment::fromHtml(text.mid(start + 7, end - start - 7)).toPlainText();
}

int countOf(const QString& text, const QString& word) {
    int count = 0;
    for (qsizetype at = wordStart(text, word); at >= 0; at = wordStart(text, word, at + 1)) {
        ++count;
    }
    return count;
}

QString extractOf(const QString& text, qsizetype place) {
    const qsizetype start = qMax<qsizetype>(0, place - kBefore);
    const QString piece = text.mid(start, place - start + kBehind).simplified();
    return (start > 0 ? QStringLiteral("… ") : QString()) + piece + QStringLiteral(" …");
}

}  // namespace

QString withoutAccents(const QString& text) {
    QString result = text;
    std::transform(text.begin(), text.end(), result.begin(), plain);
    return result;
}

QStringList searchedWords(const QString& query) {
    QString words = withoutAccents(query);
    words.replace(u'œ', QStringLiteral("oe"));
    std::replace_if(
        words.begin(), words.end(), [](QChar c) { return !c.isLetterOrNumber(); }, u' ');
    return words.simplified().split(u' ', Qt::SkipEmptyParts);
}

qsizetype wordStart(const QString& plainText, const QString& word, qsizetype from) {
    qsizetype at = plainText.indexOf(word, from);
    while (at > 0 && plainText.at(at - 1).isLetterOrNumber()) {
        at = plainText.indexOf(word, at + 1);
    }
    return at;
}

HelpSearch::HelpSearch(const HelpFile& file) {
    for (const QUrl& address : file.chapters().sliced(1)) {
        const QByteArray page = file.page(address);
        Page read{address, titleOf(page), textOf(page), {}, {}};
        read.plainTitle = withoutAccents(read.title);
        read.plainText = withoutAccents(read.text);
        pages_.push_back(std::move(read));
    }
}

QList<HelpHit> HelpSearch::find(const QString& query) const {
    const QStringList words = searchedWords(query);
    std::vector<std::pair<int, const Page*>> ranked;
    for (const Page& page : pages_) {
        int weight = 0;
        const bool all = std::ranges::all_of(words, [&](const QString& word) {
            const int found = kTitleWeight * countOf(page.plainTitle, word) + countOf(page.plainText, word);
            weight += found;
            return found > 0;
        });
        if (all && !words.isEmpty()) {
            ranked.emplace_back(weight, &page);
        }
    }
    std::ranges::stable_sort(ranked, std::greater{}, &std::pair<int, const Page*>::first);
    QList<HelpHit> hits;
    for (const auto& [weight, page] : ranked) {
        const qsizetype place = qMax<qsizetype>(0, wordStart(page->plainText, words.first()));
        hits << HelpHit{page->address, page->title, extractOf(page->text, place)};
    }
    return hits;
}

}  // namespace qt
