#pragma once

#include <optional>
#include <string>

namespace desktop {

/// Nothing when it is not set, which is not the same as being set to nothing. Not while another
/// thread sets variables.
std::optional<std::string> environmentVariable(const char* name);

/// The path of a program in one of the folders of PATH.
std::optional<std::string> findProgram(const std::string& name);

}  // namespace desktop
