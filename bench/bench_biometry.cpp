#include <benchmark/benchmark.h>

#include <QString>
#include <array>

#include "biometry/charts.h"
#include "biometry/curves.h"
#include "biometry/form12.h"
#include "biometry/medians.h"
#include "biometry/page.h"
#include "biometry/percentiles.h"
#include "biometry/sample_exam.h"
#include "fakes/practice_files.h"
#include "side_by_side.h"

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

void classifyEightMeasures(benchmark::State& state) {
    const QString week = QString::number(state.range(0));
    std::array<PercentileLabel, kClassifiedCount> labels;
    for (auto _ : state) {
        classifyAll(labels, week);
        benchmark::DoNotOptimize(&labels);
    }
}

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

// The window on an exam of 22 weeks, beside what it is made of: its controls and its page. Leaving it, which reads the
// base of the exams, is not timed.
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

void partsOfTheBiometryWindow(benchmark::State& state) {
    Windows windows;
    const Exam exam = sampleExam();
    for (auto _ : state) {
        const auto form = windows.make();
        const Page made = page(exam, 0, QDate(2002, 6, 14));
        benchmark::DoNotOptimize(form.get());
        benchmark::DoNotOptimize(&made);
    }
}

}  // namespace

int main(int count, char** arguments) {
    side_by_side::within("eight percentiles", classifyEightMeasures, 0.005, {22});
    side_by_side::within("eight percentiles, new week", classifyEightMeasuresAndChangeTheWeek, 0.005, {13, 22, 40});
    side_by_side::within("curve of 29 weeks", curveOf29WeeksOnItsChart, 0.01);
    side_by_side::pair("Form12 loaded, its parts", loadOfTheBiometryWindow, partsOfTheBiometryWindow, std::nullopt);
    return side_by_side::run(count, arguments);
}
