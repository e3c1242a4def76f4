#include "port/records.h"

#include "base/dates.h"
#include "base/errors.h"
#include "store/blank_rule.h"
#include "store/database.h"
#include "store/recordset.h"
#include "store/schema.h"

namespace port {
namespace {

store::Recordset openTable(const ports::Settings& settings, const QString& table, const QString& order) {
    const QString path = settings.read(ports::kApplication, ports::kSection, store::settingName(store::fileOf(table)));
    return store::Database::open(path).openRecordset(QStringLiteral("SELECT*FROM ") + table + order);
}

store::Value dateValue(const QString& text) {
    const auto date = base::readDate(text, QDate::currentDate());
    if (!date) {
        throw base::RuntimeError(base::ErrorNumber::TypeMismatch);
    }
    return {*date};
}

store::Value toValue(const QJsonValue& json, store::FieldKind kind) {
    if (json.isNull()) {
        return {};
    }
    if (json.isDouble()) {
        const double number = json.toDouble();
        const auto whole = static_cast<qint64>(number);
        return static_cast<double>(whole) == number ? store::Value(whole) : store::Value(number);
    }
    return kind == store::FieldKind::Date ? dateValue(json.toString()) : store::Value(json.toString());
}

QJsonValue toJson(const store::Value& value, store::FieldKind kind) {
    if (value.isNull()) {
        return QJsonValue::Null;
    }
    return kind == store::FieldKind::Number ? QJsonValue(value.number()) : QJsonValue(value.text());
}

QJsonValue given(const QJsonObject& row, const QString& field) {
    for (auto it = row.begin(); it != row.end(); ++it) {
        if (it.key().compare(field, Qt::CaseInsensitive) == 0) {
            return it.value();
        }
    }
    return QJsonValue::Undefined;
}

void refuseUnknownFields(const QString& table, const QJsonObject& row) {
    for (const QString& key : row.keys()) {
        const auto& fields = store::fieldsOf(table);
        const bool known = std::any_of(fields.begin(), fields.end(), [&](const store::Field& field) {
            return field.name.compare(key, Qt::CaseInsensitive) == 0;
        });
        if (!known) {
            throw base::RuntimeError(base::ErrorNumber::UnknownField, QStringLiteral("Champ inconnu : %1.").arg(key));
        }
    }
}

}  // namespace

void insertRecord(const ports::Settings& settings, const QString& table, const QJsonObject& row) {
    refuseUnknownFields(table, row);
    const bool patients = table.compare(u"FICHEPATIENT", Qt::CaseInsensitive) == 0;
    store::Recordset records = openTable(settings, table, {});
    records.addNew();
    for (const store::Field& field : store::fieldsOf(table)) {
        const QJsonValue value = given(row, field.name);
        if (!value.isUndefined()) {
            records.set(field.name, toValue(value, field.kind));
        } else if (patients && store::blankWhenEmpty(field.name)) {
            records.set(field.name, QStringLiteral(" "));
        }
    }
    records.update();
}

QJsonArray allRecords(const ports::Settings& settings, const QString& table) {
    const bool patients = table.compare(u"FICHEPATIENT", Qt::CaseInsensitive) == 0;
    store::Recordset records = openTable(settings, table, patients ? QStringLiteral(" ORDER BY NUMINT") : QString());
    QJsonArray rows;
    for (; !records.eof(); records.moveNext()) {
        QJsonObject row;
        for (const store::Field& field : store::fieldsOf(table)) {
            row[field.name] = toJson(records.field(field.name), field.kind);
        }
        rows.append(row);
    }
    return rows;
}

void saveSettings(ports::Settings& settings, const QString& folder, const QString& backups) {
    for (const store::FileKind kind : store::kAllFiles) {
        settings.save(ports::kApplication, ports::kSection, store::settingName(kind),
                      folder + u'/' + store::usualName(kind));
    }
    settings.save(ports::kApplication, ports::kSection, QStringLiteral("SAUVE"), backups);
}

}  // namespace port
