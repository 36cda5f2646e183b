#include "zyndle/command_line.h"
#include "zyndle/jam_command.h"
#include "zyndle/patterns_command.h"

namespace {

void addCommands(CLI::App& app, zyndle::Action& action, zyndle::Arguments /*arguments*/) {
  zyndle::addJamCommand(app, action);
  zyndle::addPatternsCommand(app, action);
}

}  // namespace

int main(int argc, char** argv) {
  return zyndle::runProgram(argc, argv, addCommands);
}
