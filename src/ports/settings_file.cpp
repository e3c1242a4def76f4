#include "ports/settings_file.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLockFile>
#include <QSaveFile>
#include <QStandardPaths>
#include <QStringDecoder>

#include "base/errors.h"

namespace ports {
namespace {

using base::ErrorNumber;
using base::RuntimeError;

constexpr int kPatienceInMs = 5000;

// The case is folded in the file itself.
QString placeOf(const QString& application, const QString& section, const QString& key) {
    return (application + u'/' + section + u'\\' + key).toUpper();
}

[[noreturn]] void failToSave(const QString& path) {
    throw RuntimeError(ErrorNumber::PermissionDenied,
                       QStringLiteral("Les réglages ne peuvent pas être enregistrés dans %1.").arg(path));
}

[[noreturn]] void failDamaged(const QString& path) {
    throw RuntimeError(ErrorNumber::UnknownFormat,
                       QStringLiteral("Le fichier des réglages est endommagé, il n'a pas été modifié (%1).").arg(path));
}

QByteArray contentOf(const QString& path) {
    QFile file(path);
    if (!file.exists()) {
        return {};
    }
    const bool opened = file.open(QIODevice::ReadOnly);
    QByteArray text = file.readAll();
    if (!opened || file.error() != QFileDevice::NoError) {
        throw RuntimeError(ErrorNumber::PermissionDenied,
                           QStringLiteral("Le fichier des réglages ne peut pas être lu (%1).").arg(path));
    }
    return text;
}

SettingsLines linesOf(const QString& path) {
    SettingsLines lines;
    if (!readSettings(contentOf(path), lines)) {
        failDamaged(path);
    }
    return lines;
}

// Unbuffered: a full disk must fail the write, not the commit behind it.
void replaceFile(const QString& path, const QByteArray& text) {
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Unbuffered)) {
        failToSave(path);
    }
    file.setPermissions(QFile::ReadOwner | QFile::WriteOwner);
    if (file.write(text) != text.size() || !file.commit()) {
        failToSave(path);
    }
}

QString quoted(QString value) {
    value.replace(u'\\', QStringLiteral("\\\\"));
    value.replace(u'"', QStringLiteral("\\\""));
    value.replace(u'\n', QStringLiteral("\\n"));
    value.replace(u'\r', QStringLiteral("\\r"));
    return u'"' + value + u'"';
}

QChar unescaped(QChar character) {
    return character == u'n' ? QChar(u'\n') : character == u'r' ? QChar(u'\r') : character;
}

// What stands between the quotes of a value; false if they don't end where the line does.
bool readQuoted(QStringView text, QString& value) {
    value.clear();
    for (qsizetype i = 1; i < text.size(); ++i) {
        if (text[i] == u'"') {
            return i + 1 == text.size();
        }
        const bool escape = text[i] == u'\\';
        i += escape ? 1 : 0;
        if (i < text.size()) {
            value += escape ? unescaped(text[i]) : text[i];
        }
    }
    return false;
}

bool readValue(QStringView text, QString& value) {
    if (text.startsWith(u'"')) {
        return readQuoted(text, value);
    }
    value = text.toString();
    return !text.contains(QChar(0));
}

bool isRemark(QStringView line) {
    return line.isEmpty() || line.startsWith(u';') || line.startsWith(u'#');
}

bool isGroup(QStringView line) {
    return line.size() > 2 && line.startsWith(u'[') && line.endsWith(u']');
}

bool readLine(QStringView line, const QString& group, SettingsLines& lines) {
    const qsizetype mark = line.indexOf(u'=');
    if (mark < 1 || group.isEmpty()) {
        return false;
    }
    const QString name = line.first(mark).trimmed().toString().toUpper();
    return readValue(line.sliced(mark + 1).trimmed(), lines[group + u'/' + name]);
}

}  // namespace

QByteArray writeSettings(const SettingsLines& lines) {
    QString text, group;
    for (const auto& [place, value] : lines.asKeyValueRange()) {
        const qsizetype mark = place.indexOf(u'/');
        if (group != place.left(mark)) {
            group = place.left(mark);
            text += (text.isEmpty() ? QString() : QStringLiteral("\n")) + u'[' + group + QStringLiteral("]\n");
        }
        text += place.sliced(mark + 1) + u'=' + quoted(value) + u'\n';
    }
    return text.toUtf8();
}

bool readSettings(const QByteArray& text, SettingsLines& lines) {
    QStringDecoder decoder(QStringDecoder::Utf8);
    const QString decoded = decoder(text);
    if (decoder.hasError()) {
        return false;
    }
    QString group;
    for (QStringView line : QStringView(decoded).split(u'\n')) {
        line = line.trimmed();
        if (isGroup(line)) {
            group = line.sliced(1, line.size() - 2).toString().toUpper();
        } else if (!isRemark(line) && !readLine(line, group, lines)) {
            return false;
        }
    }
    return true;
}

QString SettingsFile::read(const QString& application, const QString& section, const QString& key,
                           const QString& fallback) const {
    return linesOf(path_).value(placeOf(application, section, key), fallback);
}

bool SettingsFile::has(const QString& application, const QString& section, const QString& key) const {
    return linesOf(path_).contains(placeOf(application, section, key));
}

void SettingsFile::save(const QString& application, const QString& section, const QString& key, const QString& value) {
    QDir().mkpath(QFileInfo(path_).path());
    // Another run of the program may be saving too.
    QLockFile lock(path_ + QStringLiteral(".lock"));
    if (!lock.tryLock(kPatienceInMs)) {
        failToSave(path_);
    }
    SettingsLines lines = linesOf(path_);
    lines[placeOf(application, section, key)] = value;
    replaceFile(path_, writeSettings(lines));
}

QString SettingsFile::setDamagedAside() {
    SettingsLines lines;
    if (readSettings(contentOf(path_), lines)) {
        return {};
    }
    QString aside = path_ + QStringLiteral(".endommage");
    for (int i = 2; QFileInfo::exists(aside); ++i) {
        aside = path_ + QStringLiteral(".endommage-%1").arg(i);
    }
    if (!QFile::rename(path_, aside)) {
        failDamaged(path_);
    }
    return aside;
}

void renewDamaged(SettingsFile& settings, Boxes& boxes) {
    const QString aside = settings.setDamagedAside();
    if (!aside.isEmpty()) {
        boxes.message(QStringLiteral("Le fichier des réglages est endommagé. Il a été mis de côté sous le nom :\n%1\n\n"
                                     "Veuillez indiquer de nouveau les chemins à l'aide du SUPERVISEUR.")
                          .arg(aside),
                      Icon::Exclamation);
    }
}

QString userSettingsPath() {
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
           QStringLiteral("/veranox/reglages.ini");
}

}  // namespace ports
