#include "qt/layouts/obstetric_sheet_layout.h"

#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QPushButton>

#include "qt/key_filter.h"
#include "qt/layouts/offer_panel_layout.h"
#include "qt/layouts/parts.h"
#include "qt/theme.h"

namespace qt {

using theme::kGrid;

ObstetricSheetLayout::ObstetricSheetLayout(exams::ObstetricSheet& sheet, std::span<const responses::ExamField> rows,
                                           std::set<int> longTexts, FormWindow& window)
    : sheet_(sheet), rows_(rows), longTexts_(std::move(longTexts)), window_(window), bind_(window) {}

void ObstetricSheetLayout::build(const Strip& parts, const Sheet& sheet, const std::vector<forms::Button*>& actions,
                                 QMenuBar* menu) {
    auto* all = newColumn(&window_, 2);
    if (menu) {
        all->setMenuBar(menu);
    }
    if (!parts.heading.isEmpty()) {
        auto* heading = new QLabel(parts.heading);
        heading->setFont(theme::headingFont());
        all->addWidget(heading);
    }
    all->addWidget(strip(parts));
    auto* body = newRow();
    body->setSpacing(2 * kGrid);
    body->addWidget(columns(sheet), 1);
    body->addWidget(
        newOfferPanel(bind_, {sheet_.List1, sheet_.List2, sheet_.Calendar1, sheet_.Text1, sheet_.CmdEfface}));
    all->addLayout(body, 1);
    all->addLayout(actionRow(bind_, actions));
    window_.resize(1330, 710);
}

QWidget* ObstetricSheetLayout::strip(const Strip& parts) {
    ExamStrip strip(bind_, ExamStrip::Ground::Window);
    strip.identity(sheet_.LblNom, sheet_.LblPrenom, sheet_.LblNumInt);
    const QString number = QStringLiteral("Echographie N°");
    const QString date = QStringLiteral("Date de l'Examen");
    strip.value(number, narrow(sheet_.TxtNumEcho, number, 3));
    if (parts.number) {
        strip.add(bind_.label(*parts.number));
    }
    strip.value(date, narrow(sheet_.examDate, date, 10));
    if (parts.kind) {
        strip.value(QStringLiteral("Type"), narrow(*parts.kind, QStringLiteral("Type"), 2));
    }
    strip.value(QStringLiteral("Appareil"), sheet_.LblMachine);
    strip.value(QStringLiteral("en service"), sheet_.LblDateCirc);
    strip.nextLine();
    return dating(parts, strip);
}

QWidget* ObstetricSheetLayout::dating(const Strip& parts, ExamStrip& strip) {
    using namespace exams::sheet_fields;
    for (const int date : {kLastPeriod, kTheoreticalStart, kUltrasoundStart}) {
        strip.value(caption(date), narrow(sheet_.fields(date), caption(date), 10));
    }
    if (parts.ultrasound) {
        strip.add(bind_.button(*parts.ultrasound));
    }
    const QString age = QStringLiteral("Age Gestationnel");
    if (parts.age->kind() == forms::Kind::TextBox) {
        strip.value(age, narrow(static_cast<forms::TextBox&>(*parts.age), age, 5));
    } else {
        strip.value(age, static_cast<forms::Label&>(*parts.age));
    }
    strip.value(QStringLiteral("Poids"), narrow(sheet_.TxtPds, QStringLiteral("Poids"), 4));
    strip.value(QStringLiteral("Taille"), narrow(sheet_.TxtTaille, QStringLiteral("Taille"), 4));
    strip.value(caption(kBodyMass), narrow(sheet_.fields(kBodyMass), caption(kBodyMass), 5));
    if (!parts.mode.isEmpty()) {
        auto* mode = new QLabel(parts.mode);
        mode->setFont(theme::headingFont());
        mode->setContentsMargins(2 * kGrid, 0, 0, 0);
        strip.add(mode);
    }
    return strip.widget();
}

QWidget* ObstetricSheetLayout::columns(const Sheet& parts) {
    constexpr int kColumnsToFoot = 4;
    auto* sheet = new QWidget;
    auto* all = newColumn(sheet);
    auto* columns = newRow();
    columns->setSpacing(2 * kGrid);
    columns->addLayout(parts.left(), 1);
    columns->addLayout(parts.right(), 1);
    all->addLayout(columns, kColumnsToFoot);
    if (parts.foot) {
        all->addWidget(parts.foot(), 1);
    }
    return scrolling(sheet);
}

QString ObstetricSheetLayout::caption(int index) const {
    return std::ranges::find(rows_, index, &responses::ExamField::index)->caption.toString();
}

QWidget* ObstetricSheetLayout::field(int index) {
    QWidget* widget = nullptr;
    if (longTexts_.contains(index)) {
        widget = bind_.memo(sheet_.fields(index), caption(index));
        widget->setMinimumHeight(kMemoHeight);
    } else {
        widget = bind_.line(sheet_.fields(index), caption(index));
    }
    walkOnAtEnter(widget);
    return widget;
}

QLineEdit* ObstetricSheetLayout::narrow(forms::TextBox& box, const QString& name, int characters) {
    return narrowLine(bind_, box, name, characters);
}

void ObstetricSheetLayout::addRows(QFormLayout* rows, std::initializer_list<int> indexes) {
    for (const int index : indexes) {
        rows->addRow(caption(index), field(index));
    }
}

QWidget* ObstetricSheetLayout::multiplePanel() {
    return qt::multiplePanel(bind_, sheet_.Frame5, {&sheet_.CmdJ1, &sheet_.CmdJ2, &sheet_.CmdJ3});
}

void ObstetricSheetLayout::pressWithAlt(Qt::Key letter, const forms::Button& button) {
    static_cast<QPushButton*>(window_.widgetOf(button))->setShortcut(QKeyCombination(Qt::AltModifier, letter));
}

void ObstetricSheetLayout::putAside(std::initializer_list<forms::TextControl*> controls) {
    auto* spare = new QWidget(&window_);
    auto* row = newRow(spare);
    for (forms::TextControl* control : controls) {
        if (control->kind() == forms::Kind::TextBox) {
            row->addWidget(bind_.line(static_cast<forms::TextBox&>(*control), control->name()));
        } else {
            row->addWidget(bind_.label(static_cast<forms::Label&>(*control)));
        }
    }
    spare->hide();
}

}  // namespace qt
