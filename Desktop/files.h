#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace desktop {

/// The whole file at `path`; nothing when it cannot be read or holds more than `limit` bytes.
std::optional<std::string> readFile(const std::string& path, std::size_t limit);

/// Writes all of `text`. The system's answer: 0 or an error number.
int writeAll(int descriptor, std::string_view text);

}  // namespace desktop
