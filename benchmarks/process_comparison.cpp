// process_comparison ZYNDLE: what the program costs as a whole process, as a table in Markdown.
// Small and apart from the rest, for a process counts as at least as large as the one that
// started it.

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <string>
#include <vector>

#include <fcntl.h>
#include <spawn.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include "benchmarks/measure.h"

namespace {

struct ProcessCost {
  double milliseconds = 0;  ///< median
  double megabytes = 0;     ///< most that was resident
};

// Its output is thrown away. The most memory it held, in kB.
long run(const std::vector<std::string>& arguments) {
  std::vector<char*> pointers;
  pointers.reserve(arguments.size() + 1);
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

ProcessCost measureProcess(const std::vector<std::string>& arguments) {
  constexpr int runs = 41;
  long memory = 0;
  const auto time = benchmarks::measure(runs, [&] { memory = std::max(memory, run(arguments)); });
  return {time.median, static_cast<double>(memory) / 1000};
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 2) {
    std::fprintf(stderr, "usage: process_comparison ZYNDLE\n");
    return EXIT_FAILURE;
  }
  const std::string zyndle = argv[1];
  const std::string picture =
      (std::filesystem::temp_directory_path() / "process_comparison.png").string();
  const struct {
    const char* name;
    std::vector<std::string> arguments;
  } rows[] = {
      {"true", {"true"}},
      {"zyndle --version", {zyndle, "--version"}},
      {"zyndle today", {zyndle, "today"}},
      {"zyndle voicings C/E", {zyndle, "voicings", "C/E"}},
      {"zyndle find \"E, G, C\"", {zyndle, "find", "E, G, C"}},
      {"zyndle widget ZyndleChordWidget", {zyndle, "widget", "ZyndleChordWidget"}},
      {"the same as PNG", {zyndle, "widget", "ZyndleChordWidget", "-o", picture}},
  };
  std::printf("| whole process | time | memory |\n|---|---|---|\n");
  for (const auto& row : rows) {
    const ProcessCost cost = measureProcess(row.arguments);
    std::printf("| `%s` | %.1f ms | %.1f MB |\n", row.name, cost.milliseconds, cost.megabytes);
  }
  std::filesystem::remove(picture);
}
