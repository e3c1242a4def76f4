#include <gtest/gtest.h>

#include <QImage>
#include <QPainter>
#include <algorithm>
#include <cmath>
#include <span>

#include "biometry/chart_painter.h"
#include "biometry/chart_words.h"
#include "biometry/curves.h"
#include "biometry/reference.h"
#include "biometry/sample_exam.h"
#include "biometry/sheet.h"

namespace {

using namespace biometry;

constexpr std::array kAllCharts{Chart::PageBip, Chart::PageCa, Chart::PageFem, Chart::Bip,  Chart::Cc,
                                Chart::Dat,     Chart::Ca,     Chart::Fem,     Chart::Pied, Chart::Cer};

/// Device pixels a twip, as on a screen.
constexpr double kScale = 1.0 / 15;

QImage drawn(Chart chart, const Ink& ink) {
    QImage image(800, 620, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.scale(kScale, kScale);
    paintChart(painter, chart, ink);
    return image;
}

Ink onlyCurves() {
    return {.ground = Qt::white,
            .text = Qt::white,
            .grid = Qt::white,
            .fineGrid = Qt::white,
            .curve = Qt::white,
            .median = Qt::black};
}

bool dark(const QImage& image, QPointF twips) {
    return qGray(image.pixel((twips * kScale).toPoint())) < 128;
}

TEST(SmoothCurve, LeavesEachValueOfAClassOnItsOwnSide) {
    for (const Measure measure : kClassified) {
        for (const double percentile : percentilesOf(measure)) {
            for (const CurvePoint& raw : percentileCurve(measure, percentile)) {
                const auto& smooth = smoothCurve(measure, percentile);
                const auto at = std::ranges::find(smooth, raw.week, &CurvePoint::week);
                ASSERT_NE(at, smooth.end());
                const ReferenceRow row = *referenceRow(measure, raw.week);
                for (const tables::Range& range : row.classes) {
                    if (range.isEmpty()) {
                        continue;
                    }
                    if (range.last < raw.millimetres) {
                        EXPECT_GT(at->millimetres, range.last) << indexOf(measure) << " " << raw.week;
                    } else if (range.first > raw.millimetres) {
                        EXPECT_LT(at->millimetres, range.first) << indexOf(measure) << " " << raw.week;
                    }
                }
            }
        }
    }
}

TEST(SmoothCurve, BendsLessThanTheReference) {
    const auto bends = [](const std::vector<CurvePoint>& curve) {
        double sum = 0;
        for (std::size_t i = 1; i + 1 < curve.size(); ++i) {
            sum += std::abs(curve[i - 1].millimetres - 2 * curve[i].millimetres + curve[i + 1].millimetres);
        }
        return sum;
    };
    for (const Measure measure : kClassified) {
        EXPECT_LT(bends(smoothCurve(measure, 50)), 0.6 * bends(percentileCurve(measure, 50))) << indexOf(measure);
    }
}

TEST(SmoothCurve, FillsTheWeekWithoutABoundary) {
    EXPECT_EQ(percentileCurve(Measure::Fem, 97).size(), 28U);
    EXPECT_EQ(smoothCurve(Measure::Fem, 97).size(), 29U);
    EXPECT_TRUE(smoothCurve(Measure::Orb, 50).empty());
}

TEST(SmoothCurve, NeverCrossesItsNeighbour) {
    for (const Measure measure : kClassified) {
        const auto known = percentilesOf(measure);
        for (std::size_t i = 0; i + 1 < known.size(); ++i) {
            for (const CurvePoint& low : smoothCurve(measure, known[i])) {
                for (const CurvePoint& high : smoothCurve(measure, known[i + 1])) {
                    EXPECT_FALSE(low.week == high.week && low.millimetres >= high.millimetres)
                        << indexOf(measure) << " " << low.week;
                }
            }
        }
    }
}

/// Whether anything dark is within two device pixels of a place.
bool darkAround(const QImage& image, QPointF twips) {
    const QPoint at = (twips * kScale).toPoint();
    for (int y = -2; y <= 2; ++y) {
        for (int x = -2; x <= 2; ++x) {
            if (qGray(image.pixel(at + QPoint(x, y))) < 128) {
                return true;
            }
        }
    }
    return false;
}

// Without the curves the numbers are still there to be seen.
TEST(ChartDrawing, KeepsTheNumbersOfThePageClearOfTheCurves) {
    Ink numbers = onlyCurves();
    numbers.text = Qt::black;
    numbers.curve = Qt::transparent;
    numbers.median = Qt::transparent;
    for (const Chart chart : {Chart::PageBip, Chart::PageCa, Chart::PageFem}) {
        const QImage inked = drawn(chart, numbers);
        for (const double percentile : percentilesOf(geometry(chart).measure)) {
            const auto& curve = smoothCurve(geometry(chart).measure, percentile);
            for (std::size_t i = 0; i + 2 < curve.size(); ++i) {
                for (const double part : {0.25, 0.5, 0.75, 1.0}) {
                    const double value = std::lerp(curve[i].millimetres, curve[i + 1].millimetres, part);
                    EXPECT_FALSE(darkAround(inked, spot(chart, curve[i].week + part, value)))
                        << static_cast<int>(chart) << " " << curve[i].week << " " << percentile;
                }
            }
        }
    }
}

TEST(ChartDrawing, LiesHalfAMarkerFromThePointOfTheMarkersCorner) {
    EXPECT_EQ(spot(Chart::PageBip, 13, 0), QPointF(138 + 52.5, 8610 + 52.5));
    EXPECT_EQ(spot(Chart::Bip, 13, 0), QPointF(1855 + 120, 6195 + 120));
}

TEST(ChartDrawing, HasTheMedianWhereItsValuesLie) {
    for (const Chart chart : {Chart::Bip, Chart::Cc, Chart::Dat, Chart::Ca, Chart::Fem, Chart::Pied, Chart::Cer}) {
        const QImage image = drawn(chart, onlyCurves());
        const auto& curve = smoothCurve(geometry(chart).measure, 50);
        // Not at its flat ends.
        for (const CurvePoint& at : std::span(curve).subspan(1, curve.size() - 2)) {
            EXPECT_TRUE(dark(image, spot(chart, at.week, at.millimetres)))
                << indexOf(geometry(chart).measure) << at.week;
            EXPECT_FALSE(dark(image, spot(chart, at.week, at.millimetres) - QPointF(0, 150)));
        }
    }
}

TEST(ChartDrawing, StaysInsideWhatItSaysItCovers) {
    for (const Chart chart : kAllCharts) {
        QImage image(800, 620, QImage::Format_RGB32);
        image.fill(Qt::white);
        QPainter painter(&image);
        painter.scale(kScale, kScale);
        paintChart(painter, chart, paperInk());
        const QRectF covered = drawing(chart).adjusted(-15, -15, 15, 15);
        int outside = 0;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                outside += image.pixelColor(x, y) != Qt::white && !covered.contains(QPointF(x, y) / kScale);
            }
        }
        EXPECT_EQ(outside, 0) << static_cast<int>(chart);
        EXPECT_TRUE(covered.contains(plot(chart)));
    }
}

