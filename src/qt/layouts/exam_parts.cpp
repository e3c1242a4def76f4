#include "qt/layouts/exam_parts.h"

#include <QLineEdit>
#include <QPushButton>

#include "qt/key_filter.h"
#include "qt/layouts/parts.h"
#include "qt/section.h"
#include "qt/theme.h"

namespace qt {

using theme::kGrid;

QFormLayout* newFields(QWidget* parent) {
    auto* fields = new QFormLayout(parent);
    fields->setContentsMargins(0, 0, 0, 0);
    fields->setHorizontalSpacing(kGrid);
    fields->setVerticalSpacing(kGrid / 2);
    fields->setRowWrapPolicy(QFormLayout::DontWrapRows);
    fields->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    return fields;
}

ExamStrip::ExamStrip(Binder& bind, Ground ground) : bind_(bind), strip_(new QFrame), lines_(nullptr), line_(nullptr) {
    strip_->setFrameShape(QFrame::StyledPanel);
    strip_->setBackgroundRole(ground == Ground::Raised ? QPalette::Base : QPalette::Window);
    strip_->setAutoFillBackground(true);
    lines_ = newColumn(strip_);
    lines_->setContentsMargins(2 * kGrid, kGrid, 2 * kGrid, kGrid);
    lines_->setSpacing(kGrid / 2);
    nextLine();
}

void ExamStrip::nextLine() {
    line_ = newRow();
    line_->addStretch(1);
    lines_->addLayout(line_);
}

void ExamStrip::identity(forms::Label& surname, forms::Label& firstName, forms::Label& number) {
    for (forms::Label* name : {&surname, &firstName}) {
        QLabel* label = bind_.elidedLabel(*name);
        label->setFont(theme::headingFont());
        line_->insertWidget(line_->count() - 1, label);
    }
    value(QStringLiteral("N° Int"), number);
}

void ExamStrip::value(const QString& caption, forms::Label& shown) {
    value(caption, bind_.elidedLabel(shown));
}

void ExamStrip::value(const QString& caption, QWidget* value) {
    QLabel* label = newCaption(caption, value);
    label->setForegroundRole(QPalette::PlaceholderText);
    const int end = line_->count() - 1;
    line_->insertSpacing(end, kGrid);
    line_->insertWidget(end + 1, label);
    line_->insertWidget(end + 2, value);
}

void ExamStrip::add(QWidget* widget) {
    line_->insertWidget(line_->count() - 1, widget);
}

void setCharacters(QLineEdit* field, int characters) {
    const int width = field->fontMetrics().horizontalAdvance(QString(characters, u'0'));
    field->setFixedWidth(width + 2 * kGrid);
}

QLineEdit* narrowLine(Binder& bind, forms::TextBox& box, const QString& caption, int characters) {
    QLineEdit* edit = bind.line(box, caption);
    setCharacters(edit, characters);
    walkOnAtEnter(edit);
    return edit;
}

QLabel* pageTitle(Binder& bind, forms::Label& title) {
    QLabel* label = bind.label(title);
    label->setFont(theme::headingFont());
    label->setMargin(kGrid / 2);
    return label;
}

Section* pageSection(Binder& bind, forms::Frame& frame) {
    Section* section = bind.section(frame);
    section->setContentsMargins(kGrid / 2, 0, kGrid / 2, kGrid / 2);
    return section;
}

QLayout* steppingRow(Binder& bind, const std::array<forms::Button*, 4>& buttons) {
    const std::array names{QStringLiteral("Premier examen"), QStringLiteral("Examen précédent"),
                           QStringLiteral("Examen suivant"), QStringLiteral("Dernier examen")};
    auto* row = newRow();
    for (std::size_t i = 0; i < names.size(); ++i) {
        auto* button = bind.button(*buttons[i]);
        button->setAccessibleName(names[i]);
        button->setToolTip(names[i]);
        row->addWidget(button);
    }
    return row;
}

QLayout* actionRow(Binder& bind, const std::vector<forms::Button*>& actions) {
    auto* row = newRow();
    for (forms::Button* action : actions) {
        if (action == actions.back()) {
            row->addStretch(1);
        }
        row->addWidget(bind.button(*action));
    }
    return row;
}

QWidget* multiplePanel(Binder& bind, forms::Frame& frame, const std::vector<forms::Button*>& buttons) {
    auto* panel = new QFrame;
    auto* row = newRow(panel);
    row->setContentsMargins(kGrid, kGrid / 2, kGrid, kGrid / 2);
    auto* title = new QLabel(frame.text());
    row->addWidget(title);
    for (forms::Button* button : buttons) {
        row->addWidget(bind.button(*button));
    }
    row->addStretch(1);
    return bind.plain(frame, panel);
}

}  // namespace qt
