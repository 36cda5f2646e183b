#pragma once

#include <filesystem>
#include <optional>
#include <span>

#include "zyndle/command.h"

namespace CLI {
class App;
}

namespace zyndle {

/// What this process was started with, the program's own name first.
using Arguments = std::span<const char* const>;

/// A program beside zyndle that holds a subcommand.
struct Companion {
  const char* name;  ///< of the subcommand: "jam"
  const char*
      description;      ///< the line about it in `zyndle --help`, in English, marked as a message
  const char* program;  ///< "zyndle-jam"
};

/// Adds a subcommand that lives in a program of its own, so that only those who use it load its
/// libraries. Its arguments, --help included, are read there.
void addCompanionCommand(CLI::App& app, Action& action, Arguments arguments,
                         const Companion& companion);

/// The file that this process runs. A CommandError when the system does not tell.
std::filesystem::path ownProgram();

/// Where the program of a companion is: in the folder that this program lies in, or else in
/// ../libexec/zyndle beside that folder. Nothing when it is in neither.
std::optional<std::filesystem::path> findCompanion(const char* program);

/// Becomes `program` with these same arguments. Returns only by a CommandError, when it is not
/// installed.
[[noreturn]] void becomeCompanion(const char* program, Arguments arguments);

}  // namespace zyndle
