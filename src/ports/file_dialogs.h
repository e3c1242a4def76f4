#pragma once

#include <QString>

namespace ports {

/// The dialogs in which a person picks a file.
class FileDialogs {
public:
    virtual ~FileDialogs() = default;

    /// Picks an existing file. `filter` is "Caption|*.ext|Caption|*.ext", `proposed` the name that stands in the field
    /// at first. The full path, or nothing on Cancel.
    virtual QString open(const QString& filter, const QString& proposed = {}) = 0;
};

}  // namespace ports
