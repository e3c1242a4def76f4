#pragma once

#include <QString>
#include <QStringList>
#include <limits>
#include <vector>

/// The second copy of the reference tables, as tests/biometry/reference/README.md describes its files. What a file
/// should not hold ends the reading with an exception.
namespace reference_copy {

inline constexpr int kUp = std::numeric_limits<int>::max();

/// Both ends included; kUp if there is no upper one.
struct Interval {
    int first;
    int last;

    bool holds(int value) const { return first <= value && value <= last; }
};

struct Piece {
    Interval values;
    QString result;  // a label; "none" and "blank" as they stand
    bool isLabel;
};

struct WeekLine {
    Interval weeks;
    std::vector<Piece> pieces;
};

struct CrownRumpLine {
    Interval millimetres;
    QString result;  // "none", "refused", or the days as digits
};

struct MedianLine {
    Interval weeks;
    QStringList medians;  // "none" or digits
};

/// Throws unless its weeks and the values of each week run from 0 up without hole or overlap.
std::vector<WeekLine> measure(const QString& file);
std::vector<CrownRumpLine> crownRump();
std::vector<MedianLine> medians();
/// The lines of charts.txt: the name, then the pieces "key value".
std::vector<std::pair<QString, QStringList>> charts();

}  // namespace reference_copy
