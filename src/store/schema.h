#pragma once

#include <QStringList>
#include <vector>

namespace store {

/// The four files of a practice.
enum class FileKind { Nom, Echo, Atcd, Echotek };

/// The usual name of a file: "NOM.MDB", "ECHO.MDB", "ATCD.MDB", "ECHOTEK.MDB".
QString usualName(FileKind kind);

/// The setting that holds the path of a file, as it is read: "CHEMCIV", "CHEMIN", "CHEMATCD", "CHEMINS".
QString settingName(FileKind kind);

inline constexpr FileKind kAllFiles[] = {FileKind::Nom, FileKind::Echo, FileKind::Atcd, FileKind::Echotek};

/// Makes the empty file of this kind at `path` with its tables, readable by its owner only. Throws PermissionDenied if
/// a file stands there already, DiskFull, PathNotFound. A file that could not be made whole is removed again.
void createFile(FileKind kind, const QString& path);

enum class FieldKind { Text, Number, Date };

/// A field of a table, spelled as the windows spell it most.
struct Field {
    QString name;
    FieldKind kind = FieldKind::Text;
    // What the store asks of its values.
    bool required = false;      // not null
    bool refusesEmpty = false;  // no empty text
    bool unique = false;
    bool sixteenBits = false;
    bool numbered = false;  // the store numbers it where a new record leaves it out
};

/// The tables of a file, in the order of their making.
QStringList tableNames(FileKind kind);

/// The fields of a table, in their order (names without regard to case). Throws UnknownTable.
const std::vector<Field>& fieldsOf(const QString& table);

/// The file that holds a table (names without regard to case). Throws UnknownTable.
FileKind fileOf(const QString& table);

}  // namespace store
