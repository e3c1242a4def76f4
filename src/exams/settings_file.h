#pragma once

#include <QString>
#include <optional>

namespace exams {

/// What `\Settings` keeps of the report style and the morphology list, in the order of its items: each the mark of a
/// menu entry. Without a file it is the marks that the entries have by themselves.
struct MenuMarks {
    /// `Perso` and `Bourgeois` of `Form8`.
    bool ownMorphology = true;
    bool publishedMorphology = false;
    /// `CptrD` and `CptrM` of `Form10`.
    bool laterDetailed = true;
    bool laterOther = false;
    /// `CptrD` and `CptrM` of `Form6`.
    bool firstDetailed = true;
    bool firstOther = false;
    /// `Intro` of `Form6` and of `Form10`.
    bool introduction = true;

    bool operator==(const MenuMarks&) const = default;
};

/// The marks of the entries from which the file is written, of the windows that are loaded: the others have no say.
struct LoadedMarks {
    std::optional<bool> bourgeois{};
    std::optional<bool> laterDetailed{};
    std::optional<bool> firstDetailed{};
    std::optional<bool> laterIntroduction{};
    /// Where there are both, this one is stored.
    std::optional<bool> firstIntroduction{};
};

/// The marks that the file in the program's folder holds. Nothing if it is missing, can't be read or is broken: then
/// the entries keep theirs.
std::optional<MenuMarks> readSettings(const QString& programFolder);

/// Writes the file anew. Of a window that isn't loaded it keeps what the file says. A file that can't be written stays
/// as it was, and nothing is said.
void writeSettings(const QString& programFolder, const LoadedMarks& loaded);

}  // namespace exams
