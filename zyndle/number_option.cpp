#include "zyndle/number_option.h"

#include <charconv>

#include "Tonelake/foundation/text.h"
#include "zyndle/command_error.h"
#include "zyndle/translation.h"

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
    refuse(highest ? translated("{0} {1} is not a whole number from {2} to {3}", option,
                                tonelake::quoted(*text), lowest, *highest)
                   : translated("{0} {1} is not a whole number from {2} up", option,
                                tonelake::quoted(*text), lowest));
  }
  return number;
}

}  // namespace zyndle
