#pragma once

#include "ports/printer.h"

class QPrinter;
class QWidget;

namespace qt {

/// The printers that the system offers, and PDF files.
class RealPrinters : public ports::Printers {
public:
    std::unique_ptr<ports::Printer> standard() override;
    void choose(const Print& print) override;

protected:
    /// The printer that serves where none is chosen; null if there is none.
    virtual std::unique_ptr<QPrinter> makeStandard() const;
    /// Has the last word on a printer that a person has chosen.
    virtual void settle(QPrinter&) const {}

private:
    std::shared_ptr<QPrinter> newPrinter() const;
    void preview(const Print& print, QWidget* above) const;
};

}  // namespace qt
