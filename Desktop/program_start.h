#pragma once

#include <optional>
#include <string>
#include <vector>

#include <sys/types.h>

namespace desktop {

/// Starts a program: `arguments` are its name, looked for as a shell does, and what follows it. It
/// has nothing to read, and what it says goes to the file at `output`, which is there. Signals that
/// this process ignores have their usual effect on it. Its process; nothing when that fails, with
/// the reason in errno.
std::optional<pid_t> startProgram(const std::vector<std::string>& arguments,
                                  const std::string& output = "/dev/null");

/// Waits for the end of a program that startProgram started. Whether it ended with status 0.
bool endsWell(pid_t program);

}  // namespace desktop
