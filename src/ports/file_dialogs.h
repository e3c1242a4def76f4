#pragma once

#include <QString>
#include <optional>

namespace ports {

/// What a person is asked who gives a file its name.
struct SaveRequest {
    /// "Caption|*.ext|Caption|*.ext".
    QString filter;
    /// The name that stands in the field at first.
    QString proposed{};
    /// Where the dialog opens; empty is where the last one ended.
    QString folder{};
    /// The part of the filter that is chosen at first, from 1.
    int filterIndex = 1;
};

/// The full path that was chosen, and the part of the filter, from 1.
struct SaveChoice {
    QString file;
    int filter = 1;
};

/// Whether a name that is picked has to be that of a file.
enum class MustExist { Yes, No };

/// The dialogs in which a person picks a file.
class FileDialogs {
public:
    virtual ~FileDialogs() = default;

    /// Picks a file, or any name if it needn't exist. `filter` is "Caption|*.ext|Caption|*.ext", `proposed` the name
    /// that stands in the field at first. The full path, or nothing on Cancel.
    virtual QString open(const QString& filter, const QString& proposed = {}, MustExist mustExist = MustExist::Yes) = 0;
    /// Gives a new file its name; a name without ending gets that of the filter. It warns before a file is replaced.
    /// Nothing on Cancel.
    virtual std::optional<SaveChoice> save(const SaveRequest& request) = 0;
};

}  // namespace ports
