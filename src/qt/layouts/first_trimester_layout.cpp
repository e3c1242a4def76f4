#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QPlainTextEdit>
#include <QPushButton>
#include <set>

#include "qt/binder.h"
#include "qt/key_filter.h"
#include "qt/layouts/exam_layouts.h"
#include "qt/layouts/exam_parts.h"
#include "qt/layouts/offer_panel_layout.h"
#include "qt/layouts/parts.h"
#include "qt/section.h"
#include "qt/theme.h"

namespace qt {
namespace {

using theme::kGrid;

// The fields that hold texts of several lines.
const std::set<int> kLongTexts{7, 8, 9, 10, 23, 24, 25, 26, 34, 42};

/// The writing and the correction window of the first trimester: what stands above, the fields, and the offers beside
/// them. The two differ in what the callers add.
class SheetLayout {
public:
    SheetLayout(exams::FirstTrimesterSheet& sheet, FormWindow& window)
        : sheet_(sheet), window_(window), bind_(window) {}

    Binder& bind() { return bind_; }

    /// `ultrasoundButton` stands beside the start by ultrasound; `circumferences` at the end of each embryo.
    void build(forms::Button* ultrasoundButton, const std::vector<forms::TextBox*>& circumferences,
               const std::vector<forms::Button*>& actions) {
        auto* all = newColumn(&window_, 2);
        all->addWidget(strip(ultrasoundButton));
        auto* body = newRow();
        body->setSpacing(2 * kGrid);
        body->addWidget(fields(circumferences), 1);
        body->addWidget(
            newOfferPanel(bind_, {sheet_.List1, sheet_.List2, sheet_.Calendar1, sheet_.Text1, sheet_.CmdEfface}));
        all->addLayout(body, 1);
        all->addLayout(actionRow(bind_, actions));
        window_.resize(1330, 710);
    }

private:
    QWidget* strip(forms::Button* ultrasoundButton) {
        ExamStrip strip(bind_, ExamStrip::Ground::Window);
        strip.identity(sheet_.LblNom, sheet_.LblPrenom, sheet_.LblNumInt);
        strip.value(QStringLiteral("Echographie N°"), narrow(sheet_.TxtNumEcho, QStringLiteral("Echographie N°"), 3));
        strip.value(QStringLiteral("Date de l'Examen"), narrow(sheet_.TxtDate, QStringLiteral("Date de l'Examen"), 10));
        strip.value(QStringLiteral("Type"), narrow(sheet_.TxtTypecho, QStringLiteral("Type"), 2));
        strip.value(QStringLiteral("Appareil"), bind_.label(sheet_.LblMachine));
        strip.value(QStringLiteral("en service"), bind_.label(sheet_.LblDateCirc));
        strip.nextLine();
        for (const int date : {2, 3, 4}) {
            strip.value(caption(date), narrow(sheet_.Txt1Ter(date), caption(date), 10));
        }
        if (ultrasoundButton) {
            strip.add(bind_.button(*ultrasoundButton));
        }
        strip.value(QStringLiteral("Age Gestationnel"), bind_.label(sheet_.LblAgeGesta));
        strip.value(QStringLiteral("Poids"), narrow(sheet_.TxtPds, QStringLiteral("Poids"), 4));
        strip.value(QStringLiteral("Taille"), narrow(sheet_.TxtTaille, QStringLiteral("Taille"), 4));
        strip.value(caption(0), narrow(sheet_.Txt1Ter(0), caption(0), 5));
        return strip.widget();
    }

    QWidget* fields(const std::vector<forms::TextBox*>& circumferences) {
        auto* sheet = new QWidget;
        auto* columns = newRow(sheet);
        columns->setSpacing(2 * kGrid);
        columns->addLayout(leftColumn(), 1);
        columns->addLayout(rightColumn(circumferences), 1);
        return scrolling(sheet);
    }

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

