#include "qt/form_window.h"

#include <QAction>
#include <QApplication>
#include <QCloseEvent>
#include <QScreen>
#include <QTimer>
#include <QWindow>

#include "forms/controls.h"
#include "forms/desk.h"
#include "qt/theme.h"

namespace qt {
namespace {

constexpr int kMiddleLightness = 128;

bool seen(const forms::Control& control) {
    return control.visible() && !control.covered();
}

}  // namespace

FormWindow::FormWindow(forms::Form& form) : form_(form) {
    setObjectName(form.name());
    setWindowTitle(form.title());
    subscriptions_.push_back(form.observePointer(
        [this] { form_.pointer() == forms::Pointer::Busy ? setCursor(Qt::WaitCursor) : unsetCursor(); }));
    subscriptions_.push_back(form.observeTitle([this] { setWindowTitle(form_.title()); }));
}

void FormWindow::bind(forms::Control& control, QWidget* widget, std::function<void(forms::Aspect, int)> sync) {
    widget->setObjectName(control.label());
    widgets_[&control] = widget;
    controls_[widget] = &control;
    widget->installEventFilter(this);
    widget->setEnabled(control.enabled());
    // A widget that stands nowhere yet and is shown would come up as a window of its own.
    if (!seen(control) || !widget->isWindow()) {
        widget->setVisible(seen(control));
    }
    if (const auto* text = dynamic_cast<const forms::TextControl*>(&control);
        text && (text->color() || text->back() || text->points())) {
        syncLook(*text, widget);
    }
    subscriptions_.push_back(control.observe([this, &control, widget, sync](forms::Aspect aspect, int index) {
        if (aspect == forms::Aspect::Visible || aspect == forms::Aspect::Enabled) {
            syncState(control, widget);
        } else if (aspect == forms::Aspect::Focus) {
            widget->setFocus(Qt::OtherFocusReason);
        } else if (const auto* text = dynamic_cast<const forms::TextControl*>(&control);
                   text && (aspect == forms::Aspect::Colors || aspect == forms::Aspect::Points)) {
            syncLook(*text, widget);
        } else {
            sync(aspect, index);
        }
    }));
}

void FormWindow::alsoBind(forms::Control& control, std::function<void(forms::Aspect, int)> sync) {
    subscriptions_.push_back(control.observe(std::move(sync)));
}

void FormWindow::bind(forms::Control& control, QAction* action, std::function<void()> sync) {
    action->setObjectName(control.label());
    actions_[&control] = action;
    const auto follow = [&control, action, sync] {
        action->setVisible(control.visible());
        action->setEnabled(control.enabled());
        sync();
    };
    follow();
    subscriptions_.push_back(control.observe([follow](forms::Aspect, int) { follow(); }));
}

QAction* FormWindow::actionOf(const forms::Control& control) const {
    const auto it = actions_.find(&control);
    return it == actions_.end() ? nullptr : it->second;
}

QWidget* FormWindow::widgetOf(const forms::Control& control) const {
    const auto it = widgets_.find(&control);
    return it == widgets_.end() ? nullptr : it->second;
}

void FormWindow::act(std::function<void()> handler) {
    if (!alive_) {
        return;
    }
    if (form_.desk().acting()) {
        QTimer::singleShot(0, this, [this, handler] { act(handler); });
        return;
    }
    form_.desk().act(handler);
}

void FormWindow::retire() {
    alive_ = false;
    subscriptions_.clear();
    for (const auto& release : releases_) {
        release();
    }
    hide();
    deleteLater();
}

void FormWindow::present() {
    if (!placed_) {
        placed_ = true;
        if (form_.exclusive()) {
            standInFrontOf(QApplication::activeWindow());
        }
        const QRect room = screen()->availableGeometry();
        const QSize wanted = testAttribute(Qt::WA_Resized) ? size() : sizeHint();
        resize(wanted.expandedTo(minimumSizeHint()).boundedTo(room.size()));
        move(room.topLeft() + QPoint(room.width() - width(), room.height() - height()) / 2);
    }
    show();
    raise();
    activateWindow();
    showFocus();
}

void FormWindow::standInFrontOf(const QWidget* behind) {
    setWindowModality(Qt::ApplicationModal);
    winId();
    if (behind && behind != this) {
        windowHandle()->setTransientParent(behind->windowHandle());
    }
}

void FormWindow::closeEvent(QCloseEvent* event) {
    // The form decides: it takes its window away itself.
    event->ignore();
    act([this] { form_.close(); });
}

bool FormWindow::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::FocusIn || event->type() == QEvent::FocusOut) {
        static_cast<QWidget*>(watched)->update();
    }
    if (alive_ && event->type() == QEvent::FocusIn) {
        forms::Control* control = controls_.at(watched);
        if (form_.focused() != control) {
            act([this, control] { form_.moveFocus(*control); });
        }
    }
    return QWidget::eventFilter(watched, event);
}

void FormWindow::syncState(forms::Control& control, QWidget* widget) {
    widget->setVisible(seen(control));
    widget->setEnabled(control.enabled());
}

void FormWindow::syncLook(const forms::TextControl& control, QWidget* widget) {
    if (control.points()) {
        QFont font = widget->font();
        font.setPointSize(*control.points());
        widget->setFont(font);
    }
    QPalette palette;
    if (control.back()) {
        const QColor back = QColor::fromRgb(*control.back());
        palette.setColor(QPalette::Window, back);
        palette.setColor(QPalette::Base, back);
        // The palette's text may be as light as the colour behind it.
        const QColor text = back.lightness() > kMiddleLightness ? Qt::black : Qt::white;
        for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::Link}) {
            palette.setColor(role, text);
        }
    }
    if (control.color()) {
        const QColor text = theme::readable(QColor::fromRgb(*control.color()), palette.color(QPalette::Window));
        palette.setColor(QPalette::WindowText, text);
        palette.setColor(QPalette::Text, text);
    }
    widget->setAutoFillBackground(control.back().has_value());
    widget->setPalette(palette);
}

void FormWindow::showFocus() {
    QWidget* widget = form_.focused() ? widgetOf(*form_.focused()) : nullptr;
    if (!widget && !focusWidget()) {
        focusNextChild();
    } else if (widget) {
        widget->setFocus(Qt::OtherFocusReason);
    }
}

}  // namespace qt
