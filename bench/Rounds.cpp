#include "bench/Rounds.h"

#include <algorithm>
#include <vector>

namespace {

using Times = std::vector<double>;  // milliseconds

double milliseconds(std::chrono::nanoseconds time) {
  return std::chrono::duration<double, std::milli>(time).count();
}

double median(Times times) {
  std::ranges::nth_element(times, times.begin() + static_cast<Times::difference_type>(times.size() / 2));
  return times[times.size() / 2];
}

}  // namespace

void Rounds::run(benchmark::State& state) const {
  ours();
  reference();
  Times oursTimes;
  Times referenceTimes;
  Times controlTimes;
  for ([[maybe_unused]] auto round : state) {
    referenceTimes.push_back(milliseconds(reference()));
    oursTimes.push_back(milliseconds(ours()));
    controlTimes.push_back(milliseconds(reference()));
    state.SetIterationTime(oursTimes.back() / 1000);
  }
  state.counters["ours_ms"] = median(oursTimes);
  state.counters["reference_ms"] = median(referenceTimes);
  state.counters["ratio"] = median(oursTimes) / median(referenceTimes);
  state.counters["control"] = median(controlTimes) / median(referenceTimes);
}
