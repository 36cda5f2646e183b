#pragma once

#include "zyndle/command.h"
#include "zyndle/companion.h"

namespace zyndle {

/// Adds the subcommands that a program has; each sets `action` when it is the chosen one.
using AddCommands = void (*)(CLI::App& app, Action& action, Arguments arguments);

/// What main of zyndle and of each companion does: reads the command line, runs the chosen
/// subcommand and tells on standard error what is wrong. Returns the exit status.
int runProgram(int argc, const char* const* argv, AddCommands addCommands);

}  // namespace zyndle
