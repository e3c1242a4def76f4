#include "base/dates.h"

#include <QStringList>
#include <array>
#include <string_view>

namespace base {
namespace {

using namespace std::string_view_literals;

// Without accents: a typed month is stripped of them before it is looked up.
constexpr std::array kMonths{u"janvier"sv, u"fevrier"sv, u"mars"sv,      u"avril"sv,   u"mai"sv,      u"juin"sv,
                             u"juillet"sv, u"aout"sv,    u"septembre"sv, u"octobre"sv, u"novembre"sv, u"decembre"sv};
constexpr qsizetype kShortestMonth = 3;

std::optional<int> readDigits(QStringView text) {
    for (const QChar c : text) {
        if (c < u'0' || c > u'9') {
            return std::nullopt;
        }
    }
    return text.isEmpty() || text.size() > 4 ? std::nullopt : std::optional(text.toInt());
}

std::optional<int> readDay(QStringView text) {
    if (text.compare(u"1er", Qt::CaseInsensitive) == 0) {
        return 1;
    }
    return text.size() <= 2 ? readDigits(text) : std::nullopt;
}

QString withoutAccents(QStringView text) {
    QString plain;
    for (const QChar c : text.toString().normalized(QString::NormalizationForm_D).toLower()) {
        if (c.category() != QChar::Mark_NonSpacing) {
            plain += c;
        }
    }
    return plain;
}

std::optional<int> readMonth(QStringView text) {
    if (const auto number = readDigits(text)) {
        return text.size() <= 2 ? number : std::nullopt;
    }
    const QString name = withoutAccents(text);
    if (name.size() < kShortestMonth) {
        return std::nullopt;
    }
    std::optional<int> found;
    for (std::size_t i = 0; i < kMonths.size(); ++i) {
        if (QStringView(kMonths[i]).startsWith(name)) {
            if (found) {
                return std::nullopt;  // "jui" is June or July
            }
            found = static_cast<int>(i) + 1;
        }
    }
    return found;
}

std::optional<int> readYear(QStringView text) {
    const auto year = readDigits(text);
    if (!year) {
        return std::nullopt;
    }
    if (text.size() == 2) {
        return *year < 30 ? 2000 + *year : 1900 + *year;
    }
    return text.size() == 4 ? year : std::nullopt;
}

// The parts between the marks. A point behind a month cut short ("13 janv. 2002") and blanks around a mark belong to
// the mark; two marks in a row otherwise do not make a date.
std::optional<QStringList> parts(QStringView text) {
    QStringList found;
    QString part;
    QChar mark;
    for (const QChar c : text.trimmed()) {
        const bool blank = c.isSpace();
        if (!blank && c != u'/' && c != u'.' && c != u'-') {
            part += c;
            mark = QChar();
            continue;
        }
        if (!part.isEmpty()) {
            found << part;
            part.clear();
            mark = c;
        } else if (found.isEmpty() || (!blank && !mark.isSpace())) {
            return std::nullopt;
        } else if (!blank) {
            mark = c;
        }
    }
    if (part.isEmpty()) {
        return std::nullopt;
    }
    found << part;
    return found;
}

}  // namespace

std::optional<QDate> readDate(QStringView text, QDate today) {
    const auto pieces = parts(text);
    if (!pieces || pieces->size() < 2 || pieces->size() > 3) {
        return std::nullopt;
    }
    const auto day = readDay(pieces->at(0));
    const auto month = readMonth(pieces->at(1));
    const auto year = pieces->size() == 3 ? readYear(pieces->at(2)) : std::optional(today.year());
    if (!day || !month || !year || *year < 1) {
        return std::nullopt;
    }
    const QDate date(*year, *month, *day);
    return date.isValid() ? std::optional(date) : std::nullopt;
}

QString shortDate(QDate date) {
    return date.isValid() ? date.toString(QStringLiteral("dd/MM/yyyy")) : QString();
}

}  // namespace base
