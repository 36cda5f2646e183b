#include "zyndle/scale_option.h"

#include <charconv>
#include <system_error>

#include "Tonelake/foundation/text.h"
#include "zyndle/command_error.h"

namespace zyndle {

double readScale(const std::string& text) {
  constexpr double largestScale = 100;
  double scale = 0;
  const char* const end = text.data() + text.size();
  const auto [stop, error] = std::from_chars(text.data(), end, scale);
  const bool isNumber = error == std::errc() && stop == end;
  if (!isNumber || !(scale > 0 && scale <= largestScale)) {
    refuse("--scale " + tonelake::quoted(text) + " is not a number above 0, up to 100");
  }
  return scale;
}

}  // namespace zyndle
