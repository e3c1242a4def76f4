#include <QApplication>
#include <QImage>
#include <vector>

#include "biometry/form13.h"
#include "forms/desk.h"
#include "qt/chart_view.h"
#include "side_by_side.h"

// The charts of a window on a whole screen of 4K, from the change of the form until they are drawn, beside the filling
// of such a screen alone.
namespace {

using biometry::Chart;

constexpr QSize k4K(3840, 2160);
// The parts of their windows that they fill, in twips.
const QRectF kCurvesPart(0, 950, 9500, 6350);
const QRectF kPagePart(0, 3850, 11906, 5250);

class Charts final : public forms::Form {
public:
    explicit Charts(forms::Desk& desk) : Form(desk, QStringLiteral("Courbes"), {}) {}
    forms::Array<forms::Image> Courbe{*this, QStringLiteral("Courbe"), 0, 2};
    forms::Array<forms::Marker> Point{*this, QStringLiteral("Point"), 0, 20};
};

/// Some charts in a shown window; each has as many markers.
class Stage {
public:
    Stage(const QRectF& part, std::vector<Chart> charts, int markers)
        : charts_(std::move(charts)), markers_(markers), view_(window_, part) {
        for (int i = 0; i < static_cast<int>(charts_.size()); ++i) {
            view_.addChart(charts_[i], form_.Courbe(i));
        }
        for (int i = 0; i < count(); ++i) {
            form_.Point(i).setSide(markers == 1 ? biometry::kCrossSide : biometry::kMarkerSide);
            if (markers > 1) {
                form_.Point(i).setColor(0x0000E0);
            }
            view_.addMarker(form_.Point(i), {});
            move(i, 16 + i % markers);
        }
        view_.resize(k4K);
        view_.show();
        QApplication::processEvents();
    }

    /// Puts a marker on the chart it belongs to.
    void move(int marker, int week) {
        const biometry::Point at = biometry::point(charts_[marker / markers_], week, 2.5 * week);
        form_.Point(marker).moveTo({at.left, at.top});
    }
    int count() const { return markers_ * static_cast<int>(charts_.size()); }
    /// As when other curves are chosen, in the first charts.
    void change(int charts) {
        for (int i = 0; i < charts; ++i) {
            form_.Courbe(i).hide();
            form_.Courbe(i).show();
        }
    }

private:
    forms::Desk desk_;
    Charts form_{desk_};
    qt::FormWindow window_{form_};
    std::vector<Chart> charts_;
    int markers_;
    qt::ChartView view_;
};

void drawAnew(benchmark::State& state, Stage& stage, int charts) {
    for (auto _ : state) {
        stage.change(charts);
        QApplication::processEvents();
    }
}

void moveOne(benchmark::State& state, Stage& stage) {
    int week = 16;
    for (auto _ : state) {
        week = week == 40 ? 16 : week + 1;
        stage.move(stage.count() - 1, week);
        QApplication::processEvents();
    }
}

void curveAnew(benchmark::State& state) {
    Stage stage(kCurvesPart, {Chart::Bip}, 1);
    drawAnew(state, stage, 1);
}

void curveWhoseCrossMoves(benchmark::State& state) {
    Stage stage(kCurvesPart, {Chart::Bip}, 1);
    moveOne(state, stage);
}

void pageChartAnew(benchmark::State& state) {
    Stage stage(kPagePart, {Chart::PageBip, Chart::PageCa, Chart::PageFem}, 7);
    drawAnew(state, stage, 1);
}

void wholePageAnew(benchmark::State& state) {
    Stage stage(kPagePart, {Chart::PageBip, Chart::PageCa, Chart::PageFem}, 7);
    drawAnew(state, stage, 3);
}

void pageWhosePointMoves(benchmark::State& state) {
    Stage stage(kPagePart, {Chart::PageBip, Chart::PageCa, Chart::PageFem}, 7);
    moveOne(state, stage);
}

void bareFill(benchmark::State& state) {
    QImage screen(k4K, QImage::Format_ARGB32_Premultiplied);
    for (auto _ : state) {
        screen.fill(Qt::white);
        benchmark::DoNotOptimize(screen.constBits());
    }
}

}  // namespace

int main(int count, char** arguments) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(count, arguments);
    // A frame of a screen of 120 Hz.
    constexpr double kFrame = 8;
    side_by_side::within("growth curve on 4K", curveAnew, kFrame);
    side_by_side::within("growth curve on 4K, cross moves", curveWhoseCrossMoves, kFrame);
    side_by_side::within("page chart on 4K", pageChartAnew, kFrame);
    side_by_side::within("page chart on 4K, a point moves", pageWhosePointMoves, kFrame);
    side_by_side::alone("all 3 page charts on 4K", wholePageAnew);
    side_by_side::alone("bare fill of 4K", bareFill);
    return side_by_side::run(count, arguments);
}
