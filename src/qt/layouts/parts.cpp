#include "qt/layouts/parts.h"

#include <QLabel>
#include <QScrollArea>
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
