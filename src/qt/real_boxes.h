#pragma once

#include "ports/boxes.h"

namespace qt {

/// Real modal boxes in front of the window in use.
class RealBoxes final : public ports::Boxes {
public:
    void message(const QString& text, ports::Icon icon) override;
    /// Escape answers No.
    bool ask(const QString& text, ports::Icon icon, const ports::Asking& asking) override;
    void report(const base::RuntimeError& error) override;
};

}  // namespace qt
