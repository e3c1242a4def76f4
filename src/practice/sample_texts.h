#pragma once

#include <QDate>
#include <QString>

#include "practice/sample_rows.h"

namespace practice {

/// All stored responses of the sample, rubric behind rubric within each group.
template <typename Visitor>
void eachPhrase(Visitor visit) {
    for (const auto group : {practicePhrases(), firstTrimesterPhrases(), laterPhrases(), gynaecologyPhrases()}) {
        for (const Phrase& phrase : group) {
            visit(phrase);
        }
    }
}

/// The usual finding of a rubric: its phrases up to the first that closes it, put together as double clicks do.
QString usualFinding(int rubric);

/// The practitioner with this rank (from 1) in rubric 1.
QString practitioner(int rank);

/// The only text of a rubric that holds one row.
QString onlyText(int rubric);

/// The age text of an exam: weeks of amenorrhoea (whole weeks since `start` plus two), and behind the comma the days,
/// 0 to 6. Empty for an invalid start.
QString ageText(QDate start, QDate exam);

/// The same age in words: "12 semaines et 3 jours d'aménorrhée".
QString spokenAge(QDate start, QDate exam);

}  // namespace practice
