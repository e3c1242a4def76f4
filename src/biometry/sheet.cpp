#include "biometry/sheet.h"

#include <QPainter>
#include <algorithm>
#include <span>

#include "biometry/chart_painter.h"

namespace biometry {
namespace {

constexpr double kTwipsPerInch = 1440;
constexpr double kPageWidth = 12000;  // of the window's page, whose charts reach 11930
constexpr double kPageHeight = 16838;
constexpr double kLeastEdge = 360;  // of the paper, in twips

constexpr int kTextSize = 200;
constexpr int kLine = 280;
constexpr int kMeasureSize = 180;
constexpr int kLeft = 138;
constexpr int kColumn = 3950;
constexpr int kValues = 3100;  // from the left of a column, behind the longest name
constexpr int kMeasureValues = 2850;
constexpr int kTablesTop = 9400;
constexpr int kFurtherTop = 1500;               // of the recall on the sheets behind the first
constexpr int kRetriedHeight = 29 * kLine / 2;  // fourteen lines and the gap under them
constexpr int kRecallHeadLines = 2;

/// Draws texts line under line, in columns, in twips.
class Lines {
public:
    Lines(QPainter& painter, double left, double top) : painter_(painter), left_(left), top_(top) {}

    void write(const QString& text, bool bold = false, int size = kTextSize) { cells({{0, text}}, bold, size); }

    /// Texts at distances from the left.
    void cells(const std::vector<std::pair<double, QString>>& texts, bool bold = false, int size = kTextSize) {
        QFont font(QStringLiteral("Arial"));
        font.setPixelSize(size);
        font.setBold(bold);
        painter_.setFont(font);
        for (const auto& [distance, text] : texts) {
            painter_.drawText(QPointF(left_ + distance, top_ + size), text);
        }
        top_ += size * static_cast<double>(kLine) / kTextSize;
    }

