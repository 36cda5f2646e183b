#include "Desktop/languages.h"

#include <algorithm>
#include <clocale>
#include <cstdlib>
#include <filesystem>

#include <libintl.h>

#include "Desktop/environment.h"
#include "Tonelake/foundation/text.h"

namespace desktop {
namespace {

constexpr const char* english = "en";
constexpr const char* domain = "tonelake";

// bin/zyndle has its catalogues in share/locale, in an installed tree as in a build folder, and so
// has a program in libexec/zyndle.
std::filesystem::path catalogueFolder() {
  std::error_code problem;
  const auto program = std::filesystem::read_symlink("/proc/self/exe", problem);
  const auto tree = program.parent_path().parent_path();
  const auto near = tree / "share" / "locale";
  return std::filesystem::exists(near, problem) ? near : tree.parent_path() / "share" / "locale";
}

// gettext disregards LANGUAGE in the locale "C", hence one that every machine has. LC_CTYPE goes
// along, or the system's own messages would come in ASCII, with "?" for every other letter.
void speak(const std::string& language) {
  ::setenv("LANGUAGE", language.c_str(), 1);
  if (language == english) return;
  for (const int category : {LC_CTYPE, LC_MESSAGES}) {
    if (std::setlocale(category, "C.UTF-8") == nullptr) std::setlocale(category, "");
  }
  ::bindtextdomain(domain, catalogueFolder().c_str());
  ::bind_textdomain_codeset(domain, "UTF-8");
}

class GettextStringTable final : public tonelake::StringTable {
 public:
  std::string localized(std::string_view key) const override {
    // gettext answers the empty key with the catalogue's header.
    if (key.empty()) return "";
    const std::string message(key);
    const char* text = ::dgettext(domain, message.c_str());
    // Without a translation the answer is the argument itself.
    return text == message.c_str() ? english_->localized(key) : text;
  }

 private:
  std::shared_ptr<const tonelake::StringTable> english_ = tonelake::makeEnglishStringTable();
};

}  // namespace

const std::vector<std::string>& knownLanguages() {
  static const std::vector<std::string> languages = [] {
    std::vector<std::string> names{english};
    for (const auto language : tonelake::split(ZYNDLE_LANGUAGES, ' ')) names.emplace_back(language);
    return names;
  }();
  return languages;
}

std::optional<std::string> languageOfLocale(std::string_view locale) {
  const std::string language(locale.substr(0, locale.find_first_of("_-.@")));
  const auto& known = knownLanguages();
  if (std::find(known.begin(), known.end(), language) == known.end()) return std::nullopt;
  return language;
}

std::string languageOfEnvironment() {
  const std::string wantedLanguages = environmentVariable("LANGUAGE").value_or("");
  for (const std::string_view wanted : tonelake::split(wantedLanguages, ':')) {
    if (const auto language = languageOfLocale(wanted)) return *language;
  }
  for (const char* name : {"LC_ALL", "LC_MESSAGES", "LANG"}) {
    const std::string locale = environmentVariable(name).value_or("");
    if (!locale.empty()) return languageOfLocale(locale).value_or(english);
  }
  return english;
}

std::optional<std::string> missingCatalogue(const std::string& language) {
  if (language == english) return std::nullopt;
  const auto file = catalogueFolder() / language / "LC_MESSAGES" / (std::string(domain) + ".mo");
  std::error_code problem;
  if (std::filesystem::exists(file, problem)) return std::nullopt;
  return file.string();
}

std::shared_ptr<const tonelake::StringTable> makeStringTable(const std::string& language) {
  speak(language);
  if (language == english) return tonelake::makeEnglishStringTable();
  return std::make_shared<GettextStringTable>();
}

}  // namespace desktop
