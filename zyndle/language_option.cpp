#include "zyndle/language_option.h"

#include <optional>
#include <string>
#include <string_view>

#include "Desktop/languages.h"
#include "Tonelake/foundation/text.h"
#include "zyndle/command_error.h"
#include "zyndle/translation.h"

namespace zyndle {
namespace {

constexpr std::string_view option = "--lang";
constexpr std::string_view joinedOption = "--lang=";

struct Split {
  std::optional<std::string> language;  ///< of the last --lang, as with other options given twice
  std::vector<const char*> others;
};

Split splitArguments(Arguments arguments) {
  Split split;
  for (std::size_t i = 0; i < arguments.size(); ++i) {
    const std::string_view argument = arguments[i];
    if (argument == "--") {
      split.others.insert(split.others.end(), arguments.begin() + static_cast<std::ptrdiff_t>(i),
                          arguments.end());
      return split;
    }
    if (argument.starts_with(joinedOption)) {
      split.language = argument.substr(joinedOption.size());
    } else if (argument == option) {
      if (++i == arguments.size()) refuse(translated("{} needs one value", option));
      split.language = arguments[i];
    } else {
      split.others.push_back(arguments[i]);
    }
  }
  return split;
}

}  // namespace

std::vector<const char*> chooseLanguage(Arguments arguments) {
  chooseStrings(desktop::makeStringTable(desktop::languageOfEnvironment()));
  Split split = splitArguments(arguments);
  if (!split.language) return split.others;
  const std::optional<std::string> language = desktop::languageOfLocale(*split.language);
  if (!language) {
    refuse(translated("{0} {1} is not one of {2}", option, tonelake::quoted(*split.language),
                      tonelake::join(desktop::knownLanguages(), ", ")));
  }
  chooseStrings(desktop::makeStringTable(*language));
  return split.others;
}

}  // namespace zyndle
