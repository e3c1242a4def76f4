#include <benchmark/benchmark.h>

#include <QApplication>
#include <QImage>
#include <QPainter>

#include "biometry/form13.h"
#include "forms/desk.h"
#include "qt/chart_view.h"

// A chart on a whole screen of 4K, as its window redraws it when its cross moves, beside the copying of that screen
// alone.
namespace {

constexpr QSize k4K(3840, 2160);

class Curve final : public forms::Form {
public:
    explicit Curve(forms::Desk& desk) : Form(desk, QStringLiteral("Courbe"), {}) {
        Croix.setSide(biometry::kCrossSide);
    }
    forms::Image Courbe{*this, QStringLiteral("Courbe")};
    forms::Marker Croix{*this, QStringLiteral("Croix")};
};

// Target: under 8 ms, one frame of a screen of 120 Hz.
void chartWhoseCrossMovesOn4K(benchmark::State& state) {
    forms::Desk desk;
    Curve form(desk);
    qt::FormWindow window(form);
    qt::ChartView view(window, biometry::drawing(biometry::Chart::Bip));
    view.addChart(biometry::Chart::Bip, form.Courbe);
    view.addMarker(form.Croix, {});
    view.resize(k4K);
    QImage screen(k4K, QImage::Format_ARGB32_Premultiplied);
    int week = 13;
    for (auto _ : state) {
        const biometry::Point at = biometry::point(biometry::Chart::Bip, week, 2.5 * week);
        form.Croix.moveTo({at.left, at.top});
        week = week == 41 ? 13 : week + 1;
        view.render(&screen);
        benchmark::DoNotOptimize(screen.constBits());
    }
}
BENCHMARK(chartWhoseCrossMovesOn4K)->Unit(benchmark::kMillisecond);

void bareCopyOf4K(benchmark::State& state) {
    QImage screen(k4K, QImage::Format_ARGB32_Premultiplied);
    QImage picture(k4K, QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::transparent);
    for (auto _ : state) {
        screen.fill(Qt::white);
        QPainter(&screen).drawImage(0, 0, picture);
        benchmark::DoNotOptimize(screen.constBits());
    }
}
BENCHMARK(bareCopyOf4K)->Unit(benchmark::kMillisecond);

}  // namespace

int main(int count, char** arguments) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(count, arguments);
    benchmark::Initialize(&count, arguments);
    benchmark::RunSpecifiedBenchmarks();
}
