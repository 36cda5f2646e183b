#include "zyndle/key_chords.h"

#include "Tonelake/content/chord_progressions.h"
#include "Tonelake/foundation/text.h"
#include "zyndle/chord_row.h"
#include "zyndle/command_error.h"
#include "zyndle/key_name.h"
#include "zyndle/progression_text.h"
#include "zyndle/translation.h"

namespace zyndle {
namespace {

// The home chord of a key that nobody named.
std::string usualKey(const std::string& mode) {
  return mode == "minor" ? "A" : "C";
}

// "bVII" and "iv", unlike every name of a chord, have I or V behind their signs.
bool beginsWithNumeral(const std::vector<std::string>& words) {
  const std::vector<std::string> numerals = splitNumerals(words);
  if (numerals.empty()) return false;
  const std::size_t first = numerals.front().find_first_not_of("b#\u266D\u266F");
  return first != std::string::npos &&
         std::string_view("IVXivx").find(numerals.front()[first]) != std::string_view::npos;
}

}  // namespace

KeyChords readKeyChords(const std::vector<std::string>& numerals,
                        const std::optional<std::string>& key) {
  KeyChords read;
  read.progression = readProgression(numerals);
  const std::string mode = modeOf(read.progression);
  read.key = readKey(key.value_or(usualKey(mode)), mode);
  read.chords =
      tonelake::ChordProgressions::getChordsForChordProgression(read.key, read.progression);
  if (read.chords.size() != tonelake::split(read.progression, '-').size()) {
    fail(translated("one of the chords {0} cannot be written in {1}", read.progression,
                    nameOfKey(read.key)));
  }
  return read;
}

std::vector<tonelake::Chord> readSongChords(const std::vector<std::string>& words,
                                            const std::optional<std::string>& key) {
  if (beginsWithNumeral(words)) return readKeyChords(words, key).chords;
  if (key) {
    refuse(translated("--key goes with Roman numerals, such as I-V-vi-IV, not with chords"));
  }
  return readChordRow(words);
}

}  // namespace zyndle
