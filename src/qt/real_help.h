#pragma once

#include <QPointer>

#include "ports/boxes.h"
#include "ports/help.h"
#include "qt/help_window.h"

namespace qt {

/// The viewer of the help file. It says so if the file is missing or can't be read.
class RealHelp final : public ports::Help {
public:
    /// A file that is missing is also looked for in `otherFolder`, under its name.
    explicit RealHelp(ports::Boxes& boxes, QString otherFolder = {})
        : boxes_(boxes), otherFolder_(std::move(otherFolder)) {}
    ~RealHelp() override;
    void showContents(const QString& file) override;

private:
    QString placeOf(const QString& file) const;
    void complain(const QString& what, const QString& file);

    ports::Boxes& boxes_;
    QString otherFolder_;
    QPointer<HelpWindow> window_;
};

}  // namespace qt
