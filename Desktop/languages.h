#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "Tonelake/platform/string_table.h"

namespace desktop {

/// The languages there are texts in, by their two letters; English, which needs no catalogue,
/// first.
const std::vector<std::string>& knownLanguages();

/// The known language of a locale: "de" for "de", "de_AT.UTF-8" and "de-AT". Nothing for one that
/// has no catalogue.
std::optional<std::string> languageOfLocale(std::string_view locale);

/// What the user has chosen for every program: the first known language in LANGUAGE, which may
/// list several ("gl:es:en"), else that of LC_ALL, LC_MESSAGES or LANG, the first that is set;
/// else English.
std::string languageOfEnvironment();

/// The file with the texts of a known language, if it is not where it should be.
std::optional<std::string> missingCatalogue(const std::string& language);

/// The texts in a known language. English opens no file. The others have gettext look in
/// ../share/locale beside the program's own folder, which needs no locale on the machine but
/// C.UTF-8; what has no translation stays English. Call it on the main thread, before others
/// start: it sets LANGUAGE for this process and those it starts, and for another language than
/// English the locale's LC_CTYPE and LC_MESSAGES. Of several tables, all speak the language of the
/// last.
std::shared_ptr<const tonelake::StringTable> makeStringTable(const std::string& language);

}  // namespace desktop
