#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string_view>

#include "Tonelake/foundation/api.h"

namespace tonelake {

/// The theme of a curated chord list. Not every theme has a list yet (see curatedChordLists).
class TONELAKE_API ChordListCategory {
 public:
  /// In the order of screens. The names are the raw values.
  enum Case : std::uint8_t {
    commonChords,
    beginnerEssentials,
    barreChords,
    popularProgressions,
    jazzChords,
    fingerstyleFavorites,
    powerChords,
    bluesChords,
    colorfulChords,
    slashChords,
    capoFriendly,
    undergroundMusic,
    country,
    folk,
    metal,
    rock,
    alternative,
    rnb,
  };

  /// Implicit, so that a case serves where a category is due.
  constexpr ChordListCategory(Case category) noexcept  // NOLINT(google-explicit-constructor)
      : case_(category) {}
  constexpr operator Case() const noexcept { return case_; }  // NOLINT(google-explicit-constructor)

  /// Exactly the name of a case, for example "jazzChords"; nothing for any other text.
  static std::optional<ChordListCategory> fromRawValue(std::string_view rawValue) noexcept;
  /// In the order in which screens list the themes.
  static std::span<const ChordListCategory> allCases() noexcept;

  /// The name of the case. Part of item identifiers that hosts keep: do not change.
  std::string_view rawValue() const noexcept;

 private:
  Case case_;
};

}  // namespace tonelake
