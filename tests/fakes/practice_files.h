#pragma once

#include "fakes/world.h"
#include "store/blank_rule.h"
#include "store/database.h"
#include "store/recordset.h"
#include "store/schema.h"

namespace fakes {

/// The four empty files of a practice in the world's folder, and the settings that name them.
inline void makeFiles(World& world) {
    for (const store::FileKind kind : store::kAllFiles) {
        const QString path = world.folder.filePath(store::usualName(kind));
        store::createFile(kind, path);
        world.settings.put(store::settingName(kind), path);
    }
}

inline QString pathOf(const World& world, store::FileKind kind) {
    return world.folder.filePath(store::usualName(kind));
}

using Fields = QList<std::pair<QString, store::Value>>;

/// Adds a record. The text fields of a patient that are left out get a blank, as her sheet's window writes it.
inline void add(const World& world, const QString& table, const Fields& fields) {
    auto rows = store::Database::open(pathOf(world, store::fileOf(table))).openRecordset("SELECT*FROM " + table);
    rows.addNew();
    for (const store::Field& field : store::fieldsOf(table)) {
        if (table == u"FICHEPATIENT" && store::blankWhenEmpty(field.name)) {
            rows.set(field.name, QStringLiteral(" "));
        }
    }
    for (const auto& [name, value] : fields) {
        rows.set(name, value);
    }
    rows.update();
}

inline void addPatient(const World& world, int number, const QString& surname, const QString& firstName,
                       const Fields& more = {}) {
    add(world, "FICHEPATIENT", Fields{{"Numint", number}, {"Nom", surname}, {"Prenom", firstName}} + more);
}

inline void addExam(const World& world, const QString& table, int patient, int number, const QString& date,
                    const Fields& more = {}) {
    add(world, table, Fields{{"Numero", patient}, {"NUMECHO", number}, {"DATEXAM", date}} + more);
}

}  // namespace fakes
