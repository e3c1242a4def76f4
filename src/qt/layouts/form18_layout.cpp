#include <QComboBox>
#include <QFormLayout>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QPushButton>

#include "qt/layouts/exam_parts.h"
#include "qt/layouts/gynaecology_layouts.h"
#include "qt/layouts/gynaecology_strip.h"
#include "qt/layouts/parts.h"
#include "qt/section.h"
#include "qt/theme.h"

namespace qt {
namespace {

using theme::kGrid;

// A text of four lines.
constexpr int kTextHeight = 76;

class Form18Layout {
public:
    Form18Layout(gyneco::Form18& form, FormWindow& window) : form_(form), window_(window), bind_(window) {}

    void build() {
        auto* all = newColumn(&window_, 2);
        all->setMenuBar(bind_.menuBar());
        all->addWidget(gynaecologyStrip(bind_, form_));
        all->addWidget(pageTitle(bind_, form_.pages.Label1));
        auto* body = new QGridLayout;
        body->setHorizontalSpacing(3 * kGrid);
        body->addLayout(examAndConclusion(), 0, 0);
        // The two pages take turns beside the exam.
        auto* pelvic = newRow();
        pelvic->setSpacing(2 * kGrid);
        pelvic->addLayout(uterus(), 1);
        pelvic->addLayout(adnexaToMass(), 1);
        body->addLayout(pelvic, 0, 1);
        body->addWidget(monitoring(), 0, 1);
        body->setColumnStretch(0, 1);
        body->setColumnStretch(1, 2);
        all->addLayout(body, 1);
        all->addLayout(
            actionRow(bind_, {&form_.CmdCptGyn, &form_.CmdCptStim, &form_.Command2, &form_.Command3, &form_.Command1,
                              &form_.CmdModifs, &form_.CmdSupprime, &form_.HlbGyn, &form_.CmdQuitter}));
        window_.resize(1280, 700);
    }

private:
    QLayout* examAndConclusion() {
        auto* column = newColumn();
        auto* exam = pageSection(bind_, form_.pages.Frame2);
        auto* rows = newFields(exam->body());
        addCombo(rows, form_.CmbMedecin);
        rows->addRow(caption(u"LblDatExamb"), bind_.label(form_.LblDatExamb));
        addLine(rows, form_.TxtDdr);
        addCombo(rows, form_.CmbModExam);
        addCombo(rows, form_.CmbCondExam);
        addMemo(rows, form_.TxtGyneco(0))->setFixedHeight(kTextHeight);
        exam->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Maximum);
        column->addWidget(exam);
        auto* conclusion = pageSection(bind_, form_.pages.Frame7);
        newColumn(conclusion->body())->addWidget(memo(form_.TxtGyneco(21)));
        column->addWidget(conclusion, 1);
        column->addStretch();
        auto* others = new Section(QStringLiteral("Voir les autres Echos"));
        others->body()->setLayout(steppingRow(bind_, {&form_.CmdPrem, &form_.CmdRec, &form_.CmdAv, &form_.CmdDer}));
        others->setContentsMargins(kGrid / 2, 0, kGrid / 2, 0);
        others->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Maximum);
        column->addWidget(others);
        return column;
    }

    QLayout* uterus() {
        auto* column = newColumn();
        auto* section = pageSection(bind_, form_.pages.Frame3);
        auto* rows = newFields(section->body());
        addMemo(rows, form_.TxtGyneco(1));
        for (const int index : {2, 3, 4}) {
            addLine(rows, form_.TxtGyneco(index));
        }
        for (const int index : {5, 6, 7}) {
            addMemo(rows, form_.TxtGyneco(index));
        }
        addLine(rows, form_.TxtGyneco(8));
        addMemo(rows, form_.TxtGyneco(9));
        addMemo(rows, form_.TxtGyneco(10))->setMinimumHeight(kTextHeight);
        column->addWidget(section);
        return column;
    }

    QLayout* adnexaToMass() {
        auto* column = newColumn();
        auto* adnexa = pageSection(bind_, form_.pages.Frame4);
        auto* rows = newFields(adnexa->body());
        for (const int index : {11, 12, 13, 14}) {
            addMemo(rows, form_.TxtGyneco(index));
        }
        column->addWidget(adnexa, 4);
        auto* douglas = pageSection(bind_, form_.pages.Frame5);
        newColumn(douglas->body())->addWidget(memo(form_.TxtGyneco(15)));
        column->addWidget(douglas, 1);
        auto* mass = pageSection(bind_, form_.pages.Frame6);
        auto* lines = newFields(mass->body());
        for (int index = 16; index <= 20; ++index) {
            addLine(lines, form_.TxtGyneco(index));
        }
        column->addWidget(mass);
        return column;
    }

    QWidget* monitoring() {
        auto* page = pageSection(bind_, form_.pages.Frame8);
        auto* column = newColumn(page->body());
        auto* day = newFields(nullptr);
        column->addLayout(day);
        addLine(day, form_.TxtJStim);
        auto* ovaries = newRow();
        ovaries->setSpacing(3 * kGrid);
        column->addLayout(ovaries);
        ovaries->addWidget(group(QStringLiteral("Ovaire Droit"), {&form_.TxtDimD, &form_.TxtNbrFolD, &form_.TxtTFolD}));
        ovaries->addWidget(
            group(QStringLiteral("Ovaire gauche"), {&form_.TxtDimG, &form_.TxtNbrFolG, &form_.TxtTFolG}));
        column->addWidget(group(QStringLiteral("Endomètre "), {&form_.TxtEndom}));
        auto* remarks = newFields(nullptr);
        column->addLayout(remarks);
        addMemo(remarks, form_.Text1)->setFixedHeight(kTextHeight);
        addMemo(remarks, form_.Text2)->setFixedHeight(kTextHeight);
        column->addStretch(1);
        return page;
    }

    QWidget* group(const QString& title, std::initializer_list<forms::TextBox*> boxes) {
        auto* section = new Section(title);
        auto* rows = newFields(section->body());
        for (forms::TextBox* box : boxes) {
            const QString name = title.trimmed() + QStringLiteral(", ") + caption(*box);
            rows->addRow(caption(*box), bind_.line(*box, name));
        }
        return section;
    }

    void addCombo(QFormLayout* rows, forms::ComboBox& combo) {
        rows->addRow(caption(combo), bind_.combo(combo, caption(combo)));
    }

    void addLine(QFormLayout* rows, forms::TextBox& box) { rows->addRow(caption(box), bind_.line(box, caption(box))); }

    QWidget* addMemo(QFormLayout* rows, forms::TextBox& box) {
        QWidget* edit = memo(box);
        rows->addRow(caption(box), edit);
        return edit;
    }

    QWidget* memo(forms::TextBox& box) {
        auto* memo = bind_.memo(box, caption(box));
        memo->setMinimumHeight(kMemoHeight);
        return memo;
    }

    static QString caption(const forms::Control& control) {
        return control.index() < 0
                   ? caption(control.name())
                   : std::ranges::find(gyneco::kShownFields, control.index(), &responses::ExamField::index)
                         ->caption.toString();
    }

    static QString caption(QStringView control) {
        return std::ranges::find(gyneco::kShownFields, control, &responses::ExamField::control)->caption.toString();
    }

    gyneco::Form18& form_;
    FormWindow& window_;
    Binder bind_;
};

}  // namespace

void layOutForm18(gyneco::Form18& form, FormWindow& window) {
    Form18Layout(form, window).build();
}

}  // namespace qt
