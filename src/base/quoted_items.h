#pragma once

#include <QStringList>

namespace base {

/// A text as one quoted item of a text file: between quotes, each quote inside doubled. Line ends and commas stay.
QString quotedItem(const QString& text);

/// The items of a text file, in order. Items end at a comma or a line end; one that begins with a quote runs to the
/// quote that a comma, a line end or the end of the text follows, so that a quote inside may also stand single. A blank
/// line is no item. A quoted item without an end runs to the end of the text.
QStringList readItems(QStringView text);

}  // namespace base
