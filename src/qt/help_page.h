#pragma once

#include <QTextBrowser>

#include "ports/printer.h"
#include "qt/help_file.h"

namespace qt {

/// Shows the pages of a help file in the colours of the palette, and follows no link that leads out of it.
class HelpPage final : public QTextBrowser {
public:
    explicit HelpPage(const HelpFile& file);

    /// Marks each word of the page that begins as one of these.
    void mark(const QStringList& words);
    /// Prints the page, dark on white. Throws DeviceError if the printer refuses.
    void printOn(ports::Printer& printer) const;

protected:
    QVariant loadResource(int type, const QUrl& address) override;
    void changeEvent(QEvent* event) override;

private:
    void dress();

    const HelpFile& file_;
};

}  // namespace qt
