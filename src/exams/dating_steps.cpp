#include "exams/dating_steps.h"

#include "biometry/dating.h"

namespace exams {

using namespace sheet_fields;

DatingSteps::DatingSteps(ObstetricSheet& sheet, forms::Label& age, ExamLife& life)
    : sheet_(sheet), age_(age), life_(life) {
    sheet_.fields(kLastPeriod).onChange = [this] { startFromLastPeriod(); };
    for (const int start : {kTheoreticalStart, kUltrasoundStart}) {
        sheet_.fields(start).onChange = [this, start] { ageFrom(start); };
    }
}

void DatingSteps::startFromLastPeriod() {
    const auto start = biometry::theoreticalStart(sheet_.fields(kLastPeriod).text(), life_.around().clock.today());
    if (start.fails()) {
        refuse({});
    } else if (start.writes()) {
        sheet_.fields(kTheoreticalStart).setText(start.text());
    }
}

void DatingSteps::ageFrom(int start) {
    const auto age =
        biometry::ageText(sheet_.fields(start).text(), sheet_.examDate.text(), life_.around().clock.today());
    if (age.writes()) {
        age_.setText(age.text());
    } else if (start == kTheoreticalStart) {
        refuse({kTheoreticalStart, kLastPeriod});
    } else {
        refuse({kUltrasoundStart});
    }
}

void DatingSteps::refuse(std::initializer_list<int> cleared) {
    life_.boxes().message(biometry::kDateFormatMessage.toString());
    for (const int field : cleared) {
        sheet_.fields(field).setText({});
    }
}

}  // namespace exams
