#include "Desktop/environment.h"

#include <cstdlib>
#include <string_view>

#include <unistd.h>

#include "Tonelake/foundation/text.h"

namespace desktop {

std::optional<std::string> environmentVariable(const char* name) {
  const char* value = std::getenv(name);
  return value != nullptr ? std::optional<std::string>(value) : std::nullopt;
}

std::optional<std::string> findProgram(const std::string& name) {
  const std::string path = environmentVariable("PATH").value_or("");
  for (const std::string_view folder : tonelake::split(path, ':')) {
    std::string candidate = std::string(folder) + '/' + name;
    if (!folder.empty() && ::access(candidate.c_str(), X_OK) == 0) return candidate;
  }
  return std::nullopt;
}

}  // namespace desktop
