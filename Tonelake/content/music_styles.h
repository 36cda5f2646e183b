#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string_view>

#include "Tonelake/foundation/api.h"

namespace tonelake {

/// A style of music, or a mood, in which a chord progression is at home.
class TONELAKE_API MusicStyles {
 public:
  /// Styles, then moods.
  enum Case : std::uint8_t {
    folk,
    blues,
    pop,
    rock,
    country,
    jazz,
    classical,
    metal,
    hiphop,
    reggae,
    electronic,
    punk,
    soul,
    funk,
    disco,
    rnb,
    dramatic,
    emotional,
    ballad,
    melancholic,
    modal,
    medieval,
    traditional,
    romantic,
    cinematic,
  };

  /// Implicit, so that a case serves where a style is due.
  constexpr MusicStyles(Case style) noexcept
      : case_(style) {}                                       // NOLINT(google-explicit-constructor)
  constexpr operator Case() const noexcept { return case_; }  // NOLINT(google-explicit-constructor)

  /// Exactly a raw value, for example "Hip Hop"; nothing for any other text.
  static std::optional<MusicStyles> fromRawValue(std::string_view rawValue) noexcept;
  /// Every style in declaration order.
  static std::span<const MusicStyles> allCases() noexcept;

  /// The name as readers see it, for example "R&B". Hosts store it: do not change.
  std::string_view rawValue() const noexcept;
  /// The name of the case, for example "rnb".
  std::string_view caseName() const noexcept;

 private:
  Case case_;
};

}  // namespace tonelake
