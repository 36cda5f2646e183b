#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <string_view>
#include <unordered_map>

#include "Tonelake/foundation/api.h"

namespace tonelake {

/// The names of an octave, from C on.
using TwelveNames = std::array<std::string_view, 12>;
/// The names of three octaves, from C on.
using SpellingTable = std::array<std::string_view, 36>;

/// Three octaves of names, so that a root (0 to 11) plus a distance of up to two octaves is an
/// index that needs no reduction.
constexpr SpellingTable threeOctaves(const TwelveNames& names) {
  SpellingTable table;
  for (std::size_t i = 0; i < table.size(); ++i) table[i] = names[i % names.size()];
  return table;
}

// Note names by pitch class counted from C.
// clang-format off
/// Naturals and sharps, as notes of a search are written.
inline constexpr SpellingTable notesArrayRegular = threeOctaves(
    {"C",   "C♯",   "D",   "D♯",  "E",    "F",   "F♯",  "G",   "G♯",   "A",   "A♯",  "B"});
/// With E♯ and B♯.
inline constexpr SpellingTable notesArraySharpNotes = threeOctaves(
    {"B♯",  "C♯",   "D",   "D♯",  "E",    "E♯",  "F♯",  "G",   "G♯",   "A",   "A♯",  "B"});
/// Naturals and flats, with F♭ and C♭.
inline constexpr SpellingTable notesArrayFlatNotes = threeOctaves(
    {"C",   "D♭",   "D",   "E♭",  "F♭",   "F",   "G♭",  "G",   "A♭",   "A",   "B♭",  "C♭"});
/// Every pitch with a double sharp, or a triple one.
inline constexpr SpellingTable notesArrayDoubleSharpNotes = threeOctaves(
    {"A♯𝄪", "B𝄪",   "C𝄪",  "C♯𝄪", "D𝄪",   "D♯𝄪", "E𝄪",  "F𝄪",  "F♯𝄪",  "G𝄪",  "G♯𝄪", "A𝄪"});
/// Every pitch with a double flat, or a triple one.
inline constexpr SpellingTable notesArrayDoubleFlatNotes = threeOctaves(
    {"D♭♭", "E♭♭♭", "E♭♭", "F♭♭", "G♭♭♭", "G♭♭", "A♭♭♭","A♭♭", "B♭♭♭", "B♭♭", "C♭♭", "D♭♭♭"});
// clang-format on

/// The five tables in the order in which spellings are tried: the first that has the wanted
/// letter wins, so a natural or sharp comes before a flat, and single signs before doubles.
inline constexpr std::array<const SpellingTable*, 5> spellingTables{
    &notesArrayRegular, &notesArraySharpNotes, &notesArrayFlatNotes, &notesArrayDoubleSharpNotes,
    &notesArrayDoubleFlatNotes};

/// Three octaves of letters, starting at C.
inline constexpr std::array<std::string_view, 21> noteLetters{"C", "D", "E", "F", "G", "A", "B",
                                                              "C", "D", "E", "F", "G", "A", "B",
                                                              "C", "D", "E", "F", "G", "A", "B"};

/// Pitch class (0 to 11, C is 0) of every name in the five tables, which are those of all notes:
/// "C♭" is 11, "B♯" is 0. Made on first use; safe to read from any thread.
TONELAKE_API const std::unordered_map<std::string_view, int>& noteIndexByName();

/// The same of one name; nothing for any other text.
TONELAKE_API std::optional<int> pitchClassNamed(std::string_view name);

}  // namespace tonelake
