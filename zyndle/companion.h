#pragma once

#include <span>

#include "zyndle/command.h"

namespace CLI {
class App;
}

namespace zyndle {

/// What this process was started with, the program's own name first.
using Arguments = std::span<const char* const>;

/// Adds a subcommand that lives in a program of its own, so that only those who use it load its
/// libraries. Its arguments, --help included, are read there.
struct Companion {
  const char* name;         ///< of the subcommand: "jam"
  const char* description;  ///< the line about it in `zyndle --help`
  const char* program;      ///< "zyndle-jam"
};
void addCompanionCommand(CLI::App& app, Action& action, Arguments arguments,
                         const Companion& companion);

/// Becomes `program` with these same arguments. It is looked for in the folder that this program
/// lies in, then in ../libexec/zyndle beside that folder. Returns only by a CommandError, when it
/// is in neither.
[[noreturn]] void becomeCompanion(const char* program, Arguments arguments);

}  // namespace zyndle
