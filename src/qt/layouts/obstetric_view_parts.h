#pragma once

#include <QFormLayout>

#include "exams/obstetric_view.h"
#include "qt/layouts/exam_parts.h"

namespace qt {

// What the viewing windows of both obstetric families show alike.

/// The strip on top: the patient, the exam, its dating, the device. `heading` names the exam, if anything does.
QWidget* viewStrip(Binder& bind, exams::ObstetricView& form, forms::Label* heading = nullptr);

/// Who examined, when and how.
QWidget* examSection(Binder& bind, exams::ObstetricView& form);

/// The panel whose buttons bring one fetus in view.
QWidget* multiplePanel(Binder& bind, exams::FetusPanels& panels);

/// The buttons that lead to the dossier's other exams.
QWidget* steppingSection(Binder& bind, exams::ObstetricView& form);

/// A value that can be copied and takes as many lines as it needs.
QLabel* shownValue(Binder& bind, forms::Label& control);

/// A text of several lines as a row of its own.
void addMemoRow(Binder& bind, QFormLayout* rows, const QString& caption, forms::TextBox& box);

}  // namespace qt
