#include "exams/settings_file.h"

#include <QFile>
#include <QSaveFile>
#include <QStringList>
#include <array>

namespace exams {
namespace {

// In the order of the items on the line.
constexpr std::array<bool MenuMarks::*, 7> kItems{
    &MenuMarks::ownMorphology, &MenuMarks::publishedMorphology, &MenuMarks::laterDetailed, &MenuMarks::laterOther,
    &MenuMarks::firstDetailed, &MenuMarks::firstOther,          &MenuMarks::introduction};

QString pathIn(const QString& programFolder) {
    return programFolder + QStringLiteral("/Settings");
}

std::optional<bool> truthOf(QString item) {
    item = item.trimmed();
    if (item.size() >= 2 && item.startsWith(u'"') && item.endsWith(u'"')) {
        item = item.sliced(1, item.size() - 2).trimmed();
    }
    const auto is = [&item](QStringView word) { return item.compare(word, Qt::CaseInsensitive) == 0; };
    if (is(u"Vrai") || is(u"True")) {
        return true;
    }
    return is(u"Faux") || is(u"False") ? std::optional(false) : std::nullopt;
}

std::optional<MenuMarks> marksOf(const QString& line) {
    const QStringList items = line.split(u',');
    MenuMarks marks;
    for (std::size_t i = 0; i < kItems.size(); ++i) {
        const std::optional<bool> truth = truthOf(items.value(static_cast<qsizetype>(i)));
        if (!truth) {
            return {};
        }
        marks.*kItems[i] = *truth;
    }
    return marks;
}

// Each line says it all, so that the last one holds.
std::optional<MenuMarks> lastOf(const QStringList& lines) {
    std::optional<MenuMarks> marks;
    for (const QString& line : lines) {
        if (!line.trimmed().isEmpty() && !(marks = marksOf(line))) {
            return {};
        }
    }
    return marks;
}

QByteArray lineOf(const MenuMarks& marks) {
    QByteArrayList items;
    for (const auto item : kItems) {
        items << (marks.*item ? "\"Vrai\"" : "\"Faux\"");
    }
    return items.join(',') + "\r\n";
}

void setPair(const std::optional<bool>& mark, bool& item, bool& opposite) {
    if (mark) {
        item = *mark;
        opposite = !*mark;
    }
}

MenuMarks merged(MenuMarks marks, const LoadedMarks& loaded) {
    setPair(loaded.bourgeois, marks.publishedMorphology, marks.ownMorphology);
    setPair(loaded.laterDetailed, marks.laterDetailed, marks.laterOther);
    setPair(loaded.firstDetailed, marks.firstDetailed, marks.firstOther);
    marks.introduction = loaded.laterIntroduction.value_or(marks.introduction);
    marks.introduction = loaded.firstIntroduction.value_or(marks.introduction);
    return marks;
}

}  // namespace

std::optional<MenuMarks> readSettings(const QString& programFolder) {
    QFile file(pathIn(programFolder));
    if (!file.open(QIODevice::ReadOnly)) {
        return {};
    }
    const QByteArray text = file.readAll();
    return file.error() == QFileDevice::NoError ? lastOf(QString::fromUtf8(text).split(u'\n')) : std::nullopt;
}

void writeSettings(const QString& programFolder, const LoadedMarks& loaded) {
    const QByteArray line = lineOf(merged(readSettings(programFolder).value_or(MenuMarks()), loaded));
    QSaveFile file(pathIn(programFolder));
    // Unbuffered: a full disk must fail the write, or the commit would put an emptied file in place.
    if (file.open(QIODevice::WriteOnly | QIODevice::Unbuffered) && file.write(line) == line.size()) {
        file.commit();
    }
}

}  // namespace exams
