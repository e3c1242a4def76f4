#pragma once

#include <benchmark/benchmark.h>

#include <optional>
#include <string>
#include <vector>

/// Times things beside what they are compared with, in one run. tools/bench_table.py makes the table of it: two
/// benchmarks whose names differ in `.ours` and `.bare` make one line, and a counter `ratio_at_most`, `ms_at_most`,
/// `MB_at_most` or `percent_at_most` is a target.
namespace side_by_side {

using Function = void (*)(benchmark::State&);

/// Sets one thing beside its yardstick, for each of these sizes (with none, once). `atMost` is the ratio to keep.
void pair(const std::string& name, Function ours, Function bare, std::optional<double> atMost,
          const std::vector<int>& sizes = {});

/// The same where the yardstick tells its time itself (`SetIterationTime`) and takes long.
void pairByHand(const std::string& name, Function ours, Function bare, std::optional<double> atMost);

/// Sets one thing beside a time of the processor that it must not take, in milliseconds; for each of these sizes.
void within(const std::string& name, Function ours, double milliseconds, const std::vector<int>& sizes = {});

/// The same by the clock: what waits for the disk or for other threads.
void withinByTheClock(const std::string& name, Function ours, double milliseconds);

/// A thing that runs once and tells its figure in a counter.
void once(const std::string& name, Function function);

/// A thing that is timed for comparison alone.
void alone(const std::string& name, Function function);

/// Runs them all, each side several times and mixed with the others. Takes the usual arguments.
int run(int count, char** arguments);

}  // namespace side_by_side
