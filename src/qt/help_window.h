#pragma once

#include <QWidget>
#include <memory>

#include "qt/help_file.h"

class QTextBrowser;

namespace qt {

/// The pages of a help file. It is no form of the program: it stands by itself, and closing it destroys it.
class HelpWindow final : public QWidget {
public:
    /// The file must be readable.
    explicit HelpWindow(std::unique_ptr<HelpFile> file);

    /// Comes to the front with the contents.
    void showContents();

private:
    void layOut();

    std::unique_ptr<HelpFile> file_;
    QTextBrowser* pages_;
};

}  // namespace qt
