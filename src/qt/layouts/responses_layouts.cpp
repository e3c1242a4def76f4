#include "qt/layouts/responses_layouts.h"

#include <QGridLayout>
#include <QLabel>
#include <QListView>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>

#include "qt/binder.h"
#include "qt/layouts/parts.h"
#include "qt/section.h"
#include "qt/theme.h"

namespace qt {
namespace {

using theme::kGrid;

constexpr int kTextHeight = 80;
constexpr int kRubricWidth = 176;

/// The editor of the stored responses: the rubrics at the left, the open one at the right.
class ResponsesLayout {
public:
    ResponsesLayout(responses::Form9& form, FormWindow& window) : form_(form), window_(window), bind_(window) {}

    void build() {
        auto* all = newColumn(&window_, 2);
        auto* head = bind_.label(form_.Label1);
        head->setFont(theme::headingFont());
        all->addWidget(head);
        auto* body = newRow();
        body->setSpacing(3 * kGrid);
        body->addLayout(rubrics(), 0);
        body->addLayout(editor(), 1);
        all->addLayout(body, 1);
        window_.resize(1280, 680);
    }

private:
    QLayout* rubrics() {
        auto* grid = new QGridLayout;
        grid->setHorizontalSpacing(2 * kGrid);
        grid->setVerticalSpacing(2 * kGrid);
        grid->addLayout(stack({&form_.Frame2, &form_.Frame3}), 0, 0);
        grid->addLayout(stack({&form_.Frame4, &form_.Frame6, &form_.Frame8}), 0, 1);
        grid->addWidget(group(form_.Frame5, 4), 1, 0, 1, 2);
        grid->setColumnStretch(0, 1);
        grid->setColumnStretch(1, 1);
        grid->setRowStretch(2, 1);
        return grid;
    }

    QLayout* stack(std::initializer_list<forms::Frame*> frames) {
        auto* column = newColumn();
        column->setSpacing(2 * kGrid);
        for (forms::Frame* frame : frames) {
            column->addWidget(group(*frame, 2));
        }
        column->addStretch(1);
        return column;
    }

    QWidget* group(forms::Frame& frame, int columns) {
        Section* section = bind_.section(frame);
        auto* grid = new QGridLayout(section->body());
        grid->setContentsMargins(0, 0, 0, 0);
        grid->setSpacing(kGrid / 2);
        int place = 0;
        for (forms::Control* control : form_.controls()) {
            if (control->holder() == &frame) {
                auto* button = bind_.button(static_cast<forms::Button&>(*control));
                button->setMinimumWidth(kRubricWidth);
                grid->addWidget(button, place / columns, place % columns);
                ++place;
            }
        }
        for (int column = 0; column < columns; ++column) {
            grid->setColumnStretch(column, 1);
        }
        return section;
    }

    QLayout* editor() {
        auto* column = newColumn();
        column->setSpacing(2 * kGrid);
        column->addWidget(openRubric(), 1);
        column->addWidget(introduction());
        auto* leave = newRow();
        leave->addStretch(1);
        leave->addWidget(bind_.button(form_.CmdQuitter));
        column->addLayout(leave);
        return column;
    }

    QWidget* openRubric() {
        Section* section = bind_.section(form_.Frame1);
        auto* column = newColumn(section->body());
        auto* list = bind_.list(form_.List1, QStringLiteral("Réponses de la rubrique"));
        list->setToolTip(QStringLiteral("Double-cliquez sur une réponse, ou Entrée, pour la modifier"));
        auto* number = newRow();
        number->addWidget(newCaption(QStringLiteral("Rubrique n°"), list));
        number->addWidget(bind_.label(form_.LblEspion));
        number->addStretch(1);
        column->addLayout(number);
        column->addWidget(list, 1);
        auto* text = memo(form_.Text1, QStringLiteral("Texte de la réponse"));
        column->addWidget(newCaption(QStringLiteral("Texte de la réponse"), text));
        column->addWidget(text);
        column->addLayout(closings());
        column->addLayout(buttons({&form_.CmdAjoute, &form_.CmdModif, &form_.CmdSupprime}));
        return section;
    }

    QLayout* closings() {
        auto* row = newRow();
        row->setSpacing(2 * kGrid);
        row->addWidget(new QLabel(QStringLiteral("Ensuite :")));
        for (forms::Option* option : {&form_.OBSuite, &form_.OBLigne, &form_.OBClot}) {
            row->addWidget(bind_.option(*option));
        }
        row->addStretch(1);
        return row;
    }

    QWidget* introduction() {
        Section* section = bind_.section(form_.Frame9);
        auto* column = newColumn(section->body());
        column->addWidget(memo(form_.TxtIntro, QStringLiteral("Introduction du compte rendu")));
        column->addLayout(buttons({&form_.CmdEnreg, &form_.CmdAnul}));
        return section;
    }

    QPlainTextEdit* memo(forms::TextBox& box, const QString& caption) {
        auto* edit = bind_.memo(box, caption);
        edit->setFixedHeight(kTextHeight);
        return edit;
    }

    QLayout* buttons(std::initializer_list<forms::Button*> controls) {
        auto* row = newRow();
        for (forms::Button* control : controls) {
            row->addWidget(bind_.button(*control));
        }
        row->addStretch(1);
        return row;
    }

    responses::Form9& form_;
    FormWindow& window_;
    Binder bind_;
};

}  // namespace

void layOutForm9(responses::Form9& form, FormWindow& window) {
    ResponsesLayout(form, window).build();
}

}  // namespace qt
