#pragma once

#include "ports/printer.h"

class QPrinter;

namespace qt {

/// The printers that the system offers, and PDF files.
class RealPrinters : public ports::Printers {
public:
    std::unique_ptr<ports::Printer> standard() override;
    std::unique_ptr<ports::Printer> choose() override;

protected:
    /// The printer that serves where none is chosen; null if there is none.
    virtual std::unique_ptr<QPrinter> makeStandard() const;
    /// Has the last word on a printer that a person has chosen.
    virtual void settle(QPrinter&) const {}
};

}  // namespace qt
