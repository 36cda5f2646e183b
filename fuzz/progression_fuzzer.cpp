#include "Tonelake/content/chord_progressions.h"
#include "Tonelake/content/roman_numeral.h"
#include "Tonelake/foundation/text.h"
#include "Tonelake/platform/platform.h"
#include "fuzz/fuzzer.h"

// Progressions and descriptions in a key. An input is a byte for the root, one for the type of the
// key, and a progression, which is also taken for a description.

namespace fuzz {
namespace {

namespace ChordProgressions = tonelake::ChordProgressions;
using tonelake::Chord;
using tonelake::Note;

constexpr const char* types[] = {"major", "minor", "Minor", "dominant 7th"};
constexpr std::size_t keyLength = 2;  // bytes

Chord keyOf(std::string_view key) {
  const auto notes = Note::allCases();
  return {notes[static_cast<unsigned char>(key[0]) % notes.size()],
          types[static_cast<unsigned char>(key[1]) % std::size(types)], 0};
}

void examineChords(const Chord& key, const std::string& text) {
  const auto chords = ChordProgressions::getChordsForChordProgression(key, text);
  require(chords.size() <= tonelake::split(text, '-').size(), "a numeral is one chord at most");
  const auto titles = ChordProgressions::getChordTitles({text, "", {}}, key);
  require(titles.size() == chords.size(), "every chord has a title");
  for (std::size_t i = 0; i < chords.size(); ++i) {
    const auto& [root, type, variant] = chords[i];
    require((type == "major" || type == "minor") && variant == 0, "a chord is a plain triad");
    require(titles[i] == std::string(root.rawValue()) + " " + type, "a title names its chord");
  }
}

void examineNumeral(std::string_view text) {
  auto& diagnostics = *tonelake::processPlatform().diagnostics;
  const auto value = tonelake::RomanNumeral::valueOf(text, diagnostics);
  if (value != 0) require(tonelake::RomanNumeral::isMajor(text), "only capitals have a value");
  const auto distance = tonelake::RomanNumeral::distanceOf(text, true);
  const auto longest = static_cast<tonelake::WholeNumber>(text.size()) + 12;
  require(distance >= -longest && distance <= longest, "a sign is a half step");
}

}  // namespace

void examine(std::string_view input) {
  if (input.size() < keyLength) return;
  const Chord key = keyOf(input.substr(0, keyLength));
  const std::string text(input.substr(keyLength));
  examineChords(key, text);
  examineNumeral(text);
  const std::string description = ChordProgressions::getDescription({"", text, {}}, key);
  if (text.find("--") == std::string::npos) {
    require(description == text, "a description without markers stays as it is");
  }
  require(ChordProgressions::getRelatedChordsForKeySignature(key).size() <= 6,
          "a key has at most six chords");
}

std::vector<std::string> seeds() {
  std::vector<std::string> seeds{"\1\1bVII-#iv-♭♭III", "\2\2V7-abc-IX- ♯V ", "\13\4----I----"};
  char root = 0;
  for (const char* type : {"major", "minor"}) {
    for (const auto& row : ChordProgressions::getChordProgressionsDataForChordType(type)) {
      const std::string key{root++, type == std::string_view("minor") ? '\1' : '\0'};
      seeds.push_back(key + row.progression);
      seeds.push_back(key + row.description.substr(0, 200));
    }
  }
  return seeds;
}

}  // namespace fuzz
