#include "port/port_printers.h"

#include <QPrinter>

namespace port {

std::unique_ptr<QPrinter> PortPrinters::makeStandard() const {
    if (file_.isEmpty()) {
        return nullptr;
    }
    auto printer = std::make_unique<QPrinter>(QPrinter::HighResolution);
    settle(*printer);
    return printer;
}

// Where the system has printers, the dialog goes over to one of them.
void PortPrinters::settle(QPrinter& printer) const {
    if (!file_.isEmpty()) {
        printer.setOutputFormat(QPrinter::PdfFormat);
        printer.setOutputFileName(file_);
    }
}

}  // namespace port
