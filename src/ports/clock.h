#pragma once

#include <QDate>

namespace ports {

/// The machine's date.
class Clock {
public:
    virtual ~Clock() = default;
    virtual QDate today() const = 0;
};

class SystemClock final : public Clock {
public:
    QDate today() const override { return QDate::currentDate(); }
};

}  // namespace ports
