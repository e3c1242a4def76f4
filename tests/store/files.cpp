#include "store/files.h"

#include <QFile>
#include <ostream>

using store::Database;
using store::Field;
using store::FieldKind;
using store::FileKind;
using store::Recordset;

QString Files::made(FileKind kind) const {
    if (!QFile::exists(path(kind))) {
        store::createFile(kind, path(kind));
    }
    return path(kind);
}

void add(const Database& database, const QString& table, const Record& record) {
    Recordset rows = database.openRecordset(u"SELECT*FROM "_qs + table);
    rows.addNew();
    for (const auto& [field, value] : record) {
        rows.set(field, value);
    }
    rows.update();
}

void addPatient(const Database& database, int number, const QString& name, const QString& firstName) {
    Record record;
    for (const Field& field : store::fieldsOf(u"FICHEPATIENT"_qs)) {
        if (field.kind == FieldKind::Text) {
            record[field.name] = u" "_qs;
        }
    }
    record[u"Numint"_qs] = number;
    record[u"Nom"_qs] = name;
    record[u"Prenom"_qs] = firstName;
    add(database, u"FICHEPATIENT"_qs, record);
}

QStringList column(const Database& database, const QString& query, const QString& field) {
    QStringList texts;
    for (Recordset rows = database.openRecordset(query); !rows.eof(); rows.moveNext()) {
        texts << rows.text(field);
    }
    return texts;
}

void PrintTo(const QString& text, std::ostream* stream) {
    *stream << '"' << text.toStdString() << '"';
}

void store::PrintTo(const Value& value, std::ostream* stream) {
    *stream << (value.isNull() ? "null" : value.text().toStdString());
}
