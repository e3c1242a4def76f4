#pragma once

#include "ports/clipboard.h"

namespace qt {

/// The desktop's clipboard. Line ends are the desktop's there, "\r\n" here.
class RealClipboard final : public ports::Clipboard {
public:
    QString text() const override;
    void setText(const QString& text) override;
};

}  // namespace qt
