#pragma once

#include <QStringList>
#include <QStringView>
#include <algorithm>

namespace responses {

/// What a field of an exam window offers while it has the focus. Made by the functions below.
struct Offer {
    enum class Kind { Nothing, Phrases, Numbers, Calendar };

    Kind kind = Kind::Nothing;
    /// Of phrases: the rubric.
    int rubric = 0;
    /// Of numbers: the run from `first` to `last`, and the one that is chosen at first, in units of 1/`parts`.
    int first = 0;
    int last = 0;
    int typical = 0;
    int parts = 1;
};

/// The stored responses of a rubric.
constexpr Offer phrases(int rubric) {
    return {.kind = Offer::Kind::Phrases, .rubric = rubric};
}

/// The whole numbers from `first` to `last`; the list opens at `typical`.
constexpr Offer numbers(int first, int last, int typical) {
    return {.kind = Offer::Kind::Numbers, .first = first, .last = last, .typical = typical};
}

/// Each tenth from `first` to `last`, themselves counted in tenths: tenths(6, 50, 20) runs from 0,6 to 5.
constexpr Offer tenths(int first, int last, int typical) {
    return {.kind = Offer::Kind::Numbers, .first = first, .last = last, .typical = typical, .parts = 10};
}

constexpr Offer calendar() {
    return {.kind = Offer::Kind::Calendar};
}

/// The lists stay as they are.
constexpr Offer nothing() {
    return {};
}

/// The index of a field that stands outside the array of its window.
inline constexpr int kOutside = -1;

/// One field of an exam window and of its record. The rows of a window stand in the order in which they are saved.
struct ExamField {
    /// The place in the window's array of boxes, or `kOutside`.
    int index;
    QStringView caption;
    /// The field of the record; empty if it is not saved.
    QStringView field;
    Offer offer = {};
    /// The name of the control of a field outside the array.
    QStringView control = {};
};

/// Whether the rows have each index from `first` to `last` exactly once, and no other but `kOutside`.
template <class Rows>
constexpr bool coversEachIndexOnce(const Rows& rows, int first, int last) {
    for (const ExamField& row : rows) {
        if (row.index == kOutside ? row.control.isEmpty() : row.index < first || row.index > last) {
            return false;
        }
    }
    for (int index = first; index <= last; ++index) {
        if (std::ranges::count(rows, index, &ExamField::index) != 1) {
            return false;
        }
    }
    return true;
}

/// The numbers of an offer as the list shows them, in the French form.
QStringList numberLines(const Offer& offer);
/// The one that is chosen at first.
QString typicalLine(const Offer& offer);

}  // namespace responses
