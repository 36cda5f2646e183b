#include "zyndle/child_process.h"

#include <cstdlib>
#include <optional>

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

namespace zyndle {
namespace {

std::optional<pid_t> start(const std::vector<std::string>& arguments) {
  std::vector<char*> list;
  list.reserve(arguments.size() + 1);
  for (const std::string& argument : arguments) list.push_back(const_cast<char*>(argument.c_str()));
  list.push_back(nullptr);
  posix_spawn_file_actions_t files;
  ::posix_spawn_file_actions_init(&files);
  for (const int stream : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
    ::posix_spawn_file_actions_addopen(&files, stream, "/dev/null", O_RDWR, 0);
  }
  pid_t child = 0;
  const int error = ::posix_spawnp(&child, list[0], &files, nullptr, list.data(), environ);
  ::posix_spawn_file_actions_destroy(&files);
  return error == 0 ? std::optional(child) : std::nullopt;
}

}  // namespace

bool runQuietly(const std::vector<std::string>& arguments) {
  const std::optional<pid_t> child = start(arguments);
  int status = 0;
  return child && ::waitpid(*child, &status, 0) == *child && WIFEXITED(status) &&
         WEXITSTATUS(status) == EXIT_SUCCESS;
}

bool startQuietly(const std::vector<std::string>& arguments) {
  // Those started before that have ended meanwhile are put to rest.
  while (::waitpid(-1, nullptr, WNOHANG) > 0) {
  }
  return start(arguments).has_value();
}

}  // namespace zyndle
