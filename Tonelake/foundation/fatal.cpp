#include "Tonelake/foundation/fatal.h"

#include <cstdio>
#include <cstdlib>

namespace tonelake {

void stopWithProgrammingError(std::string_view message) noexcept {
  if (!message.empty()) {
    std::fprintf(stderr, "Programming error: %.*s\n", static_cast<int>(message.size()),
                 message.data());
  }
  std::abort();
}

}  // namespace tonelake
