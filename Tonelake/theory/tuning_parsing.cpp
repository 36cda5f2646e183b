#include "Tonelake/theory/tuning_parsing.h"

#include <algorithm>
#include <array>
#include <optional>
#include <vector>

#include "Tonelake/foundation/text.h"

// "EbAbDbGbBbEb" is read from the left: a letter, then a sign if one follows, so E♭ A♭ D♭ G♭ B♭ E♭.
// The only doubtful sign is "b", which in a text without capitals may be the note B as well:
// "eadgbe" first reads as E A D G♭ E, which is five names, and then, every "b" being a note, as
// E A D G B E, which is six. A text with capitals leaves no such doubt.

namespace tonelake {
namespace {

// Common knowledge among players; lowest string first. Names are in small letters but for notes,
// since they are compared without regard to capitals and hyphens.
// clang-format off
constexpr std::array<NamedTuning, 16> namedTuningTable{{
    {"standard",       {"E",  "A",  "D",  "G",  "B",  "E"}},
    {"half step down", {"E♭", "A♭", "D♭", "G♭", "B♭", "E♭"}},
    {"full step down", {"D",  "G",  "C",  "F",  "A",  "D"}},
    {"drop D",         {"D",  "A",  "D",  "G",  "B",  "E"}},
    {"double drop D",  {"D",  "A",  "D",  "G",  "B",  "D"}},
    {"drop C♯",        {"C♯", "G♯", "C♯", "F♯", "A♯", "D♯"}},
    {"drop C",         {"C",  "G",  "C",  "F",  "A",  "D"}},
    {"DADGAD",         {"D",  "A",  "D",  "G",  "A",  "D"}},
    {"open A",         {"E",  "A",  "E",  "A",  "C♯", "E"}},
    {"open C",         {"C",  "G",  "C",  "G",  "C",  "E"}},
    {"open D",         {"D",  "A",  "D",  "F♯", "A",  "D"}},
    {"open D minor",   {"D",  "A",  "D",  "F",  "A",  "D"}},
    {"open E",         {"E",  "B",  "E",  "G♯", "B",  "E"}},
    {"open G",         {"D",  "G",  "D",  "G",  "B",  "D"}},
    {"all fourths",    {"E",  "A",  "D",  "G",  "C",  "F"}},
    {"new standard",   {"C",  "G",  "D",  "A",  "E",  "G"}},
}};
// clang-format on

enum class FollowingB { isFlat, isNote };

// What parts the words of a text.
constexpr std::string_view separators = " ,\t\r\n";

// "Half-Step  down" and "half step down" are the same name.
std::string comparable(std::string_view name) {
  const std::string plain = inSmallLetters(replaceAll(replaceAll(name, "-", " "), "#", "♯"));
  std::string words;
  for (const std::string_view word : splitWords(plain, separators)) words.append(word).append(" ");
  return words;
}

// The note at the front of `text`, which it takes off, or nothing. Takes one sign at most.
std::optional<std::string> takeNote(std::string_view& text, FollowingB followingB) {
  const char letter = uppercase(text.front());
  if (letter < 'A' || letter > 'G') return std::nullopt;
  text.remove_prefix(1);
  struct Sign {
    std::string_view typed;
    std::string_view sign;
  };
  constexpr std::array<Sign, 4> signs{{{"#", "♯"}, {"♯", "♯"}, {"♭", "♭"}, {"b", "♭"}}};
  for (const Sign& sign : signs) {
    if (!text.starts_with(sign.typed)) continue;
    if (sign.typed == "b" && followingB == FollowingB::isNote) continue;
    text.remove_prefix(sign.typed.size());
    return letter + std::string(sign.sign);
  }
  return std::string(1, letter);
}

struct Reading {
  TuningNames names;
  std::string_view unreadable;  // the first word that is no row of notes
};

Reading readNotes(const std::vector<std::string_view>& words, FollowingB followingB) {
  Reading reading;
  for (const std::string_view word : words) {
    for (std::string_view rest = word; !rest.empty();) {
      const std::optional<std::string> note = takeNote(rest, followingB);
      if (!note) {
        reading.unreadable = word;
        return reading;
      }
      reading.names.push_back(*note);
    }
  }
  return reading;
}

bool hasCapital(std::string_view text) {
  return std::any_of(text.begin(), text.end(), [](char c) { return c >= 'A' && c <= 'Z'; });
}

const NamedTuning* findNamed(std::string_view text) {
  const std::string wanted = comparable(text);
  const auto* const found = std::find_if(
      namedTuningTable.begin(), namedTuningTable.end(),
      [&wanted](const NamedTuning& tuning) { return comparable(tuning.name) == wanted; });
  return found == namedTuningTable.end() ? nullptr : found;
}

std::string problemOf(const Reading& reading, std::string_view text) {
  if (!reading.unreadable.empty()) {
    const bool isAll = reading.unreadable.size() == text.size();
    return isAll ? quoted(text) + " is neither six note names nor the name of a known tuning"
                 : quoted(text) + " is no tuning: " + quoted(reading.unreadable) +
                       " is not a note name";
  }
  const std::size_t count = reading.names.size();
  return quoted(text) + " names " + std::to_string(count) + (count == 1 ? " string" : " strings") +
         ", and a guitar has six";
}

}  // namespace

namespace Tuning {

std::span<const NamedTuning> namedTunings() {
  return namedTuningTable;
}

ParsedTuning parseTuning(std::string_view text) {
  if (const NamedTuning* named = findNamed(text)) {
    return {TuningNames(named->notes.begin(), named->notes.end()), ""};
  }
  const std::vector<std::string_view> words = splitWords(text, separators);
  if (words.empty()) return {{}, "the tuning is empty"};
  Reading reading = readNotes(words, FollowingB::isFlat);
  if (words.size() == 1 && reading.names.size() != stringCount && !hasCapital(text)) {
    Reading second = readNotes(words, FollowingB::isNote);
    if (second.names.size() == stringCount) reading = std::move(second);
  }
  if (!reading.unreadable.empty() || reading.names.size() != stringCount) {
    return {{}, problemOf(reading, text)};
  }
  return {reading.names, ""};
}

}  // namespace Tuning
}  // namespace tonelake
