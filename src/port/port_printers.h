#pragma once

#include "qt/real_printers.h"

namespace port {

/// A machine whose default printer is a PDF file, or that has none.
class PortPrinters final : public qt::RealPrinters {
public:
    /// Each job replaces this file; an empty path: no printer on this machine.
    void setFile(const QString& path) { file_ = path; }

protected:
    std::unique_ptr<QPrinter> makeStandard() const override;
    void settle(QPrinter& printer) const override;

private:
    QString file_;
};

}  // namespace port
