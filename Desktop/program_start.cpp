#include "Desktop/program_start.h"

#include <cerrno>
#include <csignal>
#include <cstdlib>

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

namespace desktop {
namespace {

// What a new process finds. The C library undoes nothing by itself.
class Surroundings {
 public:
  explicit Surroundings(const std::string& output) {
    ::posix_spawn_file_actions_init(&files_);
    ::posix_spawn_file_actions_addopen(&files_, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
    ::posix_spawn_file_actions_addopen(&files_, STDOUT_FILENO, output.c_str(), O_WRONLY, 0);
    ::posix_spawn_file_actions_adddup2(&files_, STDOUT_FILENO, STDERR_FILENO);
    // A signal that is ignored stays ignored in a new program, which counts on being ended by it.
    sigset_t ignored;
    ::sigemptyset(&ignored);
    for (const int signal : {SIGPIPE, SIGXFSZ}) ::sigaddset(&ignored, signal);
    ::posix_spawnattr_init(&attributes_);
    ::posix_spawnattr_setsigdefault(&attributes_, &ignored);
    ::posix_spawnattr_setflags(&attributes_, POSIX_SPAWN_SETSIGDEF);
  }
  Surroundings(const Surroundings&) = delete;
  Surroundings& operator=(const Surroundings&) = delete;
  ~Surroundings() {
    ::posix_spawn_file_actions_destroy(&files_);
    ::posix_spawnattr_destroy(&attributes_);
  }

  const posix_spawn_file_actions_t* files() const { return &files_; }
  const posix_spawnattr_t* attributes() const { return &attributes_; }

 private:
  posix_spawn_file_actions_t files_{};
  posix_spawnattr_t attributes_{};
};

}  // namespace

std::optional<pid_t> startProgram(const std::vector<std::string>& arguments,
                                  const std::string& output) {
  std::vector<char*> list;
  list.reserve(arguments.size() + 1);
  for (const std::string& argument : arguments) list.push_back(const_cast<char*>(argument.c_str()));
  list.push_back(nullptr);
  const Surroundings surroundings(output);
  pid_t program = 0;
  const int error = ::posix_spawnp(&program, list.front(), surroundings.files(),
                                   surroundings.attributes(), list.data(), environ);
  if (error == 0) return program;
  errno = error;
  return std::nullopt;
}

bool endsWell(pid_t program) {
  int status = 0;
  pid_t ended = 0;
  do {
    ended = ::waitpid(program, &status, 0);
  } while (ended < 0 && errno == EINTR);
  return ended == program && WIFEXITED(status) && WEXITSTATUS(status) == EXIT_SUCCESS;
}

}  // namespace desktop
