// How the time of a step grows with the size of the project.
#pragma once

#include <cmath>
#include <cstdint>
#include <ctime>
#include <iterator>
#include <map>

#include <benchmark/benchmark.h>

namespace tarnwick {

/// The times of one step, by size. Time grows as a power of the size; an exponent of 1 is linear.
class Growth {
 public:
  /// Runs the benchmark's loop and reports two exponents: "growth" from the size before to this
  /// one, and "overall", the slope of the line that fits all sizes so far. A benchmark runs several
  /// times for each size, the last one is the one reported.
  template <class Step>
  void Measure(benchmark::State& state, Step step) {
    const std::clock_t start = std::clock();
    for (auto _ : state) step();
    const double seconds = static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC;
    seconds_[state.range(0)] = seconds / static_cast<double>(state.iterations());
    state.counters["growth"] = FromTheOneBefore(seconds_.find(state.range(0)));
    state.counters["overall"] = Overall();
    state.SetItemsProcessed(static_cast<std::int64_t>(state.iterations()) * state.range(0));
  }

 private:
  using Times = std::map<std::int64_t, double>;

  [[nodiscard]] double FromTheOneBefore(Times::const_iterator here) const {
    if (here == seconds_.begin()) return 0;
    const auto before = std::prev(here);
    return std::log(here->second / before->second) /
           std::log(static_cast<double>(here->first) / static_cast<double>(before->first));
  }

  [[nodiscard]] double Overall() const {
    const auto count = static_cast<double>(seconds_.size());
    if (count < 2) return 0;
    double x_mean = 0;
    double y_mean = 0;
    for (const auto& [size, seconds] : seconds_) {
      x_mean += std::log(static_cast<double>(size)) / count;
      y_mean += std::log(seconds) / count;
    }
    double xy = 0;
    double xx = 0;
    for (const auto& [size, seconds] : seconds_) {
      const double x = std::log(static_cast<double>(size)) - x_mean;
      xy += x * (std::log(seconds) - y_mean);
      xx += x * x;
    }
    return xy / xx;
  }

  Times seconds_;
};

}  // namespace tarnwick
