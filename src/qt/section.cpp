#include "qt/section.h"

#include <QFrame>
#include <QHBoxLayout>
#include <QVBoxLayout>

#include "qt/theme.h"

namespace qt {

Section::Section(const QString& title, QWidget* parent) : QWidget(parent), title_(new QLabel), body_(new QWidget) {
    title_->setFont(theme::sectionFont());
    title_->setForegroundRole(QPalette::Link);
    auto* rule = new QFrame;
    rule->setFrameShape(QFrame::HLine);
    rule->setFrameShadow(QFrame::Plain);
    rule->setForegroundRole(QPalette::Mid);
    auto* head = new QHBoxLayout;
    head->addWidget(title_);
    head->addWidget(rule, 1);
    auto* all = new QVBoxLayout(this);
    all->setContentsMargins(0, 0, 0, 0);
    all->setSpacing(theme::kGrid);
    all->addLayout(head);
    all->addWidget(body_, 1);
    setTitle(title);
}

void Section::setTitle(const QString& title) {
    title_->setText(title);
    setAccessibleName(title);
}

}  // namespace qt
