#pragma once

#include <cstddef>
#include <cstdint>
#include <limits>
#include <span>

namespace biometry::tables {

/// The upper end of a class without one.
inline constexpr std::int16_t kNoBound = std::numeric_limits<std::int16_t>::max();

/// A closed range of whole millimetres. It is empty if `last` is below `first`.
struct Range {
    std::int16_t first;
    std::int16_t last;

    constexpr bool isEmpty() const { return last < first; }
    constexpr bool holds(int value) const { return first <= value && value <= last; }
};

consteval Range upTo(std::int16_t last) {
    return {0, last};
}

consteval Range from(std::int16_t first) {
    return {first, kNoBound};
}

consteval Range only(std::int16_t value) {
    return {value, value};
}

/// The class that a row doesn't have.
consteval Range none() {
    return {0, -1};
}

/// The classes of a measure at one whole week of amenorrhoea, from the lowest to the highest. The ranges are
/// independent of one another: a value may lie between two of them and then has no class.
template <std::size_t N>
struct PercentileRow {
    int week;
    Range classes[N];
};

// What the tables promise about their rows.

template <class Row>
constexpr bool isAscending(const Row& row) {
    int reached = -1;
    for (const Range& range : row.classes) {
        if (range.isEmpty()) {
            continue;
        }
        if (range.first <= reached) {
            return false;
        }
        reached = range.last;
    }
    return true;
}

template <class Row>
constexpr bool hasEveryClass(const Row& row) {
    for (const Range& range : row.classes) {
        if (range.isEmpty()) {
            return false;
        }
    }
    return true;
}

template <class Row>
constexpr bool startsAtZero(const Row& row) {
    return row.classes[0].first == 0 && !row.classes[0].isEmpty();
}

template <class Row>
constexpr bool isOpenAbove(const Row& row) {
    return std::span(row.classes).back().last == kNoBound;
}

template <class Row>
constexpr bool holdsValue(const Row& row, int value) {
    for (const Range& range : row.classes) {
        if (range.holds(value)) {
            return true;
        }
    }
    return false;
}

template <class Table, class Promise>
constexpr bool everyRow(const Table& table, Promise promise) {
    for (const auto& row : table) {
        if (!promise(row)) {
            return false;
        }
    }
    return true;
}

/// Whether every row has all its classes, ascending, from 0 mm up without end.
template <class Table>
constexpr bool isComplete(const Table& table) {
    return everyRow(table, [](const auto& row) {
        return hasEveryClass(row) && isAscending(row) && startsAtZero(row) && isOpenAbove(row);
    });
}

/// Whether the rows are those of all weeks from `first` to `last`, in order.
template <class Table>
constexpr bool coversWeeks(const Table& table, int first, int last) {
    int week = first;
    for (const auto& row : table) {
        if (row.week != week++) {
            return false;
        }
    }
    return week == last + 1;
}

/// How many whole millimetres below the end of a row's ranges have no class, over all rows.
template <class Table>
constexpr int valuesWithoutClass(const Table& table) {
    int count = 0;
    for (const auto& row : table) {
        int reached = -1;
        for (const Range& range : row.classes) {
            if (!range.isEmpty()) {
                count += range.first - reached - 1;
                reached = range.last;
            }
        }
    }
    return count;
}

/// Whether `value` has no class in the row of `week`.
template <class Table>
constexpr bool isGap(const Table& table, int week, int value) {
    for (const auto& row : table) {
        if (row.week == week) {
            return !holdsValue(row, value);
        }
    }
    return false;
}

/// Whether one value lies between the first two classes of a row, and belongs to neither.
template <class Row>
constexpr bool skipsOneBehindTheFirst(const Row& row) {
    return row.classes[1].first == row.classes[0].last + 2;
}

/// Whether no class of a row begins below the same class of the row before.
template <class Table>
constexpr bool growsWithTheWeek(const Table& table) {
    for (std::size_t i = 1; i < table.size(); ++i) {
        for (std::size_t k = 0; k < std::size(table[i].classes); ++k) {
            const Range& now = table[i].classes[k];
            const Range& before = table[i - 1].classes[k];
            if (!now.isEmpty() && !before.isEmpty() && (now.first < before.first || now.last < before.last)) {
                return false;
            }
        }
    }
    return true;
}

}  // namespace biometry::tables
