#include "zyndle/progression.h"

#include <algorithm>
#include <string_view>

#include "Tonelake/content/chord_progressions.h"
#include "Tonelake/foundation/text.h"
#include "zyndle/chord_name.h"
#include "zyndle/chord_row.h"
#include "zyndle/command_error.h"

namespace zyndle {
namespace {

using tonelake::Chord;

// "I - V | vi" as its numerals.
std::vector<std::string> numeralsIn(const std::vector<std::string>& arguments) {
  std::string text = tonelake::join(arguments, " ");
  for (const char* separator : {"–", "-", "|", ",", "\t", "\n", "\r"}) {
    text = tonelake::replaceAll(text, separator, " ");
  }
  std::vector<std::string> numerals;
  for (const std::string_view piece : tonelake::split(text, ' ')) {
    if (!piece.empty()) numerals.emplace_back(piece);
  }
  return numerals;
}

// "♭VII" and "iv", unlike every name of a chord, begin with I or V behind their signs.
bool looksLikeNumeral(std::string_view text) {
  for (const std::string_view sign : {"♭", "♯", "b", "#"}) {
    if (text.starts_with(sign)) return looksLikeNumeral(text.substr(sign.size()));
  }
  return !text.empty() && std::string_view("IVXivx").find(text.front()) != std::string_view::npos;
}

Chord readKey(const std::string& typed, bool inAscii) {
  Chord key = readChordName(typed, inAscii);
  const bool isKey = key.chordType == "major" || key.chordType == "minor";
  if (!isKey || key.variant != 0) {
    refuse("--key " + tonelake::quoted(typed) + " is no key; keys look like G or Em");
  }
  return key;
}

std::vector<Chord> resolve(const std::vector<std::string>& numerals, const Chord& key) {
  std::vector<Chord> chords;
  for (const std::string& numeral : numerals) {
    const auto resolved = tonelake::ChordProgressions::getChordsForChordProgression(key, numeral);
    if (resolved.empty()) {
      refuse(tonelake::quoted(numeral) +
             " is no numeral of this key; numerals look like I, vi or bVII");
    }
    chords.insert(chords.end(), resolved.begin(), resolved.end());
  }
  return chords;
}

}  // namespace

std::vector<Chord> readProgression(const std::vector<std::string>& arguments,
                                   const std::optional<std::string>& key, bool inAscii) {
  const std::vector<std::string> numerals = numeralsIn(arguments);
  if (!numerals.empty() && looksLikeNumeral(numerals.front())) {
    return resolve(numerals, readKey(key.value_or("C"), inAscii));
  }
  if (key) refuse("--key goes with Roman numerals, such as I-V-vi-IV, not with chords");
  return readChordRow(arguments, inAscii);
}

}  // namespace zyndle
