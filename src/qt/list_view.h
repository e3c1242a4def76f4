#pragma once

#include <QListView>

namespace qt {

/// A list whose chosen line stays in sight: in the middle when the list is opened there or gets another size.
class ListView final : public QListView {
public:
    void showInTheMiddle();

protected:
    void resizeEvent(QResizeEvent* event) override;
};

}  // namespace qt
