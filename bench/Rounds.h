#pragma once

#include <benchmark/benchmark.h>

#include <chrono>
#include <functional>

// Measures ours and its reference in turns, the reference twice a round; the ratio of the two references
// shows the noise. Reports the time of ours, with the medians and their ratios.
struct Rounds {
  using Contender = std::function<std::chrono::nanoseconds()>;

  Contender ours;
  Contender reference;

  void run(benchmark::State& state) const;
};
