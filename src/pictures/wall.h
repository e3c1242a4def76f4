#pragma once

#include <QSize>
#include <QStringList>

#include "forms/controls.h"
#include "ports/boxes.h"

namespace pictures {

/// A wall of thumbnails that shows a list of picture files page by page, the path of each beside it.
class Wall {
public:
    static constexpr int kPlaces = 20;
    /// The largest thumbnail, in pixels.
    static constexpr QSize kThumbnail{240, 180};

    /// The places are numbered from 0.
    Wall(forms::Array<forms::Image>& pictures, forms::Array<forms::TextBox>& paths, ports::Boxes& boxes)
        : pictures_(pictures), paths_(paths), boxes_(boxes) {}

    void clear();
    /// The next page is the first.
    void restart() { next_ = 0; }
    /// Shows the next twenty of the list; behind the last page the first one comes again. A file that is gone leaves
    /// its place empty, with no path; for one that can't be read there is a message.
    void showNext(const QStringList& files);

private:
    void showAt(int place, const QString& file);

    forms::Array<forms::Image>& pictures_;
    forms::Array<forms::TextBox>& paths_;
    ports::Boxes& boxes_;
    int next_ = 0;
};

}  // namespace pictures
