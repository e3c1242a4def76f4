#pragma once

#include <QString>

namespace ports {

/// The clipboard, as text.
class Clipboard {
public:
    virtual ~Clipboard() = default;
    virtual QString text() const = 0;
    virtual void setText(const QString& text) = 0;
};

}  // namespace ports
