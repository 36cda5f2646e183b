#pragma once

#include <string>
#include <string_view>

namespace desktop {

/// Makes the file at `path` hold `contents` in one step: whoever reads it meanwhile sees the whole
/// old file or the whole new one, and when it goes wrong the old one stays. The new one has the old
/// one's mode. Returns the system's answer: 0 or an error number.
int replaceFile(const std::string& path, std::string_view contents);

}  // namespace desktop
