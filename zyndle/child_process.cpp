#include "zyndle/child_process.h"

#include <sys/wait.h>

#include "Desktop/program_start.h"

namespace zyndle {

bool runQuietly(const std::vector<std::string>& arguments) {
  const auto program = desktop::startProgram(arguments);
  return program && desktop::endsWell(*program);
}

bool startQuietly(const std::vector<std::string>& arguments) {
  // Those started before that have ended meanwhile are put to rest.
  while (::waitpid(-1, nullptr, WNOHANG) > 0) {
  }
  return desktop::startProgram(arguments).has_value();
}

}  // namespace zyndle
