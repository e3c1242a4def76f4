#include "biometry/chart_words.h"

#include "base/numbers.h"
#include "biometry/charts.h"

namespace biometry {
namespace {

QString measured(const QString& week, const QString& value) {
    return base::isNumeric(week) && base::isNumeric(value) ? QStringLiteral("%1 SA, %2 mm").arg(week, value)
                                                           : QString();
}

}  // namespace

QString chartWords(const QString& week, const QString& value, const QString& percentile, const QStringList& ages,
                   const QStringList& values) {
    QStringList parts;
    if (const QString present = measured(week, value); !present.isEmpty()) {
        parts << (percentile.isEmpty() ? present : present + QStringLiteral(", ") + percentile);
    }
    for (qsizetype i = 0; i < static_cast<qsizetype>(kRecalledMarkers); ++i) {
        if (const QString recalled = measured(ages.value(i), values.value(i)); !recalled.isEmpty()) {
            parts << QStringLiteral("rappel ") + recalled;
        }
    }
    return parts.join(QStringLiteral(" ; "));
}

}  // namespace biometry
