#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "Tonelake/foundation/api.h"
#include "Tonelake/platform/string_table.h"

namespace tonelake {

/// How hard the chord of the day is.
class TONELAKE_API ChordCategory {
 public:
  enum Case : std::uint8_t { beginner, advanced, jazz };

  constexpr ChordCategory(Case category) noexcept  // NOLINT(google-explicit-constructor)
      : case_(category) {}
  constexpr operator Case() const noexcept { return case_; }  // NOLINT(google-explicit-constructor)

  /// Exactly "beginner", "advanced" or "jazz"; nothing for any other text.
  static std::optional<ChordCategory> fromRawValue(std::string_view rawValue) noexcept;
  static std::span<const ChordCategory> allCases() noexcept;

  /// Stored in settings and part of file names: do not change.
  std::string_view rawValue() const noexcept;
  std::string_view id() const noexcept { return rawValue(); }

  /// "Beginner", "Advanced" or "Jazz" in the current locale.
  std::string localizedTitle() const;
  std::string localizedTitle(const StringTable& strings) const;

 private:
  Case case_;
};

}  // namespace tonelake
