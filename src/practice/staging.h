#pragma once

#include <QTemporaryDir>
#include <memory>

#include "practice/practice.h"

namespace practice {

/// Where a practice's files are made before they take their places: a hidden folder inside the practice's own, gone
/// with this object. Until `publish` has returned nothing of the practice's folder has changed.
class Staging {
public:
    /// Throws PermissionDenied if one of the four files stands in `folder` already or the folder can't be written,
    /// PathNotFound if it isn't there and can't be made.
    explicit Staging(const QString& folder);
    ~Staging();
    Staging(const Staging&) = delete;
    Staging& operator=(const Staging&) = delete;

    /// The paths of the files while they are made.
    Paths paths() const;

    /// Moves the four finished files to their places, or none of them. Nothing may have them open. Throws
    /// PermissionDenied, also if another program has made one of the files meanwhile.
    void publish();

private:
    QString folder_;
    bool madeFolder_ = false;
    bool published_ = false;
    std::unique_ptr<QTemporaryDir> hidden_;
};

}  // namespace practice
