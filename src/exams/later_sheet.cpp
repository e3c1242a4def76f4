#include "exams/later_sheet.h"

namespace exams {
namespace {

SheetKind laterTrimesters(std::span<const responses::ExamField> rows) {
    return {.fields = QStringLiteral("Txt2T"),
            .last = kLastLaterField,
            .rows = rows,
            .date = QStringLiteral("txtDatexam"),
            .fetus = QStringLiteral("Foetus"),
            .firstOfFetus = later::kFirstOfFetus,
            .fieldsOfFetus = later::kFieldsOfFetus,
            .walkEnd = later::kWalkEnd};
}

}  // namespace

LaterSheet::LaterSheet(forms::Form& form, ObstetricExams& exams, std::span<const responses::ExamField> rows)
    : ObstetricSheet(form, exams, laterTrimesters(rows)), TxtNbrE(form, "TxtNbrE", "1") {
    TxtNbrE.onKey = [this](forms::KeyPress& key) { oneDigit(TxtNbrE, key); };
}

}  // namespace exams
