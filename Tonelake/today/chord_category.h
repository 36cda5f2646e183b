#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "Tonelake/foundation/api.h"
#include "Tonelake/platform/string_table.h"

namespace tonelake {

/// How hard the chord of the day is. A value; any thread may ask it.
class TONELAKE_API ChordCategory {
 public:
  /// From the easiest on.
  enum Case : std::uint8_t { beginner, advanced, jazz };

  /// Implicit, so that a case serves where a category is due.
  constexpr ChordCategory(Case category) noexcept  // NOLINT(google-explicit-constructor)
      : case_(category) {}
  constexpr operator Case() const noexcept { return case_; }  // NOLINT(google-explicit-constructor)

  /// Exactly "beginner", "advanced" or "jazz"; nothing for any other text.
  static std::optional<ChordCategory> fromRawValue(std::string_view rawValue) noexcept;
  /// Every category, the easiest first.
  static std::span<const ChordCategory> allCases() noexcept;

  /// Stored in settings and part of file names: do not change.
  std::string_view rawValue() const noexcept;
  /// The raw value, for lists of items by id.
  std::string_view id() const noexcept { return rawValue(); }

  /// "Beginner", "Advanced" or "Jazz" in the current locale.
  std::string localizedTitle() const;
  /// The title in the language of `strings`.
  std::string localizedTitle(const StringTable& strings) const;

 private:
  Case case_;
};

}  // namespace tonelake
