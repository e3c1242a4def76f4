#include "qt/layouts/obstetric_view_parts.h"

#include <QLabel>
#include <QPlainTextEdit>

#include "qt/layouts/parts.h"
#include "qt/section.h"
#include "qt/theme.h"

namespace qt {

QWidget* viewStrip(Binder& bind, exams::ObstetricView& form, forms::Label* heading) {
    ExamStrip strip(bind);
    strip.identity(form.LblNom, form.LblPrenom, form.LblNumInt);
    if (heading) {
        strip.add(pageTitle(bind, *heading));
    }
    strip.value(QStringLiteral("Echographie N°"), form.LblNumEcho);
    strip.value(QStringLiteral("Date de l'Examen"), form.LblDatExam);
    strip.value(QStringLiteral("Age Gestationnel"), form.LblAgeGesta);
    strip.nextLine();
    strip.value(QStringLiteral("DDR"), form.LblDDR);
    strip.value(QStringLiteral("DDG Théorique"), form.LblDG);
    strip.value(QStringLiteral("DDG US"), form.LblDGUS);
    strip.value(QStringLiteral("IMC"), form.LblIMC);
    strip.value(QStringLiteral("Appareil"), form.LblMachine);
    strip.value(QStringLiteral("en service"), form.LblDateCirc);
    return strip.widget();
}

QWidget* examSection(Binder& bind, exams::ObstetricView& form) {
    auto* exam = new Section(QStringLiteral("Examen"));
    auto* rows = newFields(exam->body());
    rows->addRow(QStringLiteral("Opérateur"), shownValue(bind, form.LblOperateur));
    rows->addRow(QStringLiteral("Examen du"), shownValue(bind, form.LblDatExamb));
    rows->addRow(QStringLiteral("Modalité d'examen"), shownValue(bind, form.LblModalites));
    rows->addRow(QStringLiteral("Conditions d'examen"), shownValue(bind, form.LblConditions));
    return exam;
}

QWidget* multiplePanel(Binder& bind, exams::FetusPanels& panels) {
    return multiplePanel(bind, panels.Frame5, {&panels.CmdJ1, &panels.CmdJ2, &panels.CmdJ3});
}

QWidget* steppingSection(Binder& bind, exams::ObstetricView& form) {
    Section* section = bind.section(form.Frame12);
    section->body()->setLayout(steppingRow(bind, {&form.CmdPrem, &form.CmdRec, &form.CmdAv, &form.CmdDer}));
    return section;
}

QLabel* shownValue(Binder& bind, forms::Label& control) {
    QLabel* label = bind.label(control);
    label->setWordWrap(true);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    return label;
}

void addMemoRow(Binder& bind, QFormLayout* rows, const QString& caption, forms::TextBox& box) {
    auto* memo = bind.memo(box, caption);
    memo->setMinimumHeight(kMemoHeight);
    rows->addRow(caption, memo);
}

}  // namespace qt
