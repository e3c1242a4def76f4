#include "practice/sample.h"

#include <QTemporaryDir>

namespace {

Row found(const QList<Row>& rows, const QMap<QString, int>& numbers) {
    for (const Row& row : rows) {
        bool same = true;
        for (auto it = numbers.begin(); it != numbers.end(); ++it) {
            same = same && row[it.key()].number() == it.value();
        }
        if (same) {
            return row;
        }
    }
    ADD_FAILURE() << "no such record";
    return {};
}

}  // namespace

const practice::Paths& Sample::files() {
    static const QTemporaryDir folder;
    static const practice::Paths paths = [] {
        practice::makeSample(folder.path());
        return practice::pathsIn(folder.path());
    }();
    return paths;
}

const QList<Row>& Sample::patients() {
    static const QList<Row> rows = rowsOf(files(), u"FICHEPATIENT"_qs);
    return rows;
}

const QList<Row>& Sample::obstetric() {
    static const QList<Row> rows = rowsOf(files(), u"1TER"_qs);
    return rows;
}

const QList<Row>& Sample::gynaecology() {
    static const QList<Row> rows = rowsOf(files(), u"GYNECO"_qs);
    return rows;
}

Row Sample::patient(int number) {
    return found(patients(), {{u"NUMINT"_qs, number}});
}

Row Sample::exam(int dossier, int number) {
    return found(obstetric(), {{u"NUMERO"_qs, dossier}, {u"NUMECHO"_qs, number}});
}

Row Sample::pelvic(int dossier, int number) {
    return found(gynaecology(), {{u"NUMERO"_qs, dossier}, {u"NUMECHO"_qs, number}});
}
