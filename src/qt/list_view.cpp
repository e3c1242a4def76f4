#include "qt/list_view.h"

namespace qt {

void ListView::showInTheMiddle() {
    if (currentIndex().isValid()) {
        scrollTo(currentIndex(), PositionAtCenter);
    }
}

void ListView::resizeEvent(QResizeEvent* event) {
    QListView::resizeEvent(event);
    showInTheMiddle();
}

}  // namespace qt
