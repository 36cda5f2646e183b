#include "benchmarks/process_cost.h"

#include <cstdio>
#include <cstdlib>

#include <fcntl.h>
#include <spawn.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace benchmarks {
namespace {

// The most memory it held, in kB.
long run(const std::vector<std::string>& arguments) {
  std::vector<char*> pointers;
  for (const std::string& argument : arguments) {
    pointers.push_back(const_cast<char*>(argument.c_str()));
  }
  pointers.push_back(nullptr);
  posix_spawn_file_actions_t actions;
  posix_spawn_file_actions_init(&actions);
  posix_spawn_file_actions_addopen(&actions, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
  pid_t child = 0;
  const int problem =
      ::posix_spawnp(&child, pointers.front(), &actions, nullptr, pointers.data(), environ);
  posix_spawn_file_actions_destroy(&actions);
  int status = -1;
  rusage usage{};
  if (problem == 0) ::wait4(child, &status, 0, &usage);
  if (status != 0) {
    std::fprintf(stderr, "%s failed\n", arguments.front().c_str());
    std::exit(EXIT_FAILURE);
  }
  return usage.ru_maxrss;
}

}  // namespace

ProcessCost measureProcess(int runs, const std::vector<std::string>& arguments) {
  long memory = 0;
  const Timing time = measure(runs, [&] { memory = std::max(memory, run(arguments)); });
  return {time, static_cast<double>(memory) / 1000};
}

}  // namespace benchmarks
