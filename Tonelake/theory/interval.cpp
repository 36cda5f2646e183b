#include "Tonelake/theory/interval.h"

#include <algorithm>
#include <optional>

#include "Tonelake/foundation/fatal.h"
#include "Tonelake/theory/spelling_tables.h"

namespace tonelake::Interval {
namespace {

struct Root {
  WholeNumber pitchIndex;      // 0 to 11
  WholeNumber letterPosition;  // 0 to 6, C is 0
};

// Every name in the tables is one ASCII letter and its signs.
std::optional<Root> findRoot(std::string_view note) {
  const std::optional<int> pitchClass = pitchClassNamed(note);
  if (!pitchClass) return std::nullopt;
  const auto letter = std::find(noteLetters.begin(), noteLetters.end(), note.substr(0, 1));
  return Root{*pitchClass, letter - noteLetters.begin()};
}

bool isInsideTables(const Root& root, WholeNumber distance, WholeNumber degree) {
  constexpr WholeNumber tableSize = notesArrayRegular.size();
  // Bounds on the arguments themselves first, so that no sum overflows.
  const bool isDistanceInside =
      distance >= -root.pitchIndex && distance < tableSize - root.pitchIndex;
  return isDistanceInside && degree >= 1 - root.letterPosition &&
         degree <= INT64_MAX - root.letterPosition;
}

}  // namespace

bool isSpellable(WholeNumber distance, WholeNumber degree, std::string_view note) {
  const auto root = findRoot(note);
  return !root || isInsideTables(*root, distance, degree);
}

std::string getNoteWithDistance(WholeNumber distance, WholeNumber degree, std::string_view note) {
  const auto root = findRoot(note);
  if (!root) return "";
  if (!isInsideTables(*root, distance, degree)) {
    stopWithProgrammingError("an interval lies outside the spelling tables");
  }
  constexpr WholeNumber letterCount = 7;
  const std::string_view letter =
      noteLetters[static_cast<std::size_t>((root->letterPosition + degree - 1) % letterCount)];
  for (const SpellingTable* table : spellingTables) {
    const std::string_view name = (*table)[static_cast<std::size_t>(root->pitchIndex + distance)];
    if (name.starts_with(letter)) return std::string(name);
  }
  return "";
}

}  // namespace tonelake::Interval
