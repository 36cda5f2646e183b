#include "zyndle/companion.h"

#include <filesystem>
#include <string>
#include <vector>

#include <CLI/CLI.hpp>
#include <unistd.h>

#include "zyndle/command_error.h"

namespace zyndle {
namespace {

std::filesystem::path ownFolder() {
  std::error_code error;
  const std::filesystem::path program = std::filesystem::read_symlink("/proc/self/exe", error);
  if (error) fail("cannot tell where zyndle is installed: " + error.message());
  return program.parent_path();
}

}  // namespace

void addCompanionCommand(CLI::App& app, Action& action, Arguments arguments,
                         const Companion& companion) {
  CLI::App& command = *app.add_subcommand(companion.name, companion.description);
  command.set_help_flag();
  command.prefix_command();
  const char* const program = companion.program;
  command.callback(
      [&action, program, arguments] { action = [=] { becomeCompanion(program, arguments); }; });
}

void becomeCompanion(const char* program, Arguments arguments) {
  std::vector<char*> list;
  // exec promises not to change what it is given, which its type does not say.
  for (const char* argument : arguments) list.push_back(const_cast<char*>(argument));
  list.push_back(nullptr);
  const std::filesystem::path folder = ownFolder();
  for (const auto& place : {folder, folder / ".." / "libexec" / "zyndle"}) {
    ::execv((place / program).c_str(), list.data());
  }
  fail(std::string(program) + " is missing: it should be installed beside zyndle, in " +
       folder.string());
}

}  // namespace zyndle
