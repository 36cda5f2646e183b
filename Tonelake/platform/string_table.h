#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "Tonelake/foundation/api.h"

namespace tonelake {

/// The library's translations. Safe to call from any thread.
class TONELAKE_API StringTable {
 public:
  virtual ~StringTable() = default;

  /// The text for `key` in the current locale; without a translation, the English text. English
  /// is the key itself but for the few keys that have an English catalogue of their own.
  virtual std::string localized(std::string_view key) const = 0;
};

/// Marks a text of the sources for tools/messages.sh, which lists those that have translations.
constexpr const char* message(const char* english) noexcept {
  return english;
}

/// The texts in English, without any catalogue file.
TONELAKE_API std::shared_ptr<const StringTable> makeEnglishStringTable();

}  // namespace tonelake
