#pragma once

#include <array>
#include <optional>
#include <vector>

#include "biometry/charts.h"
#include "biometry/medians.h"
#include "biometry/page.h"
#include "forms/controls.h"
#include "ports/printer.h"

class QPainter;

namespace biometry {

/// The measures as retried in the calculator, all as texts.
struct Retried {
    QString start;
    QString day;
    QString week;
    Measures measures;
    std::array<QString, kMeasureCount> percentiles;
    Medians medians;
    QString footToFemur;
    QString orbitToBip;
    QString weight;
    QString theoreticalWeight;
};

/// A point on the page, by its top left corner in twips.
struct PlacedPoint {
    Point at;
    forms::Color color;
};

/// The date, number, age and the three measures of a recalled exam.
using RecalledExam = std::array<QString, 6>;

/// What the biometry window prints.
struct Sheet {
    Page page;
    std::vector<PlacedPoint> points;
    std::optional<Retried> retried;
    std::optional<std::vector<RecalledExam>> recalled;
};

/// How many sheets of paper it takes: one, or more where a long recall goes on behind the first.
std::size_t sheetCount(const Sheet& sheet);

/// Draws the sheet of this number, from 0, on one page of paper, as large as what the printer reaches allows. The
/// painter works in device pixels from the first point that can be printed.
void paintSheet(QPainter& painter, const ports::PageGeometry& paper, const Sheet& sheet, std::size_t number);

}  // namespace biometry
