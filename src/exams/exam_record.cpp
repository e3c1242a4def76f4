#include "exams/exam_record.h"

#include "forms/controls.h"

namespace exams {
namespace {

forms::TextControl* controlOf(const forms::Form& form, const QString& array, const responses::ExamField& row) {
    return static_cast<forms::TextControl*>(row.index == responses::kOutside ? form.find(row.control)
                                                                             : form.find(array, row.index));
}

}  // namespace

void writeRecord(const forms::Form& form, const QString& array, std::span<const responses::ExamField> rows,
                 store::Recordset& record) {
    for (const responses::ExamField& row : rows) {
        const auto* control = controlOf(form, array, row);
        if (control && !row.field.isEmpty()) {
            record.set(row.field.toString(), control->text());
        }
    }
}

void readRecord(const forms::Form& form, const QString& array, std::span<const responses::ExamField> rows,
                const store::Recordset& record) {
    for (const responses::ExamField& row : rows) {
        auto* control = controlOf(form, array, row);
        if (control && !row.field.isEmpty()) {
            control->setText(record.text(row.field.toString()));
        }
    }
}

void showFields(const forms::Form& form, std::span<const ShownField> fields, const store::Recordset& record) {
    for (const ShownField& shown : fields) {
        auto* control = static_cast<forms::TextControl*>(form.find(shown.control, shown.index));
        control->setText(record.text(QString::fromRawData(shown.field.data(), shown.field.size())));
    }
}

}  // namespace exams
