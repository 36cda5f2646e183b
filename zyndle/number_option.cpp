#include "zyndle/number_option.h"

#include <charconv>

#include "Tonelake/foundation/text.h"
#include "zyndle/command_error.h"

namespace zyndle {

using tonelake::WholeNumber;

WholeNumber readNumber(std::string_view option, const std::optional<std::string>& text,
                       WholeNumber fallback, WholeNumber lowest,
                       std::optional<WholeNumber> highest) {
  if (!text) return fallback;
  WholeNumber number = 0;
  const char* const end = text->data() + text->size();
  const auto [stop, error] = std::from_chars(text->data(), end, number);
  const bool isNumber = error == std::errc() && stop == end;
  if (!isNumber || number < lowest || (highest && number > *highest)) {
    refuse(std::string(option) + ' ' + tonelake::quoted(*text) + " is not a whole number from " +
           std::to_string(lowest) + (highest ? " to " + std::to_string(*highest) : " up"));
  }
  return number;
}

}  // namespace zyndle
