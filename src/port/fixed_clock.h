#pragma once

#include "ports/clock.h"

namespace port {

/// A machine whose date does not move; an invalid date lets the real one through.
class FixedClock final : public ports::Clock {
public:
    explicit FixedClock(QDate today) : today_(today) {}
    QDate today() const override { return today_.isValid() ? today_ : QDate::currentDate(); }

private:
    QDate today_;
};

}  // namespace port
