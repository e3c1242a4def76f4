#pragma once

#include <QString>

namespace ports {

/// The viewer of the help file. It reports a missing file itself.
class Help {
public:
    virtual ~Help() = default;
    virtual void showContents(const QString& file) = 0;
    /// Opens the file at the chapter about a window of the program; at its contents if it has none.
    virtual void showChapter(const QString& file, const QString& window) = 0;
};

}  // namespace ports
