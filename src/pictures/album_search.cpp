#include "pictures/album_search.h"

#include <QStringBuilder>

namespace pictures {
namespace {

// What a line shows of a picture, in the order of `kShown`.
struct Shown {
    const QString& number;
    const QString& surname;
    const QString& firstName;
    const QString& date;
    const QString& path;
};
const QStringList kShown{QStringLiteral("Numint"), QStringLiteral("Nom"), QStringLiteral("Prenom"),
                         QStringLiteral("DATEXAM"), QStringLiteral("NOMPATH")};

using Line = QString (*)(const Shown&);

QString numbered(const Shown& picture) {
    return picture.number % u"     " % picture.surname % u' ' % picture.firstName % u' ' % picture.date % u" // " %
           picture.path;
}

QString dateFirst(const Shown& picture) {
    return picture.date % u"  " % picture.surname % u"  " % picture.firstName;
}

QString nameFirst(const Shown& picture) {
    return picture.surname % u"  " % picture.firstName % u"  " % picture.date;
}

struct Sorting {
    QStringView field;
    QStringView order;
    Line line;
};

const Sorting& sortingOf(SortedSearch by) {
    static constexpr std::array kSortings{
        Sorting{u"DATEXAM", u"DATEXAM", dateFirst},
        Sorting{u"NOM", u"NOM", nameFirst},
        Sorting{u"DIAGNO", u"DATEXAM", nameFirst},
    };
    return kSortings.at(static_cast<std::size_t>(by));
}

FoundPictures collect(const store::Recordset& rows, Line line) {
    FoundPictures found;
    rows.eachRow(kShown, [&](const QStringList& texts) {
        found.lines << line({texts[0], texts[1], texts[2], texts[3], texts[4]});
        found.paths << texts[4];
    });
    return found;
}

}  // namespace

QString holds(QStringView field, const QString& text) {
    return field.toString() + QStringLiteral(" LIKE '*") + text + QStringLiteral("*'");
}

QString queryText(const AlbumSearch& wanted) {
    const QString kind = wanted.kind.isEmpty() ? QStringLiteral(">='0'") : QStringLiteral("='%1'").arg(wanted.kind);
    const QStringList conditions{holds(u"DIAGNO", wanted.diagnosis), holds(u"NOM", wanted.surname),
                                 holds(u"DATEXAM", wanted.date),     holds(u"CRIT1", wanted.words[0]),
                                 holds(u"CRIT2", wanted.words[1]),   holds(u"CRIT3", wanted.words[2]),
                                 QStringLiteral("TYPEXAM ") + kind};
    return QStringLiteral("SELECT*FROM ECHOS WHERE ") + conditions.join(QStringLiteral(" AND "));
}

FoundPictures search(const AlbumBase& base, const AlbumSearch& wanted) {
    return collect(base.open(queryText(wanted)), numbered);
}

FoundPictures search(const AlbumBase& base, SortedSearch by, const QString& text) {
    const Sorting& sorting = sortingOf(by);
    return collect(base.open(QStringLiteral("SELECT*FROM ECHOS WHERE ") + holds(sorting.field, text) +
                             QStringLiteral(" ORDER BY ") + sorting.order.toString()),
                   sorting.line);
}

}  // namespace pictures
