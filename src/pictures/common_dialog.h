#pragma once

#include <QString>

#include "ports/file_dialogs.h"

namespace pictures {

/// What an open dialog is asked, and what it answers.
struct OpenFile {
    /// "Caption|*.ext|Caption|*.ext"; a colon parts as well as a bar.
    QString filter;
    /// The name that stands in the field at first; the full name of the file that was chosen.
    QString file{};
};

/// Shows the open dialog, which takes existing files only. True when a file was chosen; else the name stays.
bool openFile(ports::FileDialogs& dialogs, OpenFile& request);

}  // namespace pictures
