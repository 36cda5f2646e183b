#include "Tonelake/content/chord_progressions.h"

#include <algorithm>
#include <optional>
#include <span>

#include <re2/re2.h>

#include "Tonelake/content/chord_progression_table.h"
#include "Tonelake/content/roman_numeral.h"
#include "Tonelake/foundation/fatal.h"
#include "Tonelake/foundation/text.h"
#include "Tonelake/platform/platform.h"
#include "Tonelake/theory/interval.h"

// "♭VII" in C major: its numeral "VII" is the seventh degree and all capitals, so the chord is
// major; the whole token lies 11 - 1 = 10 semitones above C; and ten semitones above C with the
// letter of the seventh degree is B♭.

namespace tonelake::ChordProgressions {
namespace {

std::string capitals(std::string_view text) {
  std::string changed(text);
  std::transform(changed.begin(), changed.end(), changed.begin(), uppercase);
  return changed;
}

// The first run of numeral letters in a token: "VII" of "♭VII", "V" of "V7", "" of "abc".
std::string firstNumeral(std::string_view token) {
  static const RE2 pattern("([IVXivx]+)");
  std::string numeral;
  RE2::PartialMatch(re2::StringPiece(token.data(), token.size()), pattern, &numeral);
  return numeral;
}

// Distances are those of a minor key whatever the case of the type: "Minor" is one here, though
// the related chords take only "minor" for one, kept on purpose.
bool hasMinorDistances(const Chord& key) {
  return capitals(key.chordType) == "MINOR";
}

// Nothing for a token that cannot be spelled in the key.
std::optional<Chord> resolve(std::string_view token, std::string_view numeral, const Chord& key) {
  const std::string_view root = key.rootNote.rawValue();
  const WholeNumber degree =
      RomanNumeral::valueOf(capitals(numeral), *processPlatform().diagnostics);
  const WholeNumber distance = RomanNumeral::distanceOf(token, hasMinorDistances(key));
  if (!Interval::isSpellable(distance, degree, root)) return std::nullopt;
  const std::string name = Interval::getNoteWithDistance(distance, degree, root);
  if (name.empty()) return std::nullopt;
  const std::optional<Note> note = Note::fromRawValue(name);
  if (!note) stopWithProgrammingError("a progression leads to a name that is no note");
  return Chord{*note, RomanNumeral::isMajor(numeral) ? "major" : "minor", 0};
}

std::string titleOf(const Chord& chord) {
  return std::string(chord.rootNote.rawValue()) + " " + chord.chordType;
}

// The numerals between pairs of hyphens: "iii" and "vi" of "(--iii-- and --vi--)".
std::vector<std::string> markedNumerals(const std::string& description) {
  static const RE2 pattern("--(.*?)--");
  std::vector<std::string> numerals;
  re2::StringPiece rest(description);
  for (std::string numeral; RE2::FindAndConsume(&rest, pattern, &numeral);) {
    numerals.push_back(numeral);
  }
  return numerals;
}

}  // namespace

std::vector<ChordProgression> getChordProgressionsDataForChordType(std::string_view chordType) {
  return getChordProgressionsDataForChordType(chordType, *processPlatform().strings);
}

std::vector<ChordProgression> getChordProgressionsDataForChordType(std::string_view chordType,
                                                                   const StringTable& strings) {
  std::span<const ChordProgressionRow> rows;
  if (chordType == "major") rows = majorProgressionRows();
  if (chordType == "minor") rows = minorProgressionRows();
  std::vector<ChordProgression> progressions;
  for (const ChordProgressionRow& row : rows) {
    progressions.push_back(
        {std::string(row.progression), strings.localized(row.descriptionKey), row.styles});
  }
  return progressions;
}

std::vector<Chord> getChordsForChordProgression(const Chord& chord, std::string_view progression) {
  std::vector<Chord> chords;
  for (const std::string_view token : split(progression, '-')) {
    if (token.empty()) continue;
    if (auto resolved = resolve(token, firstNumeral(token), chord)) chords.push_back(*resolved);
  }
  return chords;
}

std::vector<Chord> getRelatedChordsForKeySignature(const Chord& keySignature) {
  const bool isMinor = keySignature.chordType == "minor";
  std::vector<Chord> chords;
  for (const std::string_view token : split(isMinor ? "i-III-iv-V-VI" : "I-IV-V-vi-ii-iii", '-')) {
    if (auto resolved = resolve(token, token, keySignature)) chords.push_back(*resolved);
  }
  return chords;
}

std::string getDescription(const ChordProgression& progression, const Chord& chord) {
  std::string text = progression.description;
  const std::vector<std::string> numerals = markedNumerals(text);
  const std::vector<Chord> chords = getChordsForChordProgression(chord, join(numerals, "-"));
  for (std::size_t i = 0; i < std::min(numerals.size(), chords.size()); ++i) {
    text = replaceAll(text, "--" + numerals[i] + "--", titleOf(chords[i]));
  }
  return text;
}

std::vector<std::string> getChordTitles(const ChordProgression& progression, const Chord& chord) {
  std::vector<std::string> titles;
  for (const Chord& resolved : getChordsForChordProgression(chord, progression.progression)) {
    titles.push_back(titleOf(resolved));
  }
  return titles;
}

}  // namespace tonelake::ChordProgressions
