#include "zyndle/companion.h"

#include <filesystem>
#include <vector>

#include <CLI/CLI.hpp>
#include <unistd.h>

#include "zyndle/command_error.h"
#include "zyndle/translation.h"

namespace zyndle {

std::filesystem::path ownProgram() {
  std::error_code error;
  std::filesystem::path program = std::filesystem::read_symlink("/proc/self/exe", error);
  if (error) fail(translated("cannot tell where this program is installed: {}", error.message()));
  return program;
}

void addCompanionCommand(CLI::App& app, Action& action, Arguments arguments,
                         const Companion& companion) {
  CLI::App& command = *app.add_subcommand(companion.name, translated(companion.description));
  command.set_help_flag();
  command.prefix_command();
  const char* const program = companion.program;
  command.callback(
      [&action, program, arguments] { action = [=] { becomeCompanion(program, arguments); }; });
}

std::optional<std::filesystem::path> findCompanion(const char* program) {
  const std::filesystem::path folder = ownProgram().parent_path();
  for (const auto& place : {folder, folder / ".." / "libexec" / "zyndle"}) {
    if (::access((place / program).c_str(), X_OK) == 0) return place / program;
  }
  return std::nullopt;
}

void becomeCompanion(const char* program, Arguments arguments) {
  const auto path = findCompanion(program);
  if (path) {
    std::vector<char*> list;
    // exec promises not to change what it is given, which its type does not say.
    for (const char* argument : arguments) list.push_back(const_cast<char*>(argument));
    list.push_back(nullptr);
    ::execv(path->c_str(), list.data());
  }
  fail(translated("{0} is missing: it should be installed beside zyndle, in {1}", program,
                  ownProgram().parent_path().string()));
}

}  // namespace zyndle
