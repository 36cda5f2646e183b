#pragma once

#include "zyndle/command.h"

namespace CLI {
class App;
}

namespace zyndle {

/// Adds `zyndle today`; `action` is set when it is the chosen subcommand.
void addTodayCommand(CLI::App& app, Action& action);

}  // namespace zyndle