    QLayout* rightColumn(const std::vector<forms::TextBox*>& circumferences) {
        auto* column = newColumn();
        auto* count = new Section(QStringLiteral("Embryons"));
        auto* row = newRow(count->body());
        QWidget* number = narrow(sheet_.Txt1Ter(15), caption(15), 3);
        row->addWidget(newCaption(caption(15), number));
        row->addWidget(number);
        row->addWidget(multiplePanel(bind_, sheet_.Frame5, {&sheet_.CmdJ1, &sheet_.CmdJ2, &sheet_.CmdJ3}));
        row->addStretch(1);
        column->addWidget(count);
        const auto frames = sheet_.frames();
        for (std::size_t i = 0; i < frames.size(); ++i) {
            column->addWidget(embryo(*frames[i], exams::first_trimester::kFirstOfEmbryo[i],
                                     i < circumferences.size() ? circumferences[i] : nullptr),
                              2);
        }
        auto* end = new Section(QStringLiteral("Annexes et conclusion"));
        addRows(newFields(end->body()), {24, 25, 26});
        column->addWidget(end, 2);
        return column;
    }

    // Movements and nasal bone are phrases and want the width; the measures stand two by two.
    QWidget* embryo(forms::Frame& frame, int first, forms::TextBox* circumference) {
        Section* section = bind_.section(frame);
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
            put(3, 2, QStringLiteral("C.A. (mm)"), bind_.line(*circumference, QStringLiteral("C.A. (mm)")));
        }
        putField(4, 0, 6, 3);
        putField(5, 0, 7, 3);
        grid->setRowStretch(5, 1);
        return section;
    }

    void addRows(QFormLayout* rows, std::initializer_list<int> indexes) {
        for (const int index : indexes) {
            rows->addRow(caption(index), field(index));
        }
    }

    QWidget* field(int index) {
        QWidget* widget = nullptr;
        if (kLongTexts.contains(index)) {
            widget = bind_.memo(sheet_.Txt1Ter(index), caption(index));
            widget->setMinimumHeight(kMemoHeight);
        } else {
            widget = bind_.line(sheet_.Txt1Ter(index), caption(index));
        }
        walkOnAtEnter(widget);
        return widget;
    }

    QWidget* narrow(forms::TextBox& box, const QString& name, int characters) {
        return narrowLine(bind_, box, name, characters);
    }

    static QString caption(int index) {
        const auto row = std::ranges::find(exams::kFirstTrimesterFields, index, &responses::ExamField::index);
        return row->caption.toString();
    }

    exams::FirstTrimesterSheet& sheet_;
    FormWindow& window_;
    Binder bind_;
};

/// A button whose caption marks no letter.
void pressWithAlt(Qt::Key letter, const FormWindow& window, const forms::Button& button) {
    static_cast<QPushButton*>(window.widgetOf(button))->setShortcut(QKeyCombination(Qt::AltModifier, letter));
}

}  // namespace

void layOutForm5(exams::Form5& form, FormWindow& window) {
    SheetLayout layout(form.sheet, window);
    layout.build(&form.Command2, {&form.TxtCa1, &form.TxtCa2, &form.TxtCa3},
                 {&form.CmdEnregis, &form.CmdPhotos, &form.CmdQuitter});
    pressWithAlt(Qt::Key_D, window, form.Command2);
    // Nothing reads these three; they have no place of their own on the sheet.
    auto* spare = new QWidget(&window);
    auto* row = newRow(spare);
    row->addWidget(layout.bind().label(form.Label31));
    row->addWidget(layout.bind().line(form.TxtNumFoet, form.Label31.text()));
    row->addWidget(layout.bind().label(form.Label32));
    spare->hide();
}

void layOutForm7(exams::Form7& form, FormWindow& window) {
    SheetLayout(form.sheet, window).build(nullptr, {}, {&form.CmdModifs, &form.CmdQuitter});
    pressWithAlt(Qt::Key_E, window, form.CmdModifs);
    pressWithAlt(Qt::Key_Q, window, form.CmdQuitter);
}

}  // namespace qt