TEST(ChartDrawing, OfThePageReachesNoFurtherThanItsRoom) {
    for (const Chart chart : {Chart::PageBip, Chart::PageCa, Chart::PageFem}) {
        EXPECT_TRUE(QRectF(0, 3850, 12000, 5250).contains(drawing(chart))) << static_cast<int>(chart);
    }
}

TEST(ChartDrawing, TheThreeOfThePageDontCoverOneAnothersGrid) {
    EXPECT_LT(plot(Chart::PageBip).right(), plot(Chart::PageCa).left());
    EXPECT_LT(plot(Chart::PageCa).right(), plot(Chart::PageFem).left());
}

TEST(ChartDrawing, ReachesTheTopOfItsSpanAndTheFirstWeek) {
    EXPECT_EQ(plot(Chart::PageCa).left(), 4095 + 52.5);
    EXPECT_EQ(plot(Chart::PageBip).top(), 4155 + 52.5);
    EXPECT_EQ(plot(Chart::Bip).top(), 1205 + 120);
    EXPECT_EQ(plot(Chart::Bip).bottom(), 6195 + 120);
}

TEST(ChartDrawing, MarksItsPointInTheMiddleOfTheMarker) {
    QImage image(800, 620, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.scale(kScale, kScale);
    paintMarker(painter, point(Chart::PageBip, 22, 53), Qt::black, Qt::black);
    paintCross(painter, point(Chart::Bip, 30, 90), Qt::black);
    painter.end();
    EXPECT_TRUE(dark(image, spot(Chart::PageBip, 22, 53)));
    EXPECT_TRUE(dark(image, spot(Chart::Bip, 30, 90)));
    EXPECT_FALSE(dark(image, spot(Chart::PageBip, 22, 53) + QPointF(90, 0)));
}

TEST(CurveAt, TellsTheNearestCurveAtTheNearestWeek) {
    EXPECT_EQ(curveAt(Chart::Bip, spot(Chart::Bip, 22, 53.5), 60), (OnCurve{50, 22, 53.5}));
    EXPECT_EQ(curveAt(Chart::Bip, spot(Chart::Bip, 22, 59.5), 60), (OnCurve{97, 22, 59.5}));
    EXPECT_EQ(curveAt(Chart::PageBip, spot(Chart::PageBip, 22, 47.5), 60), (OnCurve{3, 22, 47.5}));
}

TEST(CurveAt, TellsNothingFarFromAllCurves) {
    EXPECT_EQ(curveAt(Chart::Bip, spot(Chart::Bip, 22, 90), 60), std::nullopt);
    EXPECT_EQ(curveAt(Chart::Bip, spot(Chart::Bip, 42, 95), 60), std::nullopt);
    EXPECT_EQ(curveAt(Chart::Bip, spot(Chart::Bip, 10, 20), 60), std::nullopt);
}

TEST(CurveAt, IsToldInWords) {
    EXPECT_EQ(tip({50, 22, 53.5}), "22 SA : 53,5 mm (50 ème percentile)");
    EXPECT_EQ(tip({2.5, 30, 43}), "30 SA : 43 mm (2,5 ème percentile)");
}

TEST(ChartWords, TellThePresentMeasureAndTheRecalledOnes) {
    EXPECT_EQ(chartWords("22", "53", "50 ème Percentile", {}, {}), "22 SA, 53 mm, 50 ème Percentile");
    EXPECT_EQ(chartWords("22", "53", "", {"18,3", "22"}, {"41", "53"}),
              "22 SA, 53 mm ; rappel 18,3 SA, 41 mm ; rappel 22 SA, 53 mm");
}

TEST(ChartWords, LeaveOutWhatHasNoPoint) {
    EXPECT_EQ(chartWords("", "53", "50 ème Percentile", {"", "22"}, {"41", "x"}), "");
    EXPECT_EQ(chartWords("", "", "", {"1", "2", "3", "4", "5", "6", "7"}, {"1", "2", "3", "4", "5", "6", "7"})
                  .count("rappel"),
              6);
}

/// What of a page of paper bears ink, in millimetres.
QRectF inked(const QImage& page, double pixelsPerMillimetre) {
    QRect bounds;
    for (int y = 0; y < page.height(); ++y) {
        for (int x = 0; x < page.width(); ++x) {
            if (page.pixelColor(x, y) != Qt::white) {
                bounds |= QRect(x, y, 1, 1);
            }
        }
    }
    return {bounds.x() / pixelsPerMillimetre, bounds.y() / pixelsPerMillimetre, bounds.width() / pixelsPerMillimetre,
            bounds.height() / pixelsPerMillimetre};
}

Sheet fullSheet() {
    Sheet sheet{page(sampleExam(), 2, QDate(2002, 6, 14)), {}, Retried(), std::vector<RecalledExam>()};
    for (int i = 0; i < 8; ++i) {
        sheet.recalled->push_back({"21/05/2002", QString::number(i), "22", "53", "173", "38"});
    }
    sheet.points.push_back({point(Chart::PageFem, 41, 80), 0xE00000});
    return sheet;
}

TEST(PrintedPage, KeepsClearOfTheEdgesOfThePaper) {
    constexpr int kDpi = 100;
    for (const int offset : {0, 40}) {
        const ports::PageGeometry paper{.width = 11906,
                                        .height = 16838,
                                        .dpiX = kDpi,
                                        .dpiY = kDpi,
                                        .physicalOffsetX = offset,
                                        .physicalOffsetY = offset};
        QImage image(827 - 2 * offset, 1169 - 2 * offset, QImage::Format_RGB32);
        image.fill(Qt::white);
        QPainter painter(&image);
        paintSheet(painter, paper, fullSheet(), 0);
        painter.end();
        const QRectF ink = inked(image, kDpi / 25.4).translated(offset * 25.4 / kDpi, offset * 25.4 / kDpi);
        EXPECT_GT(ink.left(), 6) << offset;
        EXPECT_LT(ink.right(), 204) << offset;
        EXPECT_GT(ink.top(), 6) << offset;
        EXPECT_LT(ink.bottom(), 291) << offset;
        EXPECT_GT(ink.width(), 150) << offset;
    }
}

Sheet sheetRecalling(std::size_t exams) {
    Sheet sheet{page(sampleExam(), 0, QDate(2002, 6, 14)), {}, {}, {}};
    sheet.recalled = std::vector<RecalledExam>(exams, RecalledExam{"21/05/2002", "1", "22", "53", "173", "38"});
    return sheet;
}

/// A printed page at ten twips a pixel, with no edge that can't be printed.
QImage printed(const Sheet& sheet, std::size_t number) {
    constexpr int kDpi = 144;
    const ports::PageGeometry paper{.width = 11906, .height = 16838, .dpiX = kDpi, .dpiY = kDpi};
    QImage image(1191, 1684, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    paintSheet(painter, paper, sheet, number);
    return image;
}

QRectF inkOf(const Sheet& sheet, std::size_t number) {
    return inked(printed(sheet, number), 1);
}

TEST(PrintedPage, TakesOneSheetAsLongAsTheRecallHasRoom) {
    EXPECT_EQ(sheetCount(sheetRecalling(0)), 1U);
    // From 9400 to 16838 there are 26 lines of 280; two are the heading's.
    EXPECT_EQ(sheetCount(sheetRecalling(24)), 1U);
    EXPECT_EQ(sheetCount(sheetRecalling(25)), 2U);
    // From 1500 there are 54.
    EXPECT_EQ(sheetCount(sheetRecalling(24 + 52)), 2U);
    EXPECT_EQ(sheetCount(sheetRecalling(24 + 53)), 3U);
}

TEST(PrintedPage, HasLessRoomForTheRecallUnderTheCalculator) {
    Sheet sheet = sheetRecalling(10);
    sheet.retried = Retried();
    EXPECT_EQ(sheetCount(sheet), 1U);
    sheet.recalled->push_back({});
    EXPECT_EQ(sheetCount(sheet), 2U);
    sheet.recalled.reset();
    EXPECT_EQ(sheetCount(sheet), 1U);
}

TEST(PrintedPage, EndsAboveTheEdgeHoweverLongTheRecall) {
    const Sheet sheet = sheetRecalling(24 + 52 + 1);
    // The edge is 360 of 16838 twips.
    constexpr double kLast = 1684 - 36;
    EXPECT_LT(inkOf(sheet, 0).bottom(), kLast);
    EXPECT_GT(inkOf(sheet, 0).bottom(), kLast - 80);
    EXPECT_LT(inkOf(sheet, 1).bottom(), kLast);
    EXPECT_GT(inkOf(sheet, 1).bottom(), kLast - 80);
    EXPECT_LT(inkOf(sheet, 2).bottom(), 300);
}

TEST(PrintedPage, KeepsTheColumnsOfTheMeasuresApart) {
    const QImage image = printed(sheetRecalling(0), 0);
    // The measures stand from 1500 to 3180 twips, their columns begin at 138 and 3950 further; the page has 12000 twips
    // on the 11186 between its edges of 360.
    const auto pixel = [](double twips) { return static_cast<int>(36 + twips * 0.9321666 / 10); };
    int inked = 0;
    for (int y = pixel(1500); y < pixel(3180); ++y) {
        for (int x = pixel(3650); x < pixel(4060); ++x) {
            inked += image.pixelColor(x, y) != Qt::white;
        }
    }
    EXPECT_EQ(inked, 0);
}

}  // namespace
