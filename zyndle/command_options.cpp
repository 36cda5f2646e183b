#include "zyndle/command_options.h"

#include <CLI/CLI.hpp>

#include "zyndle/translation.h"

namespace zyndle {
namespace {

template <typename Value>
CLI::Option& add(CLI::App& command, const char* names, Value& value, const char* meaning,
                 const char* kind) {
  return *command.add_option(names, value, translated(meaning))->type_name(kind);
}

}  // namespace

CLI::Option& addArgument(CLI::App& command, const char* name, std::string& text,
                         const char* meaning) {
  return *add(command, name, text, meaning, "").required();
}

CLI::Option& addArgument(CLI::App& command, const char* name, std::vector<std::string>& words,
                         const char* meaning) {
  return *add(command, name, words, meaning, "").required();
}

CLI::Option& addOption(CLI::App& command, const char* names, std::optional<std::string>& value,
                       const char* meaning, const char* kind) {
  return add(command, names, value, meaning, kind);
}

CLI::Option& addOption(CLI::App& command, const char* names, std::string& value,
                       const char* meaning, const char* kind) {
  return add(command, names, value, meaning, kind);
}

void addFlag(CLI::App& command, const char* name, bool& flag, const char* meaning) {
  command.add_flag(name, flag, translated(meaning))->disable_flag_override();
}

}  // namespace zyndle
