#include "tests/support/program_run.h"

#include <array>
#include <cstdio>
#include <cstdlib>

#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

namespace tonelake::testing {
namespace {

// An unnamed file: it takes any amount of output without anyone reading along.
class Capture {
 public:
  Capture() : file_(std::tmpfile()) {}
  Capture(const Capture&) = delete;
  Capture& operator=(const Capture&) = delete;
  ~Capture() { std::fclose(file_); }

  int descriptor() const { return fileno(file_); }

  void fill(const std::string& text) {
    std::fwrite(text.data(), 1, text.size(), file_);
    std::rewind(file_);
  }

  std::string contents() {
    std::rewind(file_);
    std::string text;
    std::array<char, 4096> piece{};
    for (std::size_t got = 0; (got = std::fread(piece.data(), 1, piece.size(), file_)) > 0;) {
      text.append(piece.data(), got);
    }
    return text;
  }

 private:
  std::FILE* file_;
};

std::vector<char*> pointersTo(const std::vector<std::string>& texts) {
  std::vector<char*> pointers;
  pointers.reserve(texts.size() + 1);
  for (const std::string& text : texts) pointers.push_back(const_cast<char*>(text.c_str()));
  pointers.push_back(nullptr);
  return pointers;
}

int openOutput(const ProgramRun& run, int capture) {
  if (run.readerIsGone) {
    std::array<int, 2> ends{};
    if (::pipe(ends.data()) != 0) std::abort();
    ::close(ends[0]);
    return ends[1];
  }
  return run.outputFile.empty() ? ::dup(capture) : ::open(run.outputFile.c_str(), O_WRONLY);
}

}  // namespace

ProgramResult runProgram(const ProgramRun& run) {
  Capture input;
  Capture output;
  Capture errors;
  input.fill(run.input);
  const std::vector<char*> arguments = pointersTo(run.arguments);
  const std::vector<char*> environment = pointersTo(run.environment);
  const int standardOutput = openOutput(run, output.descriptor());
  const pid_t child = ::fork();
  if (child == 0) {
    ::dup2(input.descriptor(), STDIN_FILENO);
    ::dup2(standardOutput, STDOUT_FILENO);
    ::dup2(errors.descriptor(), STDERR_FILENO);
    ::execve(arguments.front(), arguments.data(), environment.data());
    ::_exit(127);
  }
  int status = 0;
  ::waitpid(child, &status, 0);
  ::close(standardOutput);
  const int exitStatus = WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
  return {exitStatus, output.contents(), errors.contents()};
}

}  // namespace tonelake::testing
