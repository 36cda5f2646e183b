#pragma once

#include <string>
#include <vector>

namespace zyndle {

/// Runs a program that is looked for as a shell does, with nothing to read and its output thrown
/// away, to its end. Whether it was there and ended with status 0.
bool runQuietly(const std::vector<std::string>& arguments);

/// Starts such a program and does not wait for it. Whether it was there.
bool startQuietly(const std::vector<std::string>& arguments);

}  // namespace zyndle
