#include <benchmark/benchmark.h>

#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QString>
#include <array>

#include "biometry/chart_painter.h"
#include "biometry/charts.h"
#include "biometry/curves.h"
#include "biometry/form12.h"
#include "biometry/medians.h"
#include "biometry/page.h"
#include "biometry/percentiles.h"
#include "biometry/sample_exam.h"
#include "fakes/practice_files.h"

namespace {

using namespace biometry;

using Texts = std::array<QString, kClassifiedCount>;

// A fetus of 22 weeks, in the order of the measures.
const Texts& measures() {
    static const Texts texts{QStringLiteral("53"), QStringLiteral("196"), QStringLiteral("52"), QStringLiteral("173"),
                             QStringLiteral("38"), QStringLiteral("39"),  QStringLiteral("35"), QStringLiteral("23")};
    return texts;
}

void classifyAll(std::array<PercentileLabel, kClassifiedCount>& labels, const QString& week) {
    for (const Measure measure : kClassified) {
        const std::size_t i = indexOf(measure);
        labels[i] = classify(measure, week, measures()[i], std::move(labels[i]));
    }
}

// Target: under 5 microseconds.
void classifyEightMeasuresAndChangeTheWeek(benchmark::State& state) {
    const QString week = QString::number(state.range(0));
    std::array<PercentileLabel, kClassifiedCount> labels;
    const Medians before;
    for (auto _ : state) {
        const WeekChange change = weekChange(week, before);
        classifyAll(labels, week);
        benchmark::DoNotOptimize(&change);
        benchmark::DoNotOptimize(&labels);
    }
}
BENCHMARK(classifyEightMeasuresAndChangeTheWeek)->Arg(13)->Arg(22)->Arg(40);

void classifyEightMeasures(benchmark::State& state) {
    const QString week = QString::number(state.range(0));
    std::array<PercentileLabel, kClassifiedCount> labels;
    for (auto _ : state) {
        classifyAll(labels, week);
        benchmark::DoNotOptimize(&labels);
    }
}
BENCHMARK(classifyEightMeasures)->Arg(22);

// Target: under 10 microseconds.
void curveOf29WeeksOnItsChart(benchmark::State& state) {
    for (auto _ : state) {
        std::array<Point, 29> places;
        std::size_t count = 0;
        for (const CurvePoint& at : percentileCurve(Measure::Fem, 50)) {
            places[count++] = point(Chart::Fem, at.week, at.millimetres);
        }
        benchmark::DoNotOptimize(&places);
        benchmark::DoNotOptimize(count);
    }
}
BENCHMARK(curveOf29WeeksOnItsChart);

// The window on an exam of 22 weeks; what it is made of stands below it. Leaving it, which reads the base of the exams,
// is not timed.
class Windows {
public:
    Windows() {
        fakes::makeFiles(world_);
        state_.PathEcho = fakes::pathOf(world_, store::FileKind::Echo);
        world_.desk.add(Form12::kName.toString(), [this] { return make(); });
    }
    std::unique_ptr<Form12> make() { return std::make_unique<Form12>(world_.around, state_, shown_); }
    forms::Desk& desk() { return world_.desk; }

private:
    class Shown final : public ExamInView {
    public:
        Exam exam() const override { return sampleExam(); }
    };

    fakes::World world_;
    store::State state_;
    Shown shown_;
};

void loadOfTheBiometryWindow(benchmark::State& state) {
    Windows windows;
    for (auto _ : state) {
        benchmark::DoNotOptimize(&windows.desk().at<Form12>());
        state.PauseTiming();
        windows.desk().unload(Form12::kName.toString());
        state.ResumeTiming();
    }
}
BENCHMARK(loadOfTheBiometryWindow);

void itsControlsAlone(benchmark::State& state) {
    Windows windows;
    for (auto _ : state) {
        const auto form = windows.make();
        benchmark::DoNotOptimize(form.get());
    }
}
BENCHMARK(itsControlsAlone);

void itsPageAlone(benchmark::State& state) {
    const Exam exam = sampleExam();
    for (auto _ : state) {
        const Page made = page(exam, 0, QDate(2002, 6, 14));
        benchmark::DoNotOptimize(&made);
    }
}
BENCHMARK(itsPageAlone);

constexpr QSize k4K(3840, 2160);

template <class Draw>
void on4K(benchmark::State& state, const QRectF& twips, Draw draw) {
    QImage screen(k4K, QImage::Format_ARGB32_Premultiplied);
    const double scale = std::min(k4K.width() / twips.width(), k4K.height() / twips.height());
    for (auto _ : state) {
        screen.fill(Qt::white);
        QPainter painter(&screen);
        painter.scale(scale, scale);
        painter.translate(-twips.topLeft());
        draw(painter);
        painter.end();
        benchmark::DoNotOptimize(screen.constBits());
    }
}

// Target: under 8 ms, one frame of a screen of 120 Hz.
void largeChartWithItsCrossOn4K(benchmark::State& state) {
    on4K(state, drawing(Chart::Bip), [](QPainter& painter) {
        paintChart(painter, Chart::Bip, paperInk());
        paintCross(painter, point(Chart::Bip, 22, 53), Qt::red);
    });
}
BENCHMARK(largeChartWithItsCrossOn4K)->Unit(benchmark::kMillisecond);

// Target: under 8 ms.
void pageChartWithItsPointsOn4K(benchmark::State& state) {
    on4K(state, drawing(Chart::PageBip), [](QPainter& painter) {
        paintChart(painter, Chart::PageBip, paperInk());
        for (int week = 16; week <= 22; ++week) {
            paintMarker(painter, point(Chart::PageBip, week, 2.5 * week), Qt::red, Qt::white);
        }
    });
}
BENCHMARK(pageChartWithItsPointsOn4K)->Unit(benchmark::kMillisecond);

void bareFillOf4K(benchmark::State& state) {
    on4K(state, drawing(Chart::Bip), [](QPainter&) {});
}
BENCHMARK(bareFillOf4K)->Unit(benchmark::kMillisecond);

}  // namespace

int main(int count, char** arguments) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(count, arguments);
    benchmark::Initialize(&count, arguments);
    benchmark::RunSpecifiedBenchmarks();
}
