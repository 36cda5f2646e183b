#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "Tonelake/foundation/api.h"
#include "Tonelake/platform/string_table.h"

namespace tonelake {

/// Which chord tone is in the bass, counted like Chord::variant. A value; any thread may ask it.
class TONELAKE_API Inversion {
 public:
  /// As Chord::variant counts, from 0.
  enum Case : std::uint8_t {
    rootPosition,
    firstInversion,
    secondInversion,
    thirdInversion,
    fourthInversion,
    fifthInversion,
    sixthInversion,
    seventhInversion,
  };

  /// Implicit, so that a case serves where an inversion is due.
  constexpr Inversion(Case inversion) noexcept
      : case_(inversion) {}                                   // NOLINT(google-explicit-constructor)
  constexpr operator Case() const noexcept { return case_; }  // NOLINT(google-explicit-constructor)

  /// The inversion with exactly this raw value; nothing for any other text.
  static std::optional<Inversion> fromRawValue(std::string_view rawValue) noexcept;
  /// Every inversion in declaration order.
  static std::span<const Inversion> allCases() noexcept;

  /// For example "inversion.first".
  std::string_view rawValue() const noexcept;
  /// The raw value: the key under which the name is translated.
  std::string_view localizedKey() const noexcept { return rawValue(); }
  /// The name in the current locale, for example "First inversion".
  std::string localizedName() const;
  /// The name in the language of `strings`.
  std::string localizedName(const StringTable& strings) const;

 private:
  Case case_;
};

}  // namespace tonelake
