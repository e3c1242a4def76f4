#include "biometry/percentiles.h"

#include <algorithm>
#include <span>

#include "base/numbers.h"
#include "biometry/reference.h"

namespace biometry {
namespace {

std::span<const QString> labels(Vocabulary vocabulary) {
    static const QString from3To97[]{
        QStringLiteral("< 3 ème Percentile"),         QStringLiteral("3 ème à 10 ème Percentile"),
        QStringLiteral("10 ème à 50 ème Percentile"), QStringLiteral("50 ème Percentile"),
        QStringLiteral("50 ème à 90 ème Percentile"), QStringLiteral("90 ème à 97 ème Percentile"),
        QStringLiteral("> 97 ème Percentile")};
    static const QString from2_5To97_5[]{
        QStringLiteral("< 2,5 ème Percentile"),       QStringLiteral("2,5 ème à 10 ème Percentile"),
        QStringLiteral("10 ème à 50 ème Percentile"), QStringLiteral("50 ème Percentile"),
        QStringLiteral("50 ème à 90 ème Percentile"), QStringLiteral("90 ème à 97,5 ème Percentile"),
        QStringLiteral("> 97,5 ème Percentile")};
    // The word that stands twice in the last one is the practice's own writing.
    static const QString from5To95[]{QStringLiteral("< 5 ème Percentile"), QStringLiteral("5 ème à 50 ème Percentile"),
                                     QStringLiteral("50 ème Percentile"), QStringLiteral("50 ème à 95 ème Percentile"),
                                     QStringLiteral("> 95 ème ème Percentile")};
    static const QString aroundMedian[]{QStringLiteral("< 50 ème Percentile"), QStringLiteral("50 ème Percentile"),
                                        QStringLiteral("> 50 ème Percentile")};
    switch (vocabulary) {
        case Vocabulary::From3To97:
            return from3To97;
        case Vocabulary::From2_5To97_5:
            return from2_5To97_5;
        case Vocabulary::From5To95:
            return from5To95;
        case Vocabulary::AroundMedian:
            return aroundMedian;
    }
    return {};
}

int firstWeek(Measure measure) {
    return measure == Measure::Cer ? 15 : 13;
}

// The weeks from which a measure is followed, but not yet classified.
bool isBlankRow(Measure measure, double week) {
    return (measure == Measure::Ca && (week == 13 || week == 14)) ||
           (measure == Measure::Cc && (week == 13 || week == 14 || week == 15));
}

bool isBlankAfterTheLastRow(Measure measure, double week) {
    switch (measure) {
        case Measure::Ca:
        case Measure::Cc:
        case Measure::Pied:
            return week >= 41;
        case Measure::Cer:
            return week > 37;
        case Measure::Hum:
            return week > 41;
        default:
            return false;
    }
}

// Leaves the text where no class of the week holds the value.
void applyReference(Measure measure, double week, int value, QString& text) {
    if (isBlankRow(measure, week) || isBlankAfterTheLastRow(measure, week)) {
        text.clear();
        return;
    }
    const auto row = referenceRow(measure, week);
    if (!row) {
        return;
    }
    const auto found = std::ranges::find_if(row->classes, [value](const auto& range) { return range.holds(value); });
    if (found != row->classes.end()) {
        text = labels(row->vocabulary)[static_cast<std::size_t>(found - row->classes.begin())];
    }
}

bool isAlarm(Measure measure, const QString& text) {
    if (text == u"< 3 ème Percentile") {
        return true;
    }
    if (measure == Measure::Hum) {
        return text == u"< 2,5 ème Percentile" || text == u"> 97,5 ème Percentile";
    }
    // No row of the foot writes the second of these: a long foot is never an alarm.
    return measure == Measure::Pied && (text == u"< 5 ème Percentile" || text == u"> 95 ème Percentile");
}

PercentileLabel orbitLabel(QStringView week, PercentileLabel label) {
    if (!week.isEmpty() && base::toNumber(week) < firstWeek(Measure::Orb)) {
        label.text.clear();
    }
    return label;
}

}  // namespace

PercentileLabel classify(Measure measure, QStringView week, QStringView value, PercentileLabel label) {
    if (measure == Measure::Orb) {
        return orbitLabel(week, std::move(label));
    }
    const int millimetres = base::toInt16(base::leadingNumber(value));
    label.color = kCalmColor;
    label.size = kCalmSize;
    if (week.isEmpty()) {
        return label;
    }
    const double weekNumber = base::toNumber(week);
    if (weekNumber < firstWeek(measure)) {
        label.text.clear();
        return label;
    }
    applyReference(measure, weekNumber, millimetres, label.text);
    if (value.isEmpty()) {
        label.text.clear();
    }
    if (isAlarm(measure, label.text)) {
        label.color = kAlarmColor;
        label.size = kAlarmSize;
    }
    return label;
}

}  // namespace biometry
