#include "port/front_windows.h"

#include <QApplication>
#include <QEvent>
#include <algorithm>
#include <ranges>

#include "qt/form_window.h"

namespace port {

FrontWindows::FrontWindows() {
    qApp->installEventFilter(this);
}

bool FrontWindows::giveBackInput() {
    std::erase_if(order_, [](const QPointer<QWidget>& window) { return !window; });
    if (QApplication::activeWindow()) {
        return false;
    }
    const auto shown = std::ranges::find_if(std::views::reverse(order_), &QWidget::isVisible,
                                            [](const QPointer<QWidget>& window) -> QWidget& { return *window; });
    if (shown == order_.rend()) {
        return false;
    }
    QApplication::setActiveWindow(*shown);
    return true;
}

bool FrontWindows::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::WindowActivate && dynamic_cast<qt::FormWindow*>(watched)) {
        auto* window = static_cast<QWidget*>(watched);
        std::erase(order_, window);
        order_.emplace_back(window);
    }
    return false;
}

}  // namespace port
