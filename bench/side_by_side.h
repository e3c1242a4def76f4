#pragma once

#include <benchmark/benchmark.h>

#include <optional>
#include <string>
#include <vector>

/// Times things beside what they are compared with, in one run, and prints their medians and the ratio.
namespace side_by_side {

using Function = void (*)(benchmark::State&);

/// Sets one thing beside its yardstick, for each of these sizes (with none, once). `atMost` is the ratio to keep.
void pair(const std::string& name, Function ours, Function bare, std::optional<double> atMost,
          const std::vector<int>& sizes = {});

/// Sets one thing beside a time that it must not take: `milliseconds`.
void within(const std::string& name, Function ours, double milliseconds);

/// Runs all pairs, each side several times and mixed with the others, and prints the table. Takes the usual arguments.
int run(int count, char** arguments);

}  // namespace side_by_side
