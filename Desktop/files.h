#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include <sys/types.h>

namespace desktop {

/// The whole file at `path`; nothing when it cannot be read or holds more than `limit` bytes.
std::optional<std::string> readFile(const std::string& path, std::size_t limit);

/// Makes `folder` and those above it that are missing, with what the user's mask leaves of `mode`.
/// Returns what went wrong, in one line.
std::optional<std::string> makeFolder(const std::string& folder, mode_t mode = 0777);

/// A descriptor of the file at `path`, which is made where there is none, with the mode that the
/// user's mask leaves; negative when that fails, see errno. `flags` say what happens to a file that
/// is there: O_TRUNC empties it, O_EXCL fails.
int openForWriting(const std::string& path, int flags);

/// Closes a file that was written to, for some file systems only tell then that there is no room.
/// `error`, unless that is 0; else 0 or the error number of the closing.
int closeWritten(int descriptor, int error);

/// Writes all of `text`. The system's answer: 0 or an error number.
int writeAll(int descriptor, std::string_view text);

}  // namespace desktop
