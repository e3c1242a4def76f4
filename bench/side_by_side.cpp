#include "side_by_side.h"

#include <cstdio>
#include <map>

namespace side_by_side {
namespace {

struct Line {
    std::string name;
    std::string ours;
    std::string bare;
    std::optional<double> atMost;
};

/// A line without a yardstick: a time not to take, in microseconds.
struct Limit {
    std::string name;
    std::string ours;
    double atMost;
};

std::vector<Line>& lines() {
    static std::vector<Line> all;
    return all;
}

std::vector<Limit>& limits() {
    static std::vector<Limit> all;
    return all;
}

/// Keeps the median of each benchmark, in microseconds.
class Medians final : public benchmark::ConsoleReporter {
public:
    void ReportRuns(const std::vector<Run>& runs) override {
        for (const Run& one : runs) {
            if (one.run_type == Run::RT_Aggregate && one.aggregate_name == "median") {
                const double seconds = one.GetAdjustedRealTime() / benchmark::GetTimeUnitMultiplier(one.time_unit);
                medians_[one.run_name.str()] = seconds * 1e6;
            }
        }
    }

    void print() const {
        std::printf("\n%-28s %12s %12s %8s  %s\n", "", "ours (us)", "bare (us)", "ratio", "at most");
        for (const Line& line : lines()) {
            if (medians_.contains(line.ours) && medians_.contains(line.bare)) {
                print(line, medians_.at(line.ours), medians_.at(line.bare));
            }
        }
        for (const Limit& limit : limits()) {
            if (medians_.contains(limit.ours)) {
                print(limit, medians_.at(limit.ours));
            }
        }
    }

private:
    static void print(const Line& line, double ours, double bare) {
        std::printf("%-28s %12.2f %12.2f %8.2f  ", line.name.c_str(), ours, bare, ours / bare);
        if (line.atMost) {
            std::printf("%.1f%s\n", *line.atMost, ours / bare <= *line.atMost ? "" : "  MISSED");
        } else {
            std::puts("-");
        }
    }

    static void print(const Limit& limit, double ours) {
        std::printf("%-28s %12.2f %12s %8s  %.0f us%s\n", limit.name.c_str(), ours, "-", "-", limit.atMost,
                    ours <= limit.atMost ? "" : "  MISSED");
    }

    std::map<std::string, double> medians_;
};

void add(const std::string& name, Function ours, Function bare, std::optional<double> atMost, std::optional<int> size) {
    for (const auto& [side, function] : {std::pair(".ours", ours), std::pair(".bare", bare)}) {
        auto* made = benchmark::RegisterBenchmark((name + side).c_str(), function)->UseRealTime();
        if (size) {
            made->Arg(*size);
        }
    }
    const std::string argument = size ? "/" + std::to_string(*size) : "";
    lines().push_back(
        {name + argument, name + ".ours" + argument + "/real_time", name + ".bare" + argument + "/real_time", atMost});
}

}  // namespace

void pair(const std::string& name, Function ours, Function bare, std::optional<double> atMost,
          const std::vector<int>& sizes) {
    if (sizes.empty()) {
        add(name, ours, bare, atMost, std::nullopt);
    }
    for (const int size : sizes) {
        add(name, ours, bare, atMost, size);
    }
}

void within(const std::string& name, Function ours, double milliseconds) {
    benchmark::RegisterBenchmark(name.c_str(), ours)->UseRealTime();
    limits().push_back({name, name + "/real_time", milliseconds * 1000});
}

int run(int count, char** arguments) {
    std::vector<std::string> texts{arguments[0], "--benchmark_repetitions=7", "--benchmark_min_time=0.05",
                                   "--benchmark_enable_random_interleaving=true"};
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
    Medians medians;
    benchmark::RunSpecifiedBenchmarks(&medians);
    medians.print();
    return 0;
}

}  // namespace side_by_side
