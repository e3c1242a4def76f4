#include "biometry/reference_copy.h"

#include <QFile>
#include <stdexcept>
#include <utility>

namespace reference_copy {
namespace {

[[noreturn]] void refuse(QStringView what) {
    throw std::runtime_error("cannot be read: " + what.toUtf8().toStdString());
}

int number(QStringView text) {
    bool isNumber = false;
    const int value = text.toInt(&isNumber);
    return isNumber ? value : (text == u"up" ? kUp : (refuse(text), 0));
}

Interval interval(QStringView text) {
    const qsizetype mark = text.indexOf(u"..");
    return mark < 0 ? Interval{number(text), number(text)}
                    : Interval{number(text.first(mark)), number(text.sliced(mark + 2))};
}

QStringList linesOf(const QString& file) {
    QFile input(QStringLiteral(TEST_DATA_DIR "/reference/") + file);
    if (!input.open(QIODevice::ReadOnly)) {
        refuse(file);
    }
    QStringList lines = QString::fromUtf8(input.readAll()).split(u'\n', Qt::SkipEmptyParts);
    lines.removeIf([](const QString& line) { return line.startsWith(u'#'); });
    return lines;
}

std::pair<QString, QString> parted(const QString& line, QStringView mark) {
    const qsizetype at = line.indexOf(mark);
    return at < 0 ? (refuse(line), std::pair<QString, QString>())
                  : std::pair(line.first(at), line.sliced(at + mark.size()));
}

Piece piece(const QString& text) {
    const auto [values, result] = parted(text, u" ");
    if (result == u"none" || result == u"blank") {
        return {interval(values), result, false};
    }
    if (result.size() < 2 || !result.startsWith(u'"') || !result.endsWith(u'"')) {
        refuse(text);
    }
    return {interval(values), result.sliced(1, result.size() - 2), true};
}

// Where the next interval has to begin.
int followed(const Interval& now, int expected, const QString& line) {
    if (now.first != expected || now.last < now.first) {
        refuse(line);
    }
    return now.last == kUp ? kUp : now.last + 1;
}

WeekLine weekLine(const QString& line) {
    const auto [head, rest] = parted(line, u": ");
    WeekLine read{interval(parted(head, u" ").second), {}};
    int next = 0;
    for (const QString& text : rest.split(QStringLiteral("; "))) {
        read.pieces.push_back(piece(text));
        next = followed(read.pieces.back().values, next, line);
    }
    return next == kUp ? read : (refuse(line), read);
}

Interval millimetres(const QString& text) {
    if (text == u"0 mm and below") {
        return {0, 0};
    }
    const int value = number(parted(text, u" mm").first);
    return {value, text.endsWith(u"and above") ? kUp : value};
}

// "32 days = 4w4d" says its age twice.
QString days(const QString& text) {
    if (text == u"none" || text == u"refused") {
        return text;
    }
    const auto [count, age] = parted(text, u" days = ");
    const auto [weeks, rest] = parted(age, u"w");
    if (number(count) != 7 * number(weeks) + number(parted(rest, u"d").first)) {
        refuse(text);
    }
    return count;
}

}  // namespace

std::vector<WeekLine> measure(const QString& file) {
    std::vector<WeekLine> weeks;
    int next = 0;
    for (const QString& line : linesOf(file)) {
        weeks.push_back(weekLine(line));
        next = followed(weeks.back().weeks, next, line);
    }
    return next == kUp ? weeks : (refuse(file), weeks);
}

std::vector<CrownRumpLine> crownRump() {
    std::vector<CrownRumpLine> lines;
    int next = 0;
    for (const QString& line : linesOf(QStringLiteral("crown_rump.txt"))) {
        const auto [head, result] = parted(line, u": ");
        lines.push_back({millimetres(head), days(result)});
        next = followed(lines.back().millimetres, next, line);
    }
    return lines;
}

std::vector<MedianLine> medians() {
    std::vector<MedianLine> lines;
    int next = 0;
    for (const QString& line : linesOf(QStringLiteral("medians.txt")).sliced(1)) {
        QStringList columns = line.split(u' ');
        const Interval weeks = interval(columns.takeFirst());
        lines.push_back({weeks, columns});
        next = followed(weeks, next, line);
    }
    return lines;
}

std::vector<std::pair<QString, QStringList>> charts() {
    std::vector<std::pair<QString, QStringList>> lines;
    for (const QString& line : linesOf(QStringLiteral("charts.txt"))) {
        const auto [name, rest] = parted(line, u": ");
        lines.emplace_back(name, rest.split(QStringLiteral("; ")));
    }
    return lines;
}

}  // namespace reference_copy
