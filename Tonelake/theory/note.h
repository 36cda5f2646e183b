#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <span>
#include <string_view>

#include "Tonelake/foundation/api.h"

namespace tonelake {

/// A spelled pitch name without an octave, one of 45. A letter, then s (sharp), f (flat), ds
/// (double sharp), sds (triple sharp), df (double flat) or fdf (triple flat): Note::Ef is "E♭".
class TONELAKE_API Note {
 public:
  // clang-format off
  /// In the order in which notes are listed.
  enum Case : std::uint8_t {
    C, D, E, F, G, A, B,                                              // naturals
    Cs, Ds, Es, Fs, Gs, As, Bs,                                       // ♯
    Cf, Df, Ef, Ff, Gf, Af, Bf,                                       // ♭
    Cds, Csds, Dds, Dsds, Eds, Fds, Fsds, Gds, Gsds, Ads, Asds, Bds,  // 𝄪 and ♯𝄪
    Cdf, Dfdf, Ddf, Efdf, Edf, Fdf, Gfdf, Gdf, Afdf, Adf, Bfdf, Bdf,  // ♭♭ and ♭♭♭
  };
  // clang-format on

  /// Implicit, so that Note::C serves wherever a Note is due.
  constexpr Note(Case noteCase) noexcept
      : case_(noteCase) {}                                    // NOLINT(google-explicit-constructor)
  constexpr operator Case() const noexcept { return case_; }  // NOLINT(google-explicit-constructor)

  /// The note whose raw value is exactly `rawValue`; nothing for any other text, ASCII "#" and
  /// "b" spellings included.
  static std::optional<Note> fromRawValue(std::string_view rawValue) noexcept;

  /// The natural or sharp of a pitch class counted from C: 10 gives A♯. Any whole number from 0
  /// on; 12 is C again.
  static Note sharpOfPitchClass(int pitchClass) noexcept;

  /// Every note in declaration order.
  static std::span<const Note> allCases() noexcept;

  /// The name as readers see it, for example "C♯" or "B♭♭". Stored in settings: do not change.
  std::string_view rawValue() const noexcept;

  /// The name of the case, for example "Cs" or "Bdf".
  std::string_view caseName() const noexcept;

  /// Semitones above E, the lowest open string of a guitar: 0 to 11, but 12 for D𝄪 and 13 for
  /// D♯𝄪, which are left unreduced.
  int semitoneOffset() const noexcept;

  /// Pitch class counted from C, 0 to 11.
  int pitchClass() const noexcept;

  /// Other spellings of the same pitch. Only the naturals and single sharps have any.
  std::span<const Note> enharmonics() const noexcept;

 private:
  Case case_;
};

/// How many notes there are.
inline constexpr std::size_t noteCount = 45;

}  // namespace tonelake

template <>
struct std::hash<tonelake::Note> {
  std::size_t operator()(tonelake::Note note) const noexcept {
    return std::hash<int>()(static_cast<tonelake::Note::Case>(note));
  }
};
