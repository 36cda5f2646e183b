#include <algorithm>

#include "Tonelake/accompaniment/accompaniment.h"
#include "Tonelake/patterns/pattern_json.h"
#include "Tonelake/theory/frets.h"
#include "fuzz/json_agreement.h"

// Records of patterns, each text being tried as every one of them; and whatever patterns there are
// in it are played.

namespace fuzz {
namespace {

using namespace tonelake;

template <typename Pattern>
std::optional<Pattern> examineAs(const json::Value& document) {
  return requireAgreement(document, decodePattern<Pattern>,
                          [](const Pattern& pattern) { return encodePattern(pattern); });
}

void requirePlayable(const std::vector<NoteEvent>& notes, const Performance& music) {
  WholeNumber last = 0;
  for (const NoteEvent& note : notes) {
    require(note.start >= last && note.delay >= 0, "notes come in their order");
    require(note.length >= 1 && note.end() <= music.length, "notes end within the piece");
    require(note.noteNumber >= 0 && note.noteNumber <= 127, "notes are MIDI notes");
    require(note.velocity >= 1 && note.velocity <= 127, "notes sound");
    last = note.start;
  }
}

void play(ArpeggioSequence arpeggio, std::optional<BassPattern> bass,
          std::optional<DrumPattern> drums) {
  static const ChordShape cMajor{{Note::C, "major", 0}, {Frets{-1, 3, 2, 0, 1, 0}, {}}};
  static const ChordShape power{{Note::E, "5", 0}, {Frets{0, 2, -1, -1, -1, -1}, {}}};
  if (!bass && chooseBass(arpeggio, 2) != nullptr) bass = *chooseBass(arpeggio, 2);
  if (!drums && chooseDrums(arpeggio, 2) != nullptr) drums = *chooseDrums(arpeggio, 2);
  const Performance music =
      perform({{cMajor, power}, std::move(arpeggio), std::move(bass), std::move(drums), 92, 3});
  requirePlayable(music.guitar, music);
  requirePlayable(music.bass, music);
  WholeNumber last = 0;
  for (const DrumEvent& stroke : music.drums) {
    require(stroke.start >= last && stroke.start < music.length, "strokes come in their order");
    require(stroke.type != DrumNoteType::rest, "a rest is no stroke");
    require(stroke.velocity >= 1 && stroke.velocity <= 127, "strokes sound");
    last = stroke.start;
  }
}

void playAll(const std::optional<ArpeggioSequence>& arpeggio,
             const std::optional<BassPattern>& bass, const std::optional<DrumPattern>& drums) {
  if (arpeggio || bass || drums) play(arpeggio.value_or(ArpeggioSequence{}), bass, drums);
}

template <typename... Patterns>
void examineAsEach(const json::Value& document) {
  (examineAs<Patterns>(document), ...);
}

}  // namespace

void examine(std::string_view input) {
  const auto document = parseJson(input);
  if (!document) return;
  examineAsEach<NoteDuration, TimeSignature, DrumNoteType, ArpeggioDirection, BassPitch,
                NoteArticulation, ArpeggioNote, BassNote, DrumMIDINote, DrumNote,
                BassPatternWithComplexity, DrumPatternWithComplexity>(*document);
  playAll(examineAs<ArpeggioSequence>(*document), examineAs<BassPattern>(*document),
          examineAs<DrumPattern>(*document));
  const auto arpeggios = examineAs<ArpeggioSequences>(*document);
  const auto basses = examineAs<BassPatterns>(*document);
  const auto drums = examineAs<DrumPatterns>(*document);
  for (const auto& arpeggio : arpeggios.value_or(ArpeggioSequences{}).sequences) {
    playAll(arpeggio, {}, {});
  }
  for (const auto& bass : basses.value_or(BassPatterns{}).bassPatterns) playAll({}, bass, {});
  for (const auto& drum : drums.value_or(DrumPatterns{}).drumPatterns) playAll({}, {}, drum);
}

std::vector<std::string> seeds() {
  std::vector<std::string> seeds{"0.25", "\"3/4\"", "48", R"({"iii":{}})", R"({"fifth":{}})"};
  const auto addEach = [&](const char* file, const char* key, const char* inner) {
    const json::Value library =
        json::parse(projectFile(std::string("Tonelake/resources/patterns/") + file)).at(key);
    // The shortest are quickest to change.
    std::vector<std::string> texts;
    for (const json::Value& pattern : library) {
      seeds.push_back(json::write(pattern.at(inner).at(0)));
      texts.push_back(json::write(pattern));
    }
    std::sort(texts.begin(), texts.end(),
              [](const auto& a, const auto& b) { return a.size() < b.size(); });
    seeds.insert(seeds.end(), texts.begin(), texts.begin() + 3);
    seeds.push_back(std::string("{\"") + key + "\":[" + texts.front() + "]}");
  };
  addEach("arpeggio_sequences.json", "sequences", "sequence");
  addEach("bass_patterns.json", "bassPatterns", "bassNotes");
  addEach("drum_patterns.json", "drumPatterns", "drumNotes");
  return seeds;
}

}  // namespace fuzz
