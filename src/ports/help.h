#pragma once

#include <QString>

namespace ports {

/// The viewer of the help file. It reports a missing file itself.
class Help {
public:
    virtual ~Help() = default;
    virtual void showContents(const QString& file) = 0;
};

}  // namespace ports
