#include "zyndle/output.h"

#include <cerrno>
#include <cstdio>
#include <cstring>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "Desktop/ascii_text.h"
#include "Desktop/environment.h"
#include "Desktop/file_replacement.h"
#include "Desktop/files.h"
#include "Tonelake/foundation/text.h"
#include "zyndle/command_error.h"
#include "zyndle/translation.h"

namespace zyndle {
namespace {

bool reportsInAscii = false;

[[noreturn]] void failWriting(const std::string& target, int error) {
  fail(translated("cannot write {0}: {1}", target, std::strerror(error)));
}

// Straight into what stands at `path`, which may be a device or a pipe. 0 or an error number.
int writeInto(const std::string& path, std::string_view text) {
  const int file = desktop::openForWriting(path, O_TRUNC);
  if (file < 0) return errno;
  return desktop::closeWritten(file, desktop::writeAll(file, text));
}

// Whether nothing is lost when the file at `path` gives way to a new one: a link stays a link, a
// pipe a pipe, and what may not be written is left alone.
bool mayBeReplaced(const std::string& path) {
  struct stat status {};
  if (::lstat(path.c_str(), &status) != 0) return errno == ENOENT;
  return S_ISREG(status.st_mode) && ::access(path.c_str(), W_OK) == 0;
}

}  // namespace

void writeStandardOutput(std::string_view text) {
  // On the descriptor rather than through a stream, whose buffer could fail after the command has
  // ended well. Diagnostic lines may wait in the stream's buffer; they were written earlier.
  std::fflush(stdout);
  const int error = desktop::writeAll(STDOUT_FILENO, text);
  if (error == EPIPE) fail("");
  if (error != 0) failWriting(translated("standard output"), error);
}

void writeFile(const std::string& path, std::string_view text) {
  if (path == "-") return writeStandardOutput(text);
  const int error = mayBeReplaced(path) ? desktop::replaceFile(path, text) : writeInto(path, text);
  if (error != 0) failWriting("\"" + path + "\"", error);
}

void reportProblem(std::string_view message) noexcept {
  if (message.empty()) return;
  std::string line = printable(message);
  if (reportsInAscii) line = desktop::toAscii(line);
  desktop::writeAll(STDERR_FILENO, "zyndle: " + line + "\n");
}

void reportInAscii() noexcept {
  reportsInAscii = true;
}

std::string printable(std::string_view text) {
  std::string line;
  for (const std::string_view character : tonelake::splitCharacters(text)) {
    line += tonelake::isPrintable(character) ? character : tonelake::replacementCharacter;
  }
  return line;
}

bool mayColour() {
  return isatty(STDOUT_FILENO) == 1 &&
         desktop::environmentVariable("NO_COLOR").value_or("").empty();
}

}  // namespace zyndle
