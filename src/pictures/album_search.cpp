#include "pictures/album_search.h"

namespace pictures {
namespace {

using store::Recordset;

const QString kNumber = QStringLiteral("Numint");
const QString kSurname = QStringLiteral("Nom");
const QString kFirstName = QStringLiteral("Prenom");
const QString kDate = QStringLiteral("DATEXAM");
const QString kPath = QStringLiteral("NOMPATH");

using Line = QString (*)(const Recordset&);

QString numbered(const Recordset& row) {
    return row.text(kNumber) + QStringLiteral("     ") + row.text(kSurname) + u' ' + row.text(kFirstName) + u' ' +
           row.text(kDate) + QStringLiteral(" // ") + row.text(kPath);
}

const QString kGap = QStringLiteral("  ");

QString dateFirst(const Recordset& row) {
    return row.text(kDate) + kGap + row.text(kSurname) + kGap + row.text(kFirstName);
}

QString nameFirst(const Recordset& row) {
    return row.text(kSurname) + kGap + row.text(kFirstName) + kGap + row.text(kDate);
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

FoundPictures collect(Recordset rows, const QString& criterion, Line line) {
    FoundPictures found;
    rows.findFirst(criterion);
    if (rows.noMatch()) {
        return found;
    }
    for (rows.moveFirst(); !rows.eof(); rows.moveNext()) {
        found.lines << line(rows);
        found.paths << rows.text(kPath);
    }
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
    return collect(base.open(queryText(wanted)), holds(u"NOMFICH", QStringLiteral("*")), numbered);
}

FoundPictures search(const AlbumBase& base, SortedSearch by, const QString& text) {
    const Sorting& sorting = sortingOf(by);
    const QString condition = holds(sorting.field, text);
    return collect(base.open(QStringLiteral("SELECT*FROM ECHOS WHERE ") + condition + QStringLiteral(" ORDER BY ") +
                             sorting.order.toString()),
                   condition, sorting.line);
}

}  // namespace pictures
