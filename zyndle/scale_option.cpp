#include "zyndle/scale_option.h"

#include <charconv>
#include <system_error>

#include "Tonelake/foundation/text.h"
#include "zyndle/command_error.h"
#include "zyndle/translation.h"

namespace zyndle {

double readScale(const std::string& text) {
  constexpr double largestScale = 100;
  double scale = 0;
  const char* const end = text.data() + text.size();
  const auto [stop, error] = std::from_chars(text.data(), end, scale);
  const bool isNumber = error == std::errc() && stop == end;
  if (!isNumber || !(scale > 0 && scale <= largestScale)) {
    refuse(translated("{0} {1} is not a number above 0, up to 100", "--scale",
                      tonelake::quoted(text)));
  }
  return scale;
}

}  // namespace zyndle
