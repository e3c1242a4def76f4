#include "pictures/common_dialog.h"

namespace pictures {

bool openFile(ports::FileDialogs& dialogs, OpenFile& request) {
    const QString chosen = dialogs.open(QString(request.filter).replace(u':', u'|'), request.file);
    if (chosen.isEmpty()) {
        return false;
    }
    // What follows a zero is the rest of a buffer.
    request.file = chosen.section(QChar(u'\0'), 0, 0);
    return true;
}

}  // namespace pictures
