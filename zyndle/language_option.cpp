#include "zyndle/language_option.h"

#include <algorithm>
#include <optional>

#include "Desktop/languages.h"
#include "Tonelake/foundation/text.h"
#include "zyndle/command_error.h"
#include "zyndle/translation.h"

namespace zyndle {
namespace {

constexpr std::string_view option = "--lang";

// The value of the last --lang, as with other options that are given twice.
std::optional<std::string> takeOption(std::vector<std::string>& arguments) {
  std::optional<std::string> value;
  const std::string joined = std::string(option) + "=";
  for (std::size_t i = 0; i < arguments.size() && arguments[i] != "--";) {
    const bool isAlone = arguments[i] == option;
    if (!isAlone && !arguments[i].starts_with(joined)) {
      ++i;
      continue;
    }
    if (isAlone && i + 1 == arguments.size()) {
      refuse(translated("{} needs one value", option));
    }
    value = isAlone ? arguments[i + 1] : arguments[i].substr(joined.size());
    const auto first = arguments.begin() + static_cast<std::ptrdiff_t>(i);
    arguments.erase(first, first + (isAlone ? 2 : 1));
  }
  return value;
}

}  // namespace

void chooseLanguage(std::vector<std::string>& arguments) {
  chooseStrings(desktop::makeStringTable(desktop::languageOfEnvironment()));
  const std::optional<std::string> wanted = takeOption(arguments);
  if (!wanted) return;
  const std::optional<std::string> language = desktop::languageOfLocale(*wanted);
  if (!language) {
    refuse(translated("{0} {1} is not one of {2}", option, tonelake::quoted(*wanted),
                      tonelake::join(desktop::knownLanguages(), ", ")));
  }
  chooseStrings(desktop::makeStringTable(*language));
}

}  // namespace zyndle
