#include "biometry/dating.h"

#include <cstdint>
#include <limits>
#include <optional>

#include "base/dates.h"
#include "base/numbers.h"
#include "biometry/tables/crown_rump.h"

namespace biometry {
namespace {

constexpr int kDaysToTheoreticalStart = 14;
constexpr int kLastYear = 9999;
constexpr int kFirstDayOfTheNextWeek = 4;

bool fits16(qint64 number) {
    return number >= std::numeric_limits<std::int16_t>::min() && number <= std::numeric_limits<std::int16_t>::max();
}

struct Gestation {
    int weeks;  // of amenorrhoea
    int days;   // 0 to 6

    double number() const { return weeks + days / 10.0; }
};

std::optional<Gestation> gestation(QDate start, QDate day) {
    const qint64 days = start.daysTo(day);
    if (!fits16(days)) {
        return std::nullopt;
    }
    const int rest = static_cast<int>((days % 7 + 7) % 7);
    return Gestation{static_cast<int>((days - rest) / 7) + 2, rest};
}

using Render = QString (*)(const Gestation&);

Outcome age(QStringView start, QStringView examDate, QDate today, Render render) {
    const auto from = base::readDate(start, today);
    if (!from) {
        return Outcome::write({});
    }
    const auto to = base::readDate(examDate, today);
    if (!to) {
        return Outcome::fail(base::ErrorNumber::TypeMismatch);
    }
    const auto reached = gestation(*from, *to);
    return reached ? Outcome::write(render(*reached)) : Outcome::fail(base::ErrorNumber::Overflow);
}

Outcome writeDate(QDate date) {
    return date.isValid() && date.year() >= 1 && date.year() <= kLastYear
               ? Outcome::write(base::shortDate(date))
               : Outcome::fail(base::ErrorNumber::InvalidCall);
}

int crownRumpDays(int millimetres) {
    return millimetres < 1 ? 0 : tables::kCrownRumpDays[static_cast<std::size_t>(millimetres) - 1];
}

}  // namespace

Outcome theoreticalStart(QStringView ddr, QDate today) {
    const auto date = base::readDate(ddr, today);
    return date ? writeDate(date->addDays(kDaysToTheoreticalStart)) : Outcome::leave();
}

Outcome ageText(QStringView start, QStringView examDate, QDate today) {
    return age(start, examDate, today, [](const Gestation& g) { return base::decimalText(g.number()); });
}

Outcome roundedAge(QStringView dgus, QStringView examDate, QDate today) {
    return age(dgus, examDate, today, [](const Gestation& g) { return QString::number(base::toInt16(g.number())); });
}

Outcome startFromCrownRump(QStringView lcc, QDate today) {
    if (lcc.isEmpty()) {
        return Outcome::leave();
    }
    if (!base::isNumeric(lcc)) {
        return Outcome::fail(base::ErrorNumber::TypeMismatch);
    }
    const double length = base::roundHalfEven(base::toNumber(lcc));
    if (length > tables::kLongestCrownRump || length < std::numeric_limits<std::int16_t>::min()) {
        return Outcome::refuse(kCrownRumpTooLongMessage);
    }
    const int days = crownRumpDays(static_cast<int>(length));
    return writeDate(today.addDays(kDaysToTheoreticalStart - days));
}

Outcome wholeWeek(QStringView start, QStringView day, QDate today) {
    const auto from = base::readDate(start, today);
    const auto to = base::readDate(day, today);
    if (!from || !to) {
        return Outcome::leave();
    }
    const auto reached = gestation(*from, *to);
    if (!reached) {
        return Outcome::fail(base::ErrorNumber::Overflow);
    }
    return Outcome::write(QString::number(reached->weeks + (reached->days >= kFirstDayOfTheNextWeek ? 1 : 0)));
}

}  // namespace biometry
