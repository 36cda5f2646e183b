#pragma once

#include <stdexcept>
#include <string>

namespace zyndle {

/// Exit statuses of the command.
enum class ExitStatus { success = 0, failure = 1, badArguments = 2 };

/// Ends the command: one line on standard error, and the status. An empty message says nothing.
class CommandError : public std::runtime_error {
 public:
  CommandError(ExitStatus status, const std::string& message)
      : std::runtime_error(message), status_(status) {}

  ExitStatus status() const noexcept { return status_; }

 private:
  ExitStatus status_;
};

/// What the user typed is wrong.
[[noreturn]] inline void refuse(const std::string& message) {
  throw CommandError(ExitStatus::badArguments, message);
}

/// What the user asked for could not be done.
[[noreturn]] inline void fail(const std::string& message) {
  throw CommandError(ExitStatus::failure, message);
}

}  // namespace zyndle
