#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <set>

#include "qt/key_filter.h"
#include "qt/layouts/exam_parts.h"
#include "qt/layouts/gynaecology_layouts.h"
#include "qt/layouts/gynaecology_strip.h"
#include "qt/layouts/offer_panel_layout.h"
#include "qt/layouts/parts.h"
#include "qt/section.h"
#include "qt/theme.h"

namespace qt {
namespace {

using theme::kGrid;

// The fields that hold texts of several lines.
const std::set<int> kLongTexts{5, 12, 15, 16, 17, 18, 19, 20, 26, 35, 36};

constexpr int kIndicationHeight = 60;

/// The writing and the correction window of gynaecology: what stands above, the fields of both pages, the offers beside
/// them. The two differ in their actions.
class SheetLayout {
public:
    SheetLayout(gyneco::GynaecologySheet& sheet, FormWindow& window) : sheet_(sheet), window_(window), bind_(window) {}

    void build(const std::vector<forms::Button*>& actions) {
        auto* all = newColumn(&window_, 2);
        all->addWidget(gynaecologyStrip(bind_, sheet_));
        auto* body = newRow();
        body->setSpacing(2 * kGrid);
        body->addWidget(fields(), 1);
        body->addWidget(newOfferPanel(
            bind_, {sheet_.List1, sheet_.List2, sheet_.Calendar1, sheet_.Text1, sheet_.CmdEfface}, &sheet_.Text2));
        all->addLayout(body, 1);
        all->addLayout(actionRow(bind_, actions));
        window_.resize(1330, 710);
    }

private:
    QWidget* fields() {
        auto* page = new QWidget;
        auto* column = newColumn(page);
        column->addLayout(titleRow());
        // The two pages take turns in the right column.
        auto* columns = new QGridLayout;
        columns->setHorizontalSpacing(2 * kGrid);
        columns->addLayout(examAndUterus(), 0, 0);
        columns->addLayout(adnexaToConclusion(), 0, 1);
        columns->addWidget(monitoring(), 0, 1);
        columns->setColumnStretch(0, 1);
        columns->setColumnStretch(1, 1);
        column->addLayout(columns, 1);
        return scrolling(page);
    }

    // Behind the title the field that both pages have and no record keeps.
    QLayout* titleRow() {
        auto* row = newRow();
        row->addWidget(pageTitle(bind_, sheet_.pages.Label1), 1);
        QLineEdit* spare = narrowLine(bind_, sheet_.TxtGyneco(0), QStringLiteral("Champ libre"), 16);
        spare->setToolTip(QStringLiteral("Champ libre, qui n'est pas enregistré"));
        row->addWidget(spare);
        return row;
    }

    QLayout* examAndUterus() {
        auto* column = newColumn();
        auto* exam = pageSection(bind_, sheet_.pages.Frame2);
        auto* examRows = newFields(exam->body());
        addRows(examRows, {1, 2, 3, 4});
        QWidget* indication = field(5);
        indication->setFixedHeight(kIndicationHeight);
        examRows->addRow(caption(5), indication);
        exam->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Maximum);
        column->addWidget(exam);
        auto* uterus = pageSection(bind_, sheet_.pages.Frame3);
        auto* rows = newFields(uterus->body());
        addRows(rows, {6});
        addShortRow(rows, {7, 8, 9});
        addRows(rows, {10, 11, 12, 13, 14, 15});
        column->addWidget(uterus, 1);
        column->addStretch();
        return column;
    }

    QLayout* adnexaToConclusion() {
        auto* column = newColumn();
        auto* adnexa = pageSection(bind_, sheet_.pages.Frame4);
        addRows(newFields(adnexa->body()), {16, 17, 18, 19});
        column->addWidget(adnexa, 4);
        auto* douglas = pageSection(bind_, sheet_.pages.Frame5);
        newColumn(douglas->body())->addWidget(field(20));
        column->addWidget(douglas, 1);
        auto* mass = pageSection(bind_, sheet_.pages.Frame6);
        addRows(newFields(mass->body()), {21, 22, 23, 24, 25});
        column->addWidget(mass);
        auto* conclusion = pageSection(bind_, sheet_.pages.Frame7);
        newColumn(conclusion->body())->addWidget(field(26));
        column->addWidget(conclusion, 2);
        return column;
    }

    QWidget* monitoring() {
        auto* page = pageSection(bind_, sheet_.pages.Frame8);
        auto* groups = newColumn(page->body());
        addGroup(groups, {}, {27});
        addGroup(groups, QStringLiteral("Ovaire Droit"), {28, 29, 30});
        addGroup(groups, QStringLiteral("Ovaire gauche"), {31, 32, 33});
        addGroup(groups, QStringLiteral("Endomètre "), {34});
        addGroup(groups, {}, {35, 36});
        return page;
    }

    void addGroup(QBoxLayout* groups, const QString& title, std::initializer_list<int> indexes) {
        if (title.isEmpty()) {
            auto* rows = newFields(nullptr);
            groups->addLayout(rows);
            addRows(rows, indexes);
        } else {
            auto* section = new Section(title);
            groups->addWidget(section);
            addRows(newFields(section->body()), indexes, title);
        }
    }

    void addRows(QFormLayout* rows, std::initializer_list<int> indexes, const QString& group = {}) {
        for (const int index : indexes) {
            rows->addRow(caption(index), field(index, group));
        }
    }

    // A measure and those that follow it, on one line.
    void addShortRow(QFormLayout* rows, std::initializer_list<int> indexes) {
        auto* row = newRow();
        for (const int index : indexes) {
            QWidget* widget = field(index);
            if (index != *indexes.begin()) {
                row->addWidget(newCaption(caption(index), widget));
            }
            row->addWidget(widget, 1);
        }
        auto* label = new QLabel(caption(*indexes.begin()));
        label->setBuddy(row->itemAt(0)->widget());
        rows->addRow(label, row);
    }

    QWidget* field(int index, const QString& group = {}) {
        const QString name = group.isEmpty() ? caption(index) : group.trimmed() + QStringLiteral(", ") + caption(index);
        forms::TextBox& box = sheet_.TxtGyneco(index);
        QWidget* widget = nullptr;
        if (kLongTexts.contains(index)) {
            widget = bind_.memo(box, name);
            widget->setMinimumHeight(kMemoHeight);
        } else {
            widget = bind_.line(box, name);
        }
        walkOnAtEnter(widget);
        return widget;
    }

    static QString caption(int index) {
        const auto row = std::ranges::find(gyneco::kGynaecologyFields, index, &responses::ExamField::index);
        return row->caption.toString();
    }

    gyneco::GynaecologySheet& sheet_;
    FormWindow& window_;
    Binder bind_;
};

}  // namespace

void layOutForm16(gyneco::Form16& form, FormWindow& window) {
    SheetLayout(form.sheet, window)
        .build({&form.CmdEnregis, &form.sheet.Command1, &form.sheet.Command2, &form.CmdPhotos, &form.CmdQuitter});
}

void layOutForm17(gyneco::Form17& form, FormWindow& window) {
    SheetLayout(form.sheet, window)
        .build({&form.CmdModifs, &form.sheet.Command1, &form.sheet.Command2, &form.CmdQuitter});
}

}  // namespace qt
