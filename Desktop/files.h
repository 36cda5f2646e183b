#pragma once

#include <cstddef>
#include <optional>
#include <string>

namespace desktop {

/// The whole file at `path`; nothing when it cannot be read or holds more than `limit` bytes.
std::optional<std::string> readFile(const std::string& path, std::size_t limit);

}  // namespace desktop
