#include "side_by_side.h"

namespace side_by_side {
namespace {

using benchmark::internal::Benchmark;

Benchmark* add(const std::string& name, Function function, const std::string& target, std::optional<double> atMost) {
    return benchmark::RegisterBenchmark(name.c_str(), [=](benchmark::State& state) {
        function(state);
        if (atMost) {
            state.counters[target] = *atMost;
        }
    });
}

void setSizes(Benchmark* made, const std::vector<int>& sizes) {
    for (const int size : sizes) {
        made->Arg(size);
    }
}

}  // namespace

void pair(const std::string& name, Function ours, Function bare, std::optional<double> atMost,
          const std::vector<int>& sizes) {
    setSizes(add(name + ".ours", ours, "ratio_at_most", atMost)->UseRealTime(), sizes);
    setSizes(add(name + ".bare", bare, {}, std::nullopt)->UseRealTime(), sizes);
}

void pairByHand(const std::string& name, Function ours, Function bare, std::optional<double> atMost) {
    add(name + ".ours", ours, "ratio_at_most", atMost)->UseRealTime();
    add(name + ".bare", bare, {}, std::nullopt)->UseManualTime()->Iterations(1)->Repetitions(3);
}

// The time of all its threads: never less than what an idle machine takes by the clock.
void within(const std::string& name, Function ours, double milliseconds, const std::vector<int>& sizes) {
    setSizes(add(name, ours, "ms_at_most", milliseconds)->MeasureProcessCPUTime(), sizes);
}

void withinByTheClock(const std::string& name, Function ours, double milliseconds) {
    add(name, ours, "ms_at_most", milliseconds)->UseRealTime();
}

void once(const std::string& name, Function function) {
    add(name, function, {}, std::nullopt)->Iterations(1)->Repetitions(1);
}

void alone(const std::string& name, Function function) {
    add(name, function, {}, std::nullopt)->MeasureProcessCPUTime();
}

int run(int count, char** arguments) {
    std::vector<std::string> texts{arguments[0], "--benchmark_repetitions=7", "--benchmark_min_time=0.05",
                                   "--benchmark_enable_random_interleaving=true",
                                   "--benchmark_report_aggregates_only=true"};
    texts.insert(texts.end(), arguments + 1, arguments + count);
    std::vector<char*> all;
    for (std::string& text : texts) {
        all.push_back(text.data());
    }
    int size = static_cast<int>(all.size());
    benchmark::Initialize(&size, all.data());
    if (benchmark::ReportUnrecognizedArguments(size, all.data())) {
        return 1;
    }
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}

}  // namespace side_by_side
