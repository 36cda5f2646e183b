#pragma once

#include "zyndle/command.h"

namespace CLI {
class App;
}

namespace zyndle {

/// Adds `zyndle reminders`; `action` is set when one of its subcommands is the chosen one.
void addRemindersCommand(CLI::App& app, Action& action);

}  // namespace zyndle
