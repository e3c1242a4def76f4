#pragma once

#include <QStringList>

namespace biometry {

/// What the points on a chart show, in words, for those who can't see it: the present week, value in millimetres and
/// percentile, then the recalled exams' ages and values; what is no number is left out as its point is.
QString chartWords(const QString& week, const QString& value, const QString& percentile, const QStringList& ages,
                   const QStringList& values);

}  // namespace biometry
