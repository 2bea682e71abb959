#pragma once

#include <benchmark/benchmark.h>

#include <chrono>
#include <functional>

// Times ours and its reference in turns, the reference twice a round: how far apart the two references are
// says how little a ratio may say. The report's time is ours; beside it stand the medians and their ratios.
struct Rounds {
  using Contender = std::function<std::chrono::nanoseconds()>;

  Contender ours;
  Contender reference;

  void run(benchmark::State& state) const;
};
