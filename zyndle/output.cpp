#include "zyndle/output.h"

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>

#include <fcntl.h>
#include <unistd.h>

#include "Tonelake/foundation/text.h"
#include "zyndle/command_error.h"
#include "zyndle/translation.h"

namespace zyndle {
namespace {

constexpr mode_t newFileMode = 0666;  // less what the user's mask takes away

// The system's answer to writing all of `text`: 0 or an error number. Done on the descriptor
// rather than through a stream, whose buffer could fail after the command has ended well.
int writeAll(int descriptor, std::string_view text) {
  while (!text.empty()) {
    const ssize_t written = ::write(descriptor, text.data(), text.size());
    if (written < 0 && errno == EINTR) continue;
    if (written < 0) return errno;
    text.remove_prefix(static_cast<std::size_t>(written));
  }
  return 0;
}

[[noreturn]] void failWriting(const std::string& target, int error) {
  fail(translated("cannot write {0}: {1}", target, std::strerror(error)));
}

bool isControl(char byte) {
  return static_cast<unsigned char>(byte) < 0x20U || byte == '\x7F';
}

}  // namespace

void writeStandardOutput(std::string_view text) {
  // Diagnostic lines may wait in the stream's buffer; they were written earlier.
  std::fflush(stdout);
  const int error = writeAll(STDOUT_FILENO, text);
  if (error == EPIPE) fail("");
  if (error != 0) failWriting(translated("standard output"), error);
}

void writeFile(const std::string& path, std::string_view text) {
  if (path == "-") return writeStandardOutput(text);
  const int file = ::open(path.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, newFileMode);
  if (file < 0) failWriting("\"" + path + "\"", errno);
  int error = writeAll(file, text);
  // Some file systems only tell on closing that there is no room.
  if (::close(file) != 0 && error == 0) error = errno;
  if (error != 0) failWriting("\"" + path + "\"", error);
}

void reportProblem(std::string_view message) noexcept {
  if (message.empty()) return;
  writeAll(STDERR_FILENO, "zyndle: " + printable(message) + "\n");
}

std::string printable(std::string_view text) {
  std::string line;
  for (const std::string_view character : tonelake::splitCharacters(text)) {
    const bool isShown = tonelake::isValidUtf8(character) && !isControl(character.front());
    line += isShown ? character : "\uFFFD";
  }
  return line;
}

bool mayColour() {
  const char* noColor = std::getenv("NO_COLOR");
  return isatty(STDOUT_FILENO) == 1 && (noColor == nullptr || *noColor == '\0');
}

}  // namespace zyndle
