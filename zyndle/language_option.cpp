#include "zyndle/language_option.h"

#include <algorithm>
#include <iterator>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include "Desktop/ascii_text.h"
#include "Desktop/languages.h"
#include "Tonelake/foundation/text.h"
#include "zyndle/command_error.h"
#include "zyndle/output.h"
#include "zyndle/translation.h"

namespace zyndle {
namespace {

constexpr std::string_view option = "--lang";
constexpr std::string_view joinedOption = "--lang=";

// Languages that ASCII has no letters for.
constexpr std::string_view languagesBeyondAscii[] = {"ja"};

struct SplitArguments {
  std::optional<std::string> language;  ///< of the last --lang, as with other options given twice
  std::vector<const char*> others;
  bool isAscii = false;  ///< whether --ascii is among them
};

SplitArguments splitArguments(Arguments arguments) {
  SplitArguments split;
  for (std::size_t i = 0; i < arguments.size(); ++i) {
    const std::string_view argument = arguments[i];
    if (argument == "--") {
      split.others.insert(split.others.end(), arguments.begin() + static_cast<std::ptrdiff_t>(i),
                          arguments.end());
      return split;
    }
    if (argument == "--ascii") split.isAscii = true;
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

std::string readLanguage(const std::string& locale) {
  const std::optional<std::string> language = desktop::languageOfLocale(locale);
  if (language) {
    // Asked for by name; what the environment merely prefers gives way to English in silence.
    const auto missing = desktop::missingCatalogue(*language);
    if (missing)
      fail(translated("the texts of {0} are missing: there is no {1}", *language, *missing));
    return *language;
  }
  // TRANSLATORS: {0} is an option, {1} what was typed for it, {2} a list: --lang "x", "en, de".
  refuse(translated("{0} {1} is not one of {2}", option, tonelake::quoted(locale),
                    tonelake::join(desktop::knownLanguages(), ", ")));
}

// Texts without accents, before they are laid out: "ä" becomes two letters.
class AsciiStringTable final : public tonelake::StringTable {
 public:
  explicit AsciiStringTable(std::shared_ptr<const StringTable> strings)
      : strings_(std::move(strings)) {}

  std::string localized(std::string_view key) const override {
    return desktop::toAscii(strings_->localized(key));
  }

 private:
  std::shared_ptr<const StringTable> strings_;
};

void chooseAsciiStrings(const std::string& language) {
  const bool isBeyond = std::find(std::begin(languagesBeyondAscii), std::end(languagesBeyondAscii),
                                  language) != std::end(languagesBeyondAscii);
  chooseStrings(std::make_shared<AsciiStringTable>(
      desktop::makeStringTable(isBeyond ? std::string("en") : language)));
}

}  // namespace

std::vector<const char*> chooseLanguage(Arguments arguments) {
  std::string language = desktop::languageOfEnvironment();
  chooseStrings(desktop::makeStringTable(language));
  SplitArguments split = splitArguments(arguments);
  if (split.isAscii) reportInAscii();
  if (split.language) {
    language = readLanguage(*split.language);
    chooseStrings(desktop::makeStringTable(language));
  }
  if (split.isAscii) chooseAsciiStrings(language);
  return std::move(split.others);
}

}  // namespace zyndle
