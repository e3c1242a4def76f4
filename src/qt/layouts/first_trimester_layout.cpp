#include <QGridLayout>
#include <QLineEdit>
#include <set>

#include "qt/key_filter.h"
#include "qt/layouts/exam_layouts.h"
#include "qt/layouts/obstetric_sheet_layout.h"
#include "qt/layouts/parts.h"
#include "qt/section.h"
#include "qt/theme.h"

namespace qt {
namespace {

using theme::kGrid;

const QString kHeading = QStringLiteral("Echographie du 1er Trimestre");

// The fields that hold texts of several lines.
const std::set<int> kLongTexts{7, 8, 9, 10, 23, 24, 25, 26, 34, 42};

/// The columns of the first trimester's fields.
class FirstTrimesterLayout : public ObstetricSheetLayout {
public:
    /// `circumferences` stand at the end of each embryo, in the window that has them.
    FirstTrimesterLayout(exams::FirstTrimesterSheet& sheet, FormWindow& window,
                         std::vector<forms::TextBox*> circumferences)
        : ObstetricSheetLayout(sheet, exams::kFirstTrimesterFields, kLongTexts, window),
          circumferences_(std::move(circumferences)) {}

    void build(const Strip& strip, const std::vector<forms::Button*>& actions) {
        ObstetricSheetLayout::build(
            strip, {.left = [this] { return leftColumn(); }, .right = [this] { return rightColumn(); }}, actions);
    }

private:
    QLayout* leftColumn() {
        auto* column = newColumn();
        auto* exam = new Section(QStringLiteral("Examen"));
        addRows(newFields(exam->body()), {1, 5, 6, 7});
        column->addWidget(exam, 1);
        auto* pelvis = new Section(QStringLiteral("Pelvis"));
        addRows(newFields(pelvis->body()), {8, 9, 10});
        column->addWidget(pelvis, 2);
        auto* sac = new Section(QStringLiteral("Sac ovulaire"));
        addRows(newFields(sac->body()), {11, 12, 13, 14});
        column->addWidget(sac);
        return column;
    }

    QLayout* rightColumn() {
        auto* column = newColumn();
        auto* count = new Section(QStringLiteral("Embryons"));
        auto* row = newRow(count->body());
        QWidget* number = narrow(sheet().fields(exams::first_trimester::kEmbryos), caption(15), 3);
        row->addWidget(newCaption(caption(15), number));
        row->addWidget(number);
        row->addWidget(multiplePanel());
        row->addStretch(1);
        column->addWidget(count);
        const auto frames = sheet().frames();
        for (std::size_t i = 0; i < frames.size(); ++i) {
            column->addWidget(embryo(*frames[i], exams::first_trimester::kFirstOfEmbryo[i],
                                     i < circumferences_.size() ? circumferences_[i] : nullptr),
                              2);
        }
        auto* end = new Section(QStringLiteral("Annexes et conclusion"));
        addRows(newFields(end->body()), {24, 25, 26});
        column->addWidget(end, 2);
        return column;
    }

    // Movements and nasal bone are phrases and want the width; the measures stand two by two.
    QWidget* embryo(forms::Frame& frame, int first, forms::TextBox* circumference) {
        Section* section = bind().section(frame);
        auto* grid = new QGridLayout(section->body());
        grid->setContentsMargins(0, 0, 0, 0);
        grid->setHorizontalSpacing(kGrid);
        grid->setVerticalSpacing(kGrid / 2);
        const auto put = [&](int row, int column, const QString& text, QWidget* widget, int span = 1) {
            grid->addWidget(newCaption(text, widget), row, column);
            grid->addWidget(widget, row, column + 1, 1, span);
        };
        const auto putField = [&](int row, int column, int offset, int span = 1) {
            put(row, column, caption(first + offset), field(first + offset), span);
        };
        putField(0, 0, 0, 3);
        putField(1, 0, 1);
        putField(1, 2, 2);
        putField(2, 0, 3);
        putField(2, 2, 4);
        putField(3, 0, 5);
        if (circumference) {
            QLineEdit* edit = bind().line(*circumference, QStringLiteral("C.A. (mm)"));
            walkOnAtEnter(edit);
            put(3, 2, QStringLiteral("C.A. (mm)"), edit);
        }
        putField(4, 0, 6, 3);
        putField(5, 0, 7, 3);
        grid->setRowStretch(5, 1);
        return section;
    }

    std::vector<forms::TextBox*> circumferences_;
};

}  // namespace

void layOutForm5(exams::Form5& form, FormWindow& window) {
    FirstTrimesterLayout layout(form.sheet, window, {&form.TxtCa1, &form.TxtCa2, &form.TxtCa3});
    layout.build({.kind = &form.sheet.TxtTypecho,
                  .ultrasound = &form.Command2,
                  .age = &form.sheet.LblAgeGesta,
                  .heading = kHeading},
                 {&form.CmdEnregis, &form.CmdPhotos, &form.CmdQuitter});
    layout.pressWithAlt(Qt::Key_D, form.Command2);
    layout.putAside({&form.Label31, &form.TxtNumFoet, &form.Label32});
}

void layOutForm7(exams::Form7& form, FormWindow& window) {
    FirstTrimesterLayout layout(form.sheet, window, {});
    layout.build({.kind = &form.sheet.TxtTypecho, .age = &form.sheet.LblAgeGesta, .heading = kHeading},
                 {&form.CmdModifs, &form.CmdQuitter});
    layout.pressWithAlt(Qt::Key_E, form.CmdModifs);
    layout.pressWithAlt(Qt::Key_Q, form.CmdQuitter);
}

}  // namespace qt