    void skip() { top_ += kLine / 2.0; }

private:
    QPainter& painter_;
    double left_;
    double top_;
};

QString millimetres(const QString& value) {
    return value.isEmpty() ? QString() : value + QStringLiteral(" mm");
}

void drawHead(QPainter& painter, const Page& page) {
    Lines lines(painter, kLeft, 300);
    lines.write(page.patient, true, 280);
    lines.skip();
    lines.cells({{0, QStringLiteral("Début de G. le ") + page.start},
                 {kColumn, QStringLiteral("Age gesta ") + page.week},
                 {2 * kColumn, QStringLiteral("Examen du ") + page.examDate}});
    lines.write(page.fetusLine);
}

// The measures in three columns, each with its percentile under it.
void drawMeasures(QPainter& painter, const Page& page) {
    constexpr int kPerColumn = 3;
    for (std::size_t i = 0; i < kPageOrder.size(); ++i) {
        const Measure measure = kPageOrder[i];
        const auto place = static_cast<int>(i);
        Lines lines(painter, kLeft + kColumn * (place / kPerColumn), 1500 + 2 * kLine * (place % kPerColumn));
        lines.cells({{0, measureName(measure)}, {kMeasureValues, millimetres(page.measure(measure))}}, true,
                    kMeasureSize);
        lines.write(page.percentile(measure), false, kMeasureSize);
    }
}

void drawWeights(QPainter& painter, const Page& page) {
    Lines lines(painter, kLeft, 1500 + 6 * kLine + kLine / 4.0);
    lines.cells({{0, QStringLiteral("Pied / Fémur : ") + page.footToFemur},
                 {kColumn, QStringLiteral("D.I.O. / Bip : ") + page.orbitToBip},
                 {2 * kColumn, QStringLiteral("Poids estimé : ") + page.weight}});
    lines.cells({{2 * kColumn, QStringLiteral("Poids théorique : ") + page.theoreticalWeight}});
}

void drawCharts(QPainter& painter, const std::vector<PlacedPoint>& points) {
    for (const Chart chart : {Chart::PageBip, Chart::PageCa, Chart::PageFem}) {
        paintChart(painter, chart, paperInk());
    }
    for (const PlacedPoint& point : points) {
        paintMarker(painter, point.at, QColor::fromRgb(point.color), Qt::black);
    }
}

void drawRetried(Lines& lines, const Retried& retried) {
    lines.write(QStringLiteral("Re-Calculer"), true);
    lines.cells({{0, QStringLiteral("Début de Grossesse ") + retried.start},
                 {kColumn, QStringLiteral("Date de l'écho ") + retried.day},
                 {2 * kColumn, QStringLiteral("S.A. ") + retried.week}});
    lines.cells({{kValues, QStringLiteral("Mesure")},
                 {kColumn, QStringLiteral("50 ème")},
                 {kColumn + 1000, QStringLiteral("Percentile")}},
                true);
    for (const Measure measure : kPageOrder) {
        const std::size_t i = indexOf(measure);
        const QString median = i < kClassifiedCount ? millimetres(retried.medians[i]) : QString();
        lines.cells({{0, measureName(measure)},
                     {kValues, millimetres(retried.measures[i])},
                     {kColumn, median},
                     {kColumn + 1000, retried.percentiles[i]}});
    }
    lines.cells({{0, QStringLiteral("Pied / Fémur : ") + retried.footToFemur},
                 {kColumn, QStringLiteral("D.I.O. / Bip : ") + retried.orbitToBip},
                 {2 * kColumn, QStringLiteral("Poids : ") + retried.weight}});
    lines.cells({{2 * kColumn, QStringLiteral("Poids théorique : ") + retried.theoreticalWeight}});
    lines.skip();
}

void drawRecalled(Lines& lines, std::span<const RecalledExam> exams) {
    constexpr std::array<int, 6> kPlaces{0, 1800, 2800, 4200, 5600, 7000};
    const auto cells = [&](const RecalledExam& texts) {
        std::vector<std::pair<double, QString>> row;
        for (std::size_t i = 0; i < texts.size(); ++i) {
            row.emplace_back(kPlaces[i], texts[i]);
        }
        return row;
    };
    lines.write(QStringLiteral("Rappel"), true);
    lines.cells(cells({"Date", "N°", "S.A.", "Bip", "Ca", "Fem"}), true);
    for (const RecalledExam& exam : exams) {
        lines.cells(cells(exam));
    }
}

// How many recalled exams have room between `top` and the end of the page.
constexpr std::size_t roomBelow(int top) {
    return static_cast<std::size_t>((static_cast<int>(kPageHeight) - top) / kLine - kRecallHeadLines);
}

std::size_t roomOnFirst(const Sheet& sheet) {
    return roomBelow(sheet.retried ? kTablesTop + kRetriedHeight : kTablesTop);
}

constexpr std::size_t kRoomOnFurther = roomBelow(kFurtherTop);

// The recalled exams of one sheet of paper.
std::span<const RecalledExam> recalledOn(const Sheet& sheet, std::size_t number) {
    const std::span<const RecalledExam> all = *sheet.recalled;
    const std::size_t first = number == 0 ? 0 : roomOnFirst(sheet) + (number - 1) * kRoomOnFurther;
    const std::size_t room = number == 0 ? roomOnFirst(sheet) : kRoomOnFurther;
    return all.subspan(first, std::min(room, all.size() - first));
}

// The page with its charts, and what is showing beside it.
void drawFirst(QPainter& painter, const Sheet& sheet) {
    drawMeasures(painter, sheet.page);
    drawWeights(painter, sheet.page);
    drawCharts(painter, sheet.points);
    painter.setPen(Qt::black);
    Lines lines(painter, kLeft, kTablesTop);
    if (sheet.retried) {
        drawRetried(lines, *sheet.retried);
    }
    if (sheet.recalled) {
        drawRecalled(lines, recalledOn(sheet, 0));
    }
}

// Twips of the window's page to device pixels: as wide as the paper allows, no larger than it is.
void fit(QPainter& painter, const ports::PageGeometry& paper) {
    const double offsetX = paper.physicalOffsetX * kTwipsPerInch / paper.dpiX;
    const double offsetY = paper.physicalOffsetY * kTwipsPerInch / paper.dpiY;
    const double edgeX = std::max(offsetX, kLeastEdge);
    const double edgeY = std::max(offsetY, kLeastEdge);
    const double scale = std::min((paper.width - 2 * edgeX) / kPageWidth, (paper.height - 2 * edgeY) / kPageHeight);
    painter.scale(paper.dpiX / kTwipsPerInch, paper.dpiY / kTwipsPerInch);
    painter.translate(edgeX - offsetX, edgeY - offsetY);
    painter.scale(scale, scale);
}

}  // namespace

std::size_t sheetCount(const Sheet& sheet) {
    const std::size_t recalled = sheet.recalled ? sheet.recalled->size() : 0;
    const std::size_t first = roomOnFirst(sheet);
    return recalled <= first ? 1 : 1 + (recalled - first + kRoomOnFurther - 1) / kRoomOnFurther;
}

void paintSheet(QPainter& painter, const ports::PageGeometry& paper, const Sheet& sheet, std::size_t number) {
    painter.save();
    fit(painter, paper);
    painter.setPen(Qt::black);
    drawHead(painter, sheet.page);
    if (number == 0) {
        drawFirst(painter, sheet);
    } else {
        Lines lines(painter, kLeft, kFurtherTop);
        drawRecalled(lines, recalledOn(sheet, number));
    }
    painter.restore();
}

}  // namespace biometry
