#pragma once

#include <string>
#include <vector>

namespace zyndle {

/// Takes --lang out of `arguments`, wherever it stands before a "--", and has everything after
/// this call speak its language, or without it that of the environment. It precedes the reading of
/// all other arguments, whose help is translated too. A CommandError when its value is missing or
/// names no known language.
void chooseLanguage(std::vector<std::string>& arguments);

}  // namespace zyndle
