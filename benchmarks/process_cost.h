#pragma once

#include <string>
#include <vector>

#include "benchmarks/measure.h"

namespace benchmarks {

struct ProcessCost {
  Timing time;            ///< milliseconds from start to end
  double peakMemory = 0;  ///< resident, MB
};

/// Starts a program again and again, its output thrown away. Ends this process with a message when
/// the program cannot be started or fails.
ProcessCost measureProcess(int runs, const std::vector<std::string>& arguments);

}  // namespace benchmarks
