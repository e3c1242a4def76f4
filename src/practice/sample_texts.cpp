#include "practice/sample_texts.h"

#include "base/numbers.h"

namespace practice {
namespace {

std::vector<Phrase> rubric(int number) {
    std::vector<Phrase> found;
    eachPhrase([&](const Phrase& phrase) {
        if (phrase.rubric == number) {
            found.push_back(phrase);
        }
    });
    return found;
}

QString ending(char16_t letter) {
    switch (letter) {
        case u'A':
            return QStringLiteral(" ");
        case u'B':
            return QStringLiteral("\r\n");
        default:
            return {};
    }
}

struct Age {
    qint64 weeks, days;
};

Age ageOf(QDate start, QDate exam) {
    const qint64 days = start.daysTo(exam);
    return {days / 7 + 2, days % 7};
}

}  // namespace

QString usualFinding(int number) {
    QString text;
    for (const Phrase& phrase : rubric(number)) {
        text += phrase.text;
        text += ending(phrase.ending);
        if (phrase.ending == u'C') {
            break;
        }
    }
    return text;
}

QString practitioner(int rank) {
    return rubric(1).at(std::size_t(rank - 1)).text.toString();
}

QString onlyText(int number) {
    return rubric(number).at(0).text.toString();
}

QString ageText(QDate start, QDate exam) {
    if (!start.isValid()) {
        return {};
    }
    const Age age = ageOf(start, exam);
    return base::decimalText(double(age.weeks) + double(age.days) / 10);
}

QString spokenAge(QDate start, QDate exam) {
    const Age age = ageOf(start, exam);
    QString text = QStringLiteral("%1 semaines").arg(age.weeks);
    if (age.days > 0) {
        text += QStringLiteral(" et %1 %2").arg(age.days).arg(age.days == 1 ? u"jour" : u"jours");
    }
    return text + u" d'aménorrhée"_qs;
}

}  // namespace practice
