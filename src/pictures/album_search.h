#pragma once

#include <QStringList>
#include <array>

#include "pictures/album_base.h"

namespace pictures {

/// A condition that a field holds a text somewhere: "NOM LIKE '*x*'". The text is joined as it stands: one with an
/// apostrophe breaks the condition.
QString holds(QStringView field, const QString& text);

/// What the search by all fields asks for. An empty text matches every picture that has a value there; one that has
/// none is never found.
struct AlbumSearch {
    QString diagnosis;
    QString surname;
    QString date;
    std::array<QString, 3> words;
    /// "1" to "4", the kind of exam; empty for all.
    QString kind;
};

/// The query of that search.
QString queryText(const AlbumSearch& wanted);

/// What a search found, in its order: a line to show and the path for each picture, at the same index.
struct FoundPictures {
    QStringList lines;
    QStringList paths;
};

/// Finds by all fields, in the order in which the pictures were classed. A line begins with the picture's number.
FoundPictures search(const AlbumBase& base, const AlbumSearch& wanted);

/// A search by one field alone.
enum class SortedSearch { Date, Surname, Diagnosis };

/// Finds by one field and sorts: by date (as a text, day first) or by surname. A line begins with what is sorted by,
/// but with the surname where a diagnosis is looked for.
FoundPictures search(const AlbumBase& base, SortedSearch by, const QString& text);

}  // namespace pictures
