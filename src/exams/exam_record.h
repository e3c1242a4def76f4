#pragma once

#include <QString>
#include <span>

#include "forms/form.h"
#include "responses/exam_field.h"
#include "store/recordset.h"

namespace exams {

// Between the controls of a window and the record that is open in the cursor, row by row, as texts. A row whose control
// the window doesn't have, or that isn't saved, is passed over. `array` is the name of the window's array of fields.

/// Writes each control's text into its field. Throws what `Recordset::set` throws.
void writeRecord(const forms::Form& form, const QString& array, std::span<const responses::ExamField> rows,
                 store::Recordset& record);

/// Writes each field into its control, a null as nothing.
void readRecord(const forms::Form& form, const QString& array, std::span<const responses::ExamField> rows,
                const store::Recordset& record);

/// A field of a record and the control of a viewing window that shows it; `index` is -1 outside an array.
struct ShownField {
    QStringView control;
    int index;
    QStringView field;
};

/// Writes each field into its control, which the window has, a null as nothing.
void showFields(const forms::Form& form, std::span<const ShownField> fields, const store::Recordset& record);

}  // namespace exams
