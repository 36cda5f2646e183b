#include "zyndle/command_line.h"
#include "zyndle/reminders_command.h"

namespace {

void addCommands(CLI::App& app, zyndle::Action& action, zyndle::Arguments /*arguments*/) {
  zyndle::addRemindersCommand(app, action);
}

}  // namespace

int main(int argc, char** argv) {
  return zyndle::runProgram(argc, argv, addCommands);
}
