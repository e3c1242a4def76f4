#include "exams/first_trimester_sheet.h"

namespace exams {
namespace {

SheetKind firstTrimester() {
    return {.fields = QStringLiteral("Txt1Ter"),
            .last = kLastFirstTrimesterField,
            .rows = kFirstTrimesterFields,
            .date = QStringLiteral("TxtDate"),
            .fetus = QStringLiteral("Embryon"),
            .firstOfFetus = first_trimester::kFirstOfEmbryo,
            .fieldsOfFetus = first_trimester::kFieldsOfEmbryo,
            .walkEnd = first_trimester::kWalkEnd};
}

}  // namespace

FirstTrimesterSheet::FirstTrimesterSheet(forms::Form& form, ObstetricExams& exams)
    : ObstetricSheet(form, exams, firstTrimester()),
      TxtTypecho(form, "TxtTypecho", "1"),
      LblAgeGesta(form, "LblAgeGesta") {}

}  // namespace exams
