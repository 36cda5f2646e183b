#include "Tonelake/chords/chord_data_manager.h"
#include "Tonelake/chords/chord_json.h"
#include "Tonelake/content/chord_progression_json.h"
#include "Tonelake/foundation/text.h"
#include "Tonelake/platform/platform.h"
#include "fuzz/json_agreement.h"

// JSON texts as such and the small records in them: each decoder gets every text, so that the
// search need not be told which one it is for.

namespace fuzz {
namespace {

std::size_t depthOf(const json::Value& value) {
  std::size_t deepest = 0;
  if (!value.is_structured()) return deepest;
  for (const json::Value& inner : value) deepest = std::max(deepest, depthOf(inner));
  return deepest + 1;
}

void examineText(std::string_view text, const json::Value& document) {
  require(tonelake::isValidUtf8(text), "JSON is UTF-8");
  require(depthOf(document) <= json::depthLimit, "no value lies deeper than the limit");
  require(json::parse(json::write(document)) == document, "what is written is read as the same");
}

// A dictionary of chord types in which nothing needs to make sense is searched all the same.
void examineDictionary(std::string_view text) {
  const tonelake::ChordDataManager manager(text, *tonelake::processPlatform().diagnostics);
  require(manager.chordTypes().size() == manager.chordData().size(), "every type has its data");
  for (const char* notes : {"C, E, G", "b, d, f#, a"}) {
    for (const tonelake::Chord& chord : manager.findChordsExact(notes)) {
      const auto& tones = manager.chordData(chord.chordType)->notes;
      require(chord.variant >= 0 && static_cast<std::size_t>(chord.variant) < tones.size(),
              "the bass of a found chord is one of its tones");
    }
    manager.findChordsMatching(notes);
  }
}

}  // namespace

void examine(std::string_view input) {
  const auto document = parseJson(input);
  examineDictionary(input);
  if (!document) return;
  examineText(input, *document);
  const auto note = decoded(*document, tonelake::decodeNote);
  if (note) require(note->rawValue() == document->get<std::string>(), "a note keeps its name");
  requireAgreement(*document, tonelake::decodeChord, tonelake::encodeChord);
  requireAgreement(*document, tonelake::decodeChordProgression, tonelake::encodeChordProgression);
}

std::vector<std::string> seeds() {
  std::vector<std::string> seeds{
      R"({"rootNote":"F♯","chordType":"minor 7th","variant":1})",
      R"({"progression":"I-V-vi-IV","description":"home: --I--","styles":["Pop","R&B"]})",
      R"([-0.5e-3,18446744073709551615,true,null,"\ud834\udd2a",{"a":[[]]}])", "\"B♭♭\"",
      projectFile("Tonelake/resources/chord_types.json")};
  return seeds;
}

}  // namespace fuzz
