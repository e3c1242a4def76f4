#pragma once

#include <QString>

#include "forms/desk.h"
#include "ports/boxes.h"
#include "ports/clipboard.h"
#include "ports/clock.h"
#include "ports/file_dialogs.h"
#include "ports/font_dialog.h"
#include "ports/help.h"
#include "ports/picture_source.h"
#include "ports/printer.h"
#include "ports/settings.h"

namespace ports {

/// What a program is handed of the machine.
struct Machine {
    Clock& clock;
    Settings& settings;
    Boxes& boxes;
    FileDialogs& fileDialogs;
    Help& help;
    Printers& printers;
    FontDialog& fontDialog;
    Clipboard& clipboard;
    PictureSource& pictureSource;
    /// The program's own folder, with no closing separator.
    QString programFolder;

    /// The file of the manual.
    QString manual() const { return programFolder + QStringLiteral("/VERANOX.HLP"); }
};

/// What a window reaches of the world around it: the machine and the other windows.
struct Surroundings : Machine {
    forms::Desk& desk;
};

}  // namespace ports
