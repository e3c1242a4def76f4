#pragma once

#include <QMap>

#include "ports/boxes.h"
#include "ports/settings.h"

namespace ports {

/// Settings kept in one INI file in UTF-8, readable by its owner only. Each call reads or writes the file, so that what
/// another run of the program saved is seen. A save replaces the file whole or leaves it as it was.
///
/// A file that can't be read, or of which a line can't be understood, is never overwritten: each call throws
/// UnknownFormat or PermissionDenied and names it.
class SettingsFile final : public Settings {
public:
    explicit SettingsFile(QString path) : path_(std::move(path)) {}

    QString read(const QString& application, const QString& section, const QString& key,
                 const QString& fallback) const override;
    bool has(const QString& application, const QString& section, const QString& key) const override;
    void save(const QString& application, const QString& section, const QString& key, const QString& value) override;

    /// Gives a damaged file another name beside the old one, so that the program starts as with no settings, and tells
    /// that name. Nothing happens, and nothing is told, if the file is sound or missing.
    QString setDamagedAside();

private:
    QString path_;
};

/// Sets a damaged file aside and says so.
void renewDamaged(SettingsFile& settings, Boxes& boxes);

/// The lines of a settings file: values by "APPLICATION/SECTION\KEY".
using SettingsLines = QMap<QString, QString>;

/// The text of a settings file: an application under its name in brackets, a line "SECTION\KEY" for each value, which
/// stands in quotes.
QByteArray writeSettings(const SettingsLines& lines);

/// Reads such a text; also values without quotes, empty lines and lines that begin with ";" or "#". False if it is
/// damaged.
bool readSettings(const QByteArray& text, SettingsLines& lines);

/// The file of the person who runs the program: `veranox/reglages.ini` in the user's configuration folder.
QString userSettingsPath();

}  // namespace ports
