#include "qt/layouts/parts.h"

#include <QEvent>
#include <QLabel>
#include <QScrollArea>
#include <QTimer>
#include <QWidget>

#include "qt/theme.h"

namespace qt {
namespace {

template <class Layout>
Layout* onGrid(Layout* layout, int margin) {
    const int edge = margin * theme::kGrid;
    layout->setContentsMargins(edge, edge, edge, edge);
    layout->setSpacing(theme::kGrid);
    return layout;
}

class Covered final : public QObject {
public:
    Covered(QWidget* panel, QWidget* picture, QWidget* back) : QObject(picture), panel_(panel), back_(back) {
        picture->installEventFilter(this);
        if (!picture->isHidden()) {
            panel->hide();
        }
    }

protected:
    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() == QEvent::ShowToParent) {
            cover();
        } else if (event->type() == QEvent::HideToParent) {
            uncover();
        }
        return false;
    }

private:
    void cover() {
        QWidget* focused = panel_->window()->focusWidget();
        left_ = focused && panel_->isAncestorOf(focused) ? focused : nullptr;
        panel_->hide();
        if (left_) {
            // The button comes up with the picture, a step later.
            QTimer::singleShot(0, back_, [back = back_] { back->setFocus(Qt::OtherFocusReason); });
        }
    }
    void uncover() {
        panel_->show();
        if (left_ && panel_->window()->focusWidget() == back_) {
            left_->setFocus(Qt::OtherFocusReason);
        }
    }

    QWidget* panel_;
    QWidget* back_;
    /// Where the keyboard was in the panel.
    QWidget* left_ = nullptr;
};

}  // namespace

QVBoxLayout* newColumn(QWidget* parent, int margin) {
    return onGrid(new QVBoxLayout(parent), margin);
}

QHBoxLayout* newRow(QWidget* parent, int margin) {
    return onGrid(new QHBoxLayout(parent), margin);
}

QLabel* newCaption(const QString& text, QWidget* field) {
    auto* caption = new QLabel(text);
    caption->setBuddy(field);
    return caption;
}

QWidget* scrolling(QWidget* content) {
    auto* area = new QScrollArea;
    area->setWidget(content);
    area->setWidgetResizable(true);
    area->setFrameShape(QFrame::NoFrame);
    area->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    area->setFocusPolicy(Qt::NoFocus);
    return area;
}

void coverWhileSeen(QWidget* panel, QWidget* picture, QWidget* back) {
    new Covered(panel, picture, back);
}

void setTabOrder(std::initializer_list<QWidget*> widgets) {
    QWidget* before = nullptr;
    for (QWidget* widget : widgets) {
        if (before) {
            QWidget::setTabOrder(before, widget);
        }
        before = widget;
    }
}

}  // namespace qt
