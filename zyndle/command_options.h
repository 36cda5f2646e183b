#pragma once

#include <optional>
#include <string>
#include <vector>

namespace CLI {
class App;
class Option;
}  // namespace CLI

namespace zyndle {

// How a subcommand says what it takes. Meanings are in English, marked as messages; what is given
// by reference has to live as long as the subcommand.

/// Adds what follows the subcommand by itself, the NAME of `zyndle chord NAME`, and requires it.
CLI::Option& addArgument(CLI::App& command, const char* name, std::string& text,
                         const char* meaning);
CLI::Option& addArgument(CLI::App& command, const char* name, std::vector<std::string>& words,
                         const char* meaning);

/// Adds an option with a value; `kind` stands for the value in the help: "--limit N". Where it is
/// not given, `value` stays what it was.
CLI::Option& addOption(CLI::App& command, const char* names, std::optional<std::string>& value,
                       const char* meaning, const char* kind);
CLI::Option& addOption(CLI::App& command, const char* names, std::string& value,
                       const char* meaning, const char* kind);

/// Adds an option that is given or not, and takes no value.
void addFlag(CLI::App& command, const char* name, bool& flag, const char* meaning);

}  // namespace zyndle
