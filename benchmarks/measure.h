#pragma once

#include <algorithm>
#include <chrono>
#include <vector>

namespace benchmarks {

/// Milliseconds of several runs of the same work.
struct Timing {
  double least = 0;
  double median = 0;
  double most = 0;
};

/// Runs `work` once to warm up and then `runs` times.
template <typename Work>
Timing measure(int runs, Work work) {
  using Clock = std::chrono::steady_clock;
  work();
  std::vector<double> times;
  for (int run = 0; run < runs; ++run) {
    const auto start = Clock::now();
    work();
    times.push_back(std::chrono::duration<double, std::milli>(Clock::now() - start).count());
  }
  std::sort(times.begin(), times.end());
  return {times.front(), times[times.size() / 2], times.back()};
}

}  // namespace benchmarks
