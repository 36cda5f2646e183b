#include <csignal>
#include <exception>

#include "zyndle/command_line.h"
#include "zyndle/output.h"

int main(int argc, char** argv) {
  // A reader that goes away is an error to handle, not a reason to be killed.
  std::signal(SIGPIPE, SIG_IGN);
  try {
    zyndle::runCommandLine(argc, argv);
  } catch (const zyndle::CommandError& error) {
    zyndle::reportProblem(error.what());
    return static_cast<int>(error.status());
  } catch (const std::exception& error) {
    zyndle::reportProblem(error.what());
    return static_cast<int>(zyndle::ExitStatus::failure);
  }
  return static_cast<int>(zyndle::ExitStatus::success);
}
