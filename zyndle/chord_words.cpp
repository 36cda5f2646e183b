#include "zyndle/chord_words.h"

#include <algorithm>
#include <vector>

#include "Tonelake/chords/chord_data_manager.h"
#include "Tonelake/chords/chord_spelling.h"
#include "Tonelake/content/chord_texts.h"
#include "Tonelake/foundation/text.h"

namespace zyndle {
namespace {

// The slot of a degree of a formula: "♭7" is 4. See chord_texts.h for what the slots mean.
std::size_t slotOfDegree(std::string_view degree, bool hasNinth) {
  struct Row {
    std::string_view number;
    std::size_t slot;
  };
  constexpr Row rows[] = {{"1", 1}, {"2", 2}, {"3", 2}, {"4", 2}, {"5", 3},
                          {"6", 4}, {"7", 4}, {"9", 5}, {"13", 5}};
  degree.remove_prefix(std::min(degree.find_first_of("0123456789"), degree.size()));
  if (degree == "11") return hasNinth ? 6 : 5;
  for (const Row& row : rows) {
    if (row.number == degree) return row.slot;
  }
  return 0;
}

std::optional<std::string> find(const tonelake::ChordTexts& texts, const tonelake::Chord& chord) {
  const auto found = texts.find(chord.chordType);
  if (found == texts.end()) return std::nullopt;
  return fillSlots(found->second, chord);
}

}  // namespace

std::string fillSlots(std::string_view text, const tonelake::Chord& chord) {
  const auto* data = tonelake::Chords::getChordData(chord.chordType);
  if (data == nullptr) return std::string(text);
  const std::vector<std::string> notes = tonelake::Chords::getNotesOfChord(chord);
  const bool hasNinth = data->formula.find('9') != std::string::npos;
  std::string filled(text);
  std::size_t tone = 0;
  for (const std::string_view degree : tonelake::split(data->formula, '-')) {
    const std::string slot = "(--" + std::to_string(slotOfDegree(degree, hasNinth)) + "--)";
    filled = tonelake::replaceAll(filled, slot, notes.at(tone++));
  }
  return filled;
}

ChordWords describeInWords(const tonelake::Chord& chord) {
  return {find(tonelake::chordCharacterData(), chord), find(tonelake::chordGenreData(), chord),
          find(tonelake::chordDescriptionData(), chord),
          find(tonelake::jazzChordDescriptionData(), chord)};
}

void addChordWords(tonelake::json::Value& object, const ChordWords& words) {
  const auto add = [&](const char* key, const std::optional<std::string>& text) {
    object[key] = text ? tonelake::json::Value(*text) : tonelake::json::Value(nullptr);
  };
  add("character", words.character);
  add("genre", words.genre);
  add("description", words.description);
  add("jazzDescription", words.jazzDescription);
}

}  // namespace zyndle
