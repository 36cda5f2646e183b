#pragma once

#include <algorithm>
#include <chrono>
#include <ctime>
#include <vector>

namespace benchmarks {

/// Milliseconds of several runs of the same work.
struct Timing {
  double least = 0;
  double median = 0;
  double most = 0;
};

/// What this process has used of the processors: other processes do not disturb it.
struct ProcessorClock {
  using duration = std::chrono::duration<double>;
  using time_point = std::chrono::time_point<ProcessorClock, duration>;

  static time_point now() {
    return time_point(duration(static_cast<double>(std::clock()) / CLOCKS_PER_SEC));
  }
};

/// Runs `work` once to warm up and then `runs` times.
template <typename Clock = std::chrono::steady_clock, typename Work>
Timing measure(int runs, Work work) {
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
