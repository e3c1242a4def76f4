#pragma once

#include <QPointer>

#include "ports/boxes.h"
#include "ports/help.h"
#include "ports/printer.h"
#include "qt/help_window.h"

namespace qt {

/// The viewer of the help file. It says so if the file is missing or can't be read.
class RealHelp final : public ports::Help {
public:
    /// A file that is missing is also looked for in `otherFolder`, under its name.
    RealHelp(ports::Boxes& boxes, ports::Printers& printers, QString otherFolder = {})
        : boxes_(boxes), printers_(printers), otherFolder_(std::move(otherFolder)) {}
    ~RealHelp() override;
    void showContents(const QString& file) override;
    void showChapter(const QString& file, const QString& window) override;

private:
    /// Makes the window if it isn't there. False, with a message, if the file is missing or can't be read.
    bool open(const QString& file);
    void standInFrontOfModal();
    QString placeOf(const QString& file) const;
    void complain(const QString& what, const QString& file);

    ports::Boxes& boxes_;
    ports::Printers& printers_;
    QString otherFolder_;
    QPointer<HelpWindow> window_;
};

}  // namespace qt
