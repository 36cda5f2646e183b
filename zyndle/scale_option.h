#pragma once

#include <string>

namespace zyndle {

/// What was given with --scale, in pixels a point. A CommandError unless it is a number above 0, up
/// to 100.
double readScale(const std::string& text);

}  // namespace zyndle
