#pragma once

#include "zyndle/command_error.h"

namespace zyndle {

/// Reads the command line and does what it asks for. A CommandError when it is wrong or cannot be
/// done.
void runCommandLine(int argc, const char* const* argv);

}  // namespace zyndle
