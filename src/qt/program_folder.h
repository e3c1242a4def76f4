#pragma once

#include <QString>

namespace qt {

/// The program's own folder, where it keeps its files, with no closing separator: that of the executable if it can be
/// written, else `veranox` in the user's data folder, made if need be.
QString programFolder();

/// The first of two folders if a file can be made in it, else the second, made if need be.
QString writableFolder(const QString& wanted, const QString& otherwise);

}  // namespace qt
