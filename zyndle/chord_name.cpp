#include "zyndle/chord_name.h"

#include <algorithm>
#include <array>
#include <utility>

#include "Tonelake/chords/chord_dictionary.h"
#include "Tonelake/chords/chord_naming.h"
#include "Tonelake/chords/chord_spelling.h"
#include "Tonelake/foundation/text.h"
#include "Tonelake/theory/music_signs.h"
#include "Tonelake/theory/note.h"
#include "zyndle/command_error.h"
#include "zyndle/nearest_names.h"
#include "zyndle/note_name.h"
#include "zyndle/translation.h"

// "a MINOR 7th/c", which no dictionary holds, becomes "Am7/C": the root is a capital, the quality
// without blanks is "MINOR7th", whose word stands for "m" and whose "th" for nothing, and the bass
// is a capital. A single "M" keeps its case, since it is all that tells "CM7" from "Cm7".

namespace zyndle {
namespace {

using tonelake::Chord;
using tonelake::Note;

constexpr std::size_t longestName = 64;  // bytes; the dictionary's longest has 40 or so

struct Wording {
  std::string_view typed;  // in small letters; matches capitals too
  std::string_view plain;
};

// What players write for a quality, and how the dictionary's short names have it. The first
// match wins, so longer wordings precede their own beginnings.
// clang-format off
constexpr std::array<Wording, 37> wordings{{
    {"half-diminishedminor7th", "m7♭5"},
    {"half-diminished",         "m7♭5"},
    {"dominant",                ""},
    {"dom",                     ""},
    {"major",                   "M"},
    {"maj",                     "M"},
    {"minor",                   "m"},
    {"min",                     "m"},
    {"suspended",               "sus"},
    {"sus",                     "sus"},
    {"augmented",               "aug"},
    {"aug",                     "aug"},
    {"diminished",              "dim"},
    {"dim",                     "dim"},
    {"add",                     "add"},
    {"sharp",                   "♯"},
    {"flat",                    "♭"},
    {"4th",                     "4"},
    {"5th",                     "5"},
    {"6add9",                   "6/9"},
    {"69",                      "6/9"},
    {"6th",                     "6"},
    {"7th",                     "7"},
    {"9th",                     "9"},
    {"11th",                    "11"},
    {"13th",                    "13"},
    {"2nd",                     "2"},
    {"3rd",                     "3"},
    {"no3",                     "5"},
    {"-sharp",                  "♯"},
    {"-flat",                   "♭"},
    {"-",                       "m"},
    {"°",                       "dim"},
    {"ø7",                      "m7♭5"},
    {"ø",                       "m7♭5"},
    {"Δ7",                      "M7"},
    {"Δ",                       "M7"},
}};
// clang-format on

bool startsWithWording(std::string_view text, std::string_view wording) {
  return text.size() >= wording.size() &&
         std::equal(wording.begin(), wording.end(), text.begin(),
                    [](char wanted, char typed) { return wanted == tonelake::lowercase(typed); });
}

std::string withoutCharacters(std::string_view text, std::string_view unwanted) {
  std::string kept(text);
  std::erase_if(kept, [&](char c) { return unwanted.find(c) != std::string_view::npos; });
  return kept;
}

// One blank between words and none around: "  C   major " is "C major".
std::string tidied(std::string_view typed) {
  std::string text;
  for (const char c : typed) {
    const bool isBlank = c == ' ' || c == '\t' || c == '\n' || c == '\r';
    if (!isBlank) text += c;
    if (isBlank && !text.empty() && text.back() != ' ') text += ' ';
  }
  if (!text.empty() && text.back() == ' ') text.pop_back();
  return text;
}

std::string withCapital(std::string name) {
  if (!name.empty()) name.front() = tonelake::uppercase(name.front());
  return name;
}

// The parts before and after the last "/", if a note follows it: "C6/9" has no bass.
std::optional<std::pair<std::string, Note>> splitBass(std::string_view name) {
  const std::size_t slash = name.rfind('/');
  if (slash == std::string_view::npos) return std::nullopt;
  const std::optional<Note> bass = parseNoteName(withoutCharacters(name.substr(slash + 1), " "));
  if (!bass) return std::nullopt;
  return std::pair(std::string(name.substr(0, slash)), *bass);
}

std::string plainQuality(std::string_view typed) {
  std::string plain;
  while (!typed.empty()) {
    const auto* const found = std::find_if(wordings.begin(), wordings.end(), [&](const Wording& w) {
      return startsWithWording(typed, w.typed);
    });
    if (found == wordings.end()) {
      plain += typed.front();
      typed.remove_prefix(1);
    } else {
      plain += found->plain;
      typed.remove_prefix(found->typed.size());
    }
  }
  // "min/maj7" has come out as "m/M7" by now.
  return tonelake::replaceAll(plain, "m/M", "mM");
}

std::optional<Chord> lookUpLeniently(const std::string& name) {
  for (const std::string& form : {name, withCapital(name), plainChordName(name)}) {
    if (std::optional<Chord> chord = tonelake::Chords::lookUpChord(form)) return chord;
  }
  return std::nullopt;
}

// A chord over a bass that the dictionary does not have: the chord's tone of that pitch, however
// it is spelled, or the tones there are.
ParsedChordName placeBass(const Chord& chord, Note bass) {
  const std::vector<std::string> tones = tonelake::Chords::getNotesOfChord(chord);
  for (std::size_t i = 0; i < tones.size(); ++i) {
    const std::optional<Note> tone = Note::fromRawValue(tones[i]);
    if (!tone || tone->pitchClass() != bass.pitchClass()) continue;
    Chord placed = chord;
    placed.variant = static_cast<tonelake::WholeNumber>(i);
    return {placed, ""};
  }
  return {std::nullopt, translated("{0} has no {1} to put in the bass; its notes are {2}",
                                   tonelake::Chords::getTitleForChord(chord), bass.rawValue(),
                                   tonelake::join(tones, ", "))};
}

std::string unknownName(const std::string& name) {
  std::string problem = translated("no chord is named {}", tonelake::quoted(name));
  if (name.size() > longestName) return problem;
  const std::vector<Chord> nearest = nearestChords(withCapital(name));
  if (nearest.empty())
    return problem + "; " + translated("names look like {}", "Am7, F#m7b5, C/E, \"G major\"");
  std::vector<std::string> titles;
  titles.reserve(nearest.size());
  for (const Chord& chord : nearest) titles.push_back(tonelake::Chords::getTitleForChord(chord));
  return problem + "; " + translated("the nearest are {}", tonelake::join(titles, ", "));
}

}  // namespace

std::string plainChordName(std::string_view typed) {
  std::string name = withCapital(withoutCharacters(typed, " ()"));
  std::string bass;
  if (const auto parts = splitBass(name)) {
    name = parts->first;
    bass = "/" + std::string(parts->second.rawValue());
  }
  name = tonelake::withMusicSigns(name);
  return name.substr(0, 1) +
         plainQuality(std::string_view(name).substr(std::min<std::size_t>(1, name.size()))) + bass;
}

ParsedChordName parseChordName(std::string_view typed) {
  const std::string name = tidied(typed);
  if (name.empty()) return {std::nullopt, translated("the chord name is empty")};
  if (!tonelake::isValidUtf8(name)) {
    return {std::nullopt,
            translated("the chord name {} is not valid UTF-8", tonelake::quoted(name))};
  }
  if (std::optional<Chord> chord = lookUpLeniently(name)) return {chord, ""};
  if (const auto parts = splitBass(name)) {
    const std::optional<Chord> chord = lookUpLeniently(parts->first);
    if (chord && chord->variant == 0) return placeBass(*chord, parts->second);
  }
  return {std::nullopt, unknownName(name)};
}

Chord readChordName(std::string_view typed) {
  const ParsedChordName parsed = parseChordName(typed);
  if (!parsed.chord) refuse(parsed.problem);
  return *parsed.chord;
}

}  // namespace zyndle
