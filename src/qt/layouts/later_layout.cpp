#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QPushButton>
#include <QRadioButton>
#include <set>

#include "qt/key_filter.h"
#include "qt/layouts/exam_layouts.h"
#include "qt/layouts/fetus_grid.h"
#include "qt/layouts/obstetric_sheet_layout.h"
#include "qt/layouts/parts.h"
#include "qt/section.h"
#include "qt/theme.h"

namespace qt {
namespace {

using theme::kGrid;

// The fields that hold texts of several lines.
const std::set<int> kLongTexts{7, 8, 9, 10, 27, 30, 31, 32, 47, 64};

/// The columns of the later trimesters' fields: the mother's at the left, the fetus in view at the right, under both
/// what concludes the exam.
class LaterLayout : public ObstetricSheetLayout {
public:
    LaterLayout(exams::LaterSheet& sheet, FormWindow& window)
        : ObstetricSheetLayout(sheet, exams::kLaterFields, kLongTexts, window), count_(sheet.TxtNbrE) {}

    /// `choices` choose the number of fetuses, `zones` stand under the morphology, in the window that has them.
    void build(const Strip& strip, const std::vector<forms::Option*>& choices, const std::vector<forms::Button*>& zones,
               const std::vector<forms::Button*>& actions, QMenuBar* menu = nullptr) {
        ObstetricSheetLayout::build(strip,
                                    {.left = [this] { return mother(); },
                                     .right = [&] { return fetuses(choices, zones); },
                                     .foot = [this] { return conclusion(); }},
                                    actions, menu);
    }

private:
    QLayout* mother() {
        auto* column = newColumn();
        auto* exam = new Section(QStringLiteral("Examen"));
        addRows(newFields(exam->body()), {1, 5, 6, 7});
        column->addWidget(exam, 4);
        auto* pelvis = new Section(QStringLiteral("Pelvis"));
        addRows(newFields(pelvis->body()), {8, 9, 10});
        column->addWidget(pelvis, 5);
        auto* arteries = new Section(QStringLiteral("Artères utérines"));
        addRows(newFields(arteries->body()), {11, 12});
        column->addWidget(arteries);
        return column;
    }

    QLayout* fetuses(const std::vector<forms::Option*>& choices, const std::vector<forms::Button*>& zones) {
        auto* column = newColumn();
        addCount(column, choices);
        for (std::size_t i = 0; i < exams::FetusPanels::kMost; ++i) {
            Section* section = bind().section(*sheet().frames()[i]);
            const int first = exams::later::kFirstOfFetus[i];
            layOutFetus(section->body(), [this, first](int place, const QString&) { return field(first + place); });
            column->addWidget(section, 5);
        }
        if (!zones.empty()) {
            auto* row = newRow();
            row->addStretch(1);
            for (forms::Button* zone : zones) {
                row->addWidget(bind().button(*zone));
            }
            column->addLayout(row);
        }
        return column;
    }

    // The panel stands beside the number, or under it where the choices take the line.
    void addCount(QBoxLayout* column, const std::vector<forms::Option*>& choices) {
        auto* row = newRow();
        for (forms::Option* choice : choices) {
            auto* button = bind().option(*choice);
            walkOnAtEnter(button);
            row->addWidget(button);
        }
        const QString name = QStringLiteral("Nbr. de Foetus");
        QWidget* number = narrow(count_, name, 3);
        row->addWidget(newCaption(name, number));
        row->addWidget(number);
        column->addLayout(row);
        (choices.empty() ? static_cast<QBoxLayout*>(row) : column)->addWidget(multiplePanel());
        row->addStretch(1);
    }

    QWidget* conclusion() {
        auto* end = new Section(QStringLiteral("Annexes foetales et conclusion"));
        auto* row = newRow(end->body());
        for (const auto& [index, width] : {std::pair(30, 1), std::pair(31, 1), std::pair(32, 3)}) {
            QWidget* widget = field(index);
            row->addWidget(newCaption(caption(index), widget), 0, Qt::AlignTop);
            row->addWidget(widget, width);
        }
        return end;
    }

    forms::TextBox& count_;
};

}  // namespace

void layOutForm8(exams::Form8& form, FormWindow& window) {
    LaterLayout layout(form.sheet, window);
    layout.build({.kind = &form.TxtTypecho, .number = &form.lblNumEcho, .age = &form.LblAgeGesta},
                 {&form.Option1, &form.Option2, &form.Option3},
                 {&form.CmdZoneA, &form.CmdZoneB, &form.CmdZoneC, &form.CmdZoneD},
                 {&form.CmdEnregis, &form.CmdPhotos, &form.CmdQuitter}, layout.bind().menuBar());
    layout.putAside({&form.Label36, &form.TxtNumFoet, &form.Label37});
}

void layOutForm11(exams::Form11& form, FormWindow& window) {
    LaterLayout layout(form.sheet, window);
    layout.build({.age = &form.txtAgeGesta, .mode = QStringLiteral("Mode Correction")}, {}, {},
                 {&form.CmdModifs, &form.CmdQuitter});
    layout.pressWithAlt(Qt::Key_E, form.CmdModifs);
    layout.pressWithAlt(Qt::Key_Q, form.CmdQuitter);
}

}  // namespace qt
