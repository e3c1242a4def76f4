#include "practice/sample_writer.h"

#include "practice/sample_fields.h"
#include "practice/sample_texts.h"
#include "practice/sheet_writer.h"
#include "store/batch.h"
#include "store/database.h"
#include "store/recordset.h"

namespace practice {
namespace {

using store::Database;
using store::Recordset;

void addSheets(const Database& nom) {
    Recordset sheets = nom.openRecordset(u"SELECT*FROM FICHEPATIENT ORDER BY NUMINT"_qs);
    for (const Patient& patient : samplePatients()) {
        addSheet(sheets, patient);
    }
}

void addHistories(const Database& atcd) {
    Recordset histories = atcd.openRecordset(u"SELECT*FROM FICHEATCD WHERE NUMINT=0"_qs);
    for (const History& history : sampleHistories()) {
        histories.addNew();
        histories.set(u"Type"_qs, 1);
        histories.set(u"Numint"_qs, history.patient);
        histories.set(u"Texte"_qs, history.text.toString());
        histories.update();
    }
}

void addPhrases(const Database& echo) {
    Recordset phrases = echo.openRecordset(u"SELECT*FROM OPTIONS WHERE NUMEROS = 0 "_qs);
    eachPhrase([&](const Phrase& phrase) {
        phrases.addNew();
        phrases.set(u"NUMEROS"_qs, phrase.rubric);
        phrases.set(u"Texte"_qs, phrase.text.toString());
        phrases.set(u"TERMINAIS"_qs, QString(QChar(phrase.ending)));
        phrases.update();
    });
}

void addExam(Recordset& exams, int patient, int number, const Fields& fields, std::span<const QStringView> names) {
    exams.addNew();
    exams.set(u"Numero"_qs, patient);
    exams.set(u"NUMECHO"_qs, number);
    for (const QStringView name : names) {
        exams.set(name.toString(), fields.value(name.toString(), u""_qs));
    }
    exams.update();
}

void addObstetricExams(const Database& echo) {
    Recordset exams = echo.openRecordset(u"SELECT*FROM 1TER WHERE NUMERO=0"_qs);
    for (const FirstTrimesterExam& exam : firstTrimesterExams()) {
        addExam(exams, pregnancyOf(exam.visit.story).patient, exam.visit.number, fieldsOf(exam),
                firstTrimesterFieldNames());
    }
    for (const auto rows : {laterExams(), multipleExams()}) {
        for (const LaterExam& exam : rows) {
            addExam(exams, pregnancyOf(exam.visit.story).patient, exam.visit.number, fieldsOf(exam), laterFieldNames());
        }
    }
}

void addGynaecologyExams(const Database& echo) {
    Recordset exams = echo.openRecordset(u"SELECT*FROM GYNECO WHERE NUMERO=0 ORDER BY NUMECHO"_qs);
    for (const GynaecologyExam& exam : gynaecologyExams()) {
        addExam(exams, exam.patient, exam.number, fieldsOf(exam), gynaecologyFieldNames());
    }
}

void addKeyWords(const Database& echotek) {
    Recordset words = echotek.openRecordset(u"SELECT*FROM CLEFS WHERE NUMCRIT=0"_qs);
    for (const KeyWord& word : sampleKeyWords()) {
        words.addNew();
        words.set(u"NUMCRIT"_qs, word.list);
        words.set(u"CRIT"_qs, word.text.toString());
        words.update();
    }
}

void fill(const QString& path, std::initializer_list<void (*)(const Database&)> steps) {
    const Database database = Database::open(path);
    store::Batch batch(path);
    for (const auto step : steps) {
        step(database);
    }
    batch.commit();
}

}  // namespace

void writeSample(const Paths& files) {
    fill(files.nom, {addSheets});
    fill(files.atcd, {addHistories});
    fill(files.echo, {addPhrases, addObstetricExams, addGynaecologyExams});
    fill(files.echotek, {addKeyWords});
}

}  // namespace practice
