#include <benchmark/benchmark.h>

#include <QString>
#include <array>

#include "biometry/charts.h"
#include "biometry/curves.h"
#include "biometry/medians.h"
#include "biometry/percentiles.h"

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

}  // namespace

BENCHMARK_MAIN();
