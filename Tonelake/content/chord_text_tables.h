#pragma once

#include <span>
#include <string_view>

namespace tonelake {

/// A text about a chord type as it is written down: in English, which is the key of its
/// translations.
struct ChordTextRow {
  std::string_view chordType;
  std::string_view text;
};

// What chord_texts.h hands out, one table each.
std::span<const ChordTextRow> chordCharacterRows() noexcept;
std::span<const ChordTextRow> chordGenreRows() noexcept;
std::span<const ChordTextRow> chordDescriptionRows() noexcept;
std::span<const ChordTextRow> jazzChordDescriptionRows() noexcept;

}  // namespace tonelake
