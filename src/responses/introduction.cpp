#include "responses/introduction.h"

#include <QFileInfo>

#include "base/quoted_items.h"
#include "base/text_file.h"

namespace responses {

QString Introduction::read() const {
    if (!QFileInfo::exists(path_)) {
        return {};
    }
    const QStringList items = base::readItems(base::readTextFile(path_));
    return items.isEmpty() ? QString() : items.last();
}

void Introduction::write(const QString& text) const {
    base::replaceTextFile(path_, base::quotedItem(text) + QStringLiteral("\r\n"));
}

}  // namespace responses
