#include "practice/sheet_writer.h"

#include <vector>

#include "base/numbers.h"

namespace practice {
namespace {

struct Entry {
    const char* field;
    QString text;
};

Entry entry(const char* field, QStringView text) {
    return {field, text.toString()};
}

QStringView postalCode(QStringView town) {
    return town.left(town.indexOf(u' '));
}

QStringView townName(QStringView town) {
    return town.mid(town.indexOf(u' ') + 1);
}

/// The fields under the blank rule, with what was entered for them.
std::vector<Entry> blankRuleEntries(const Patient& patient) {
    const SheetExtras& more = patient.more;
    return {
        entry("CIVILITEE", patient.civility),
        entry("Prenom", patient.firstName),
        entry("NOMJF", patient.maidenName),
        entry("RUE1", patient.street),
        entry("RUE2", more.secondLine ? patient.street : QStringView()),
        entry("VILLE", townName(patient.town)),
        entry("CODEPOST", postalCode(patient.town)),
        entry("TELEPHONE", patient.phone),
        entry("FAX", patient.fax),
        entry("EMAIL", patient.email),
        entry("PROFESSION", patient.profession),
        entry("CATSOCPRO", patient.category),
        entry("NUMSECSOC", insuranceNumber(patient)),
        entry("DIVERS1", more.divers1),
        entry("DIVERS2", more.divers2),
        entry("DIVERS3", more.divers3),
        entry("PRISEENCHARGE", more.cover),
        entry("CARTESANTE", more.card),
        entry("DCD", more.situation),
        entry("PERDUDEVUE", more.lost),
        entry("MEDTT1", patient.doctor),
        entry("MEDTT2", more.doctor2),
        entry("MEDTT3", more.doctor3),
        entry("MEDTT4", more.doctor4),
        entry("CAISSE", more.fund),
        entry("Ranggem", more.twinRank),
        entry("QUALITE", more.quality),
        entry("DROITS", more.rights),
        entry("TIERSPAYANT", more.thirdParty),
    };
}

void setDate(store::Recordset& sheets, const QString& name, Day day) {
    if (day.date().isValid()) {
        sheets.set(name, day.date());
    }
}

void setNumeric(store::Recordset& sheets, const QString& name, QStringView text) {
    if (base::isNumeric(text)) {
        sheets.set(name, text.toString());
    }
}

void setText(store::Recordset& sheets, const QString& name, QStringView text) {
    if (!text.isEmpty()) {
        sheets.set(name, text.toString());
    }
}

QString thirteenDigits(const Patient& patient) {
    const QDate born = patient.born.date();
    return u"%1%2%3%4%5"_qs.arg(patient.sex == u"M" ? 1 : 2)
        .arg(born.year() % 100, 2, 10, QLatin1Char('0'))
        .arg(born.month(), 2, 10, QLatin1Char('0'))
        .arg(u"99310")
        .arg(patient.insuranceRank, 3, 10, QLatin1Char('0'));
}

}  // namespace

void addSheet(store::Recordset& sheets, const Patient& patient) {
    sheets.addNew();
    sheets.set(u"Numint"_qs, patient.number);
    sheets.set(u"Nom"_qs, patient.name.toString());
    for (const Entry& entry : blankRuleEntries(patient)) {
        sheets.set(QString::fromLatin1(entry.field), entry.text.isEmpty() ? u" "_qs : entry.text);
    }
    setDate(sheets, u"DATENAISS"_qs, patient.born);
    setDate(sheets, u"DATEFINPRISENCHARGE"_qs, patient.more.coverEnd);
    setNumeric(sheets, u"ASSURE"_qs, patient.more.insured);
    setNumeric(sheets, u"DIVERS4"_qs, patient.more.divers4);
    setText(sheets, u"SEXE"_qs, patient.sex);
    setText(sheets, u"ALSACEMOSELLE"_qs, patient.more.regional);
    sheets.update();
}

QString insuranceNumber(const Patient& patient) {
    if (patient.insuranceRank == 0) {
        return {};
    }
    const QString digits = thirteenDigits(patient);
    const qint64 key = 97 - digits.toLongLong() % 97;
    QString text = digits;
    for (const int place : {10, 7, 5, 3, 1}) {
        text.insert(place, u' ');
    }
    return text + u' ' + u"%1"_qs.arg(key, 2, 10, QLatin1Char('0'));
}

}  // namespace practice
