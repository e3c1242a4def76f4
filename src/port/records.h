#pragma once

#include <QJsonArray>
#include <QJsonObject>
#include <QString>

#include "ports/settings.h"

namespace port {

/// Adds one record through the record store, in the file of the table that the settings name.
void insertRecord(const ports::Settings& settings, const QString& table, const QJsonObject& row);

/// All records of a table, every field.
QJsonArray allRecords(const ports::Settings& settings, const QString& table);

/// Saves the places of a practice's files and of its backups, as the Supervisor does.
void saveSettings(ports::Settings& settings, const QString& folder, const QString& backups);

}  // namespace port
