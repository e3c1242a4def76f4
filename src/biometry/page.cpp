#include "biometry/page.h"

#include "base/dates.h"
#include "base/numbers.h"
#include "biometry/dating.h"
#include "biometry/medians.h"
#include "biometry/weights.h"

namespace biometry {
namespace {

// The exam date comes after the date of today that a start brings with it, and stands unless it is no date.
QString weekOf(const Exam& exam, QDate today) {
    QString week;
    for (const QString& day : {base::shortDate(today), exam.examDate}) {
        if (const Outcome outcome = wholeWeek(exam.start, day, today).orThrow(); outcome.writes()) {
            week = outcome.text();
        }
    }
    return week;
}

QString ratioOr(const QString& blank, const QString& of, const QString& to) {
    const Outcome outcome = ratio(of, to);
    return outcome.writes() ? outcome.text() : blank;
}

QString lineOf(int fetus) {
    return fetus == 0 ? QStringLiteral("Foetus ") : QStringLiteral("G. Multiple Foetus N°%1").arg(fetus);
}

QString theoreticalWeightOf(const QString& week) {
    return weekChange(week, {}).theoreticalWeight.value_or(QString());
}

}  // namespace

int fetusInView(const Exam& exam) {
    const bool several = base::isNumeric(exam.fetusCount) && base::toNumber(exam.fetusCount) > 1;
    int fetus = exam.panels[0] && several ? 1 : 0;
    for (const int later : {2, 3}) {
        fetus = exam.panels[placeOf(later)] ? later : fetus;
    }
    return fetus;
}

Page page(const Exam& exam, int fetus, QDate today) {
    Page page;
    page.patient = QStringList{exam.civility, exam.surname, exam.firstName}.join(QStringLiteral("  "));
    page.start = exam.start;
    page.week = weekOf(exam, today);
    page.examDate = exam.examDate;
    page.fetus = fetus;
    page.fetusLine = lineOf(fetus);
    page.measures = exam.fetuses[placeOf(fetus)];
    for (const Measure measure : kClassified) {
        PercentileLabel& label = page.labels[indexOf(measure)];
        if (const QString& value = page.measure(measure); !value.isEmpty()) {
            label = classify(measure, page.week, value, label);
        }
    }
    page.footToFemur = ratioOr(QStringLiteral(" "), page.measure(Measure::Pied), page.measure(Measure::Fem));
    page.orbitToBip = ratioOr({}, page.measure(Measure::Orb), page.measure(Measure::Bip));
    const Outcome weight =
        estimatedWeight(page.measure(Measure::Cc), page.measure(Measure::Ca), page.measure(Measure::Fem));
    page.weight = weight.writes() ? weight.text() : QString();
    page.theoreticalWeight = theoreticalWeightOf(page.week);
    return page;
}

}  // namespace biometry
