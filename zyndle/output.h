#pragma once

#include <string>
#include <string_view>

namespace zyndle {

/// Writes to standard output at once, nothing kept back. A CommandError when that fails: with a
/// message, but silent when the reader of a pipe has gone, since it has seen what it wanted.
void writeStandardOutput(std::string_view text);

/// Makes the file at `path` hold `text` in one step, see replaceFile, or writes to standard output
/// when `path` is "-". A CommandError naming the file when that fails.
void writeFile(const std::string& path, std::string_view text);

/// `text` as one line of valid UTF-8: other bytes and control characters become U+FFFD.
std::string printable(std::string_view text);

/// "zyndle: ", the printable form of `message` and a line break on standard error. Does nothing
/// with an empty message.
void reportProblem(std::string_view message) noexcept;

/// Has reportProblem write ASCII only, from here on. Called before other threads start.
void reportInAscii() noexcept;

/// Whether standard output may be coloured: it is a terminal, and NO_COLOR is unset or empty.
bool mayColour();

}  // namespace zyndle
