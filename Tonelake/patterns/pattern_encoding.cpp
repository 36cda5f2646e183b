#include "Tonelake/patterns/pattern_json.h"

namespace tonelake {
namespace {

template <typename Enumeration>
json::Value encodeCase(Enumeration enumeration) {
  return {{std::string(caseName(enumeration)), json::Value::object()}};
}

template <typename Pattern>
json::Value encodeList(const std::vector<Pattern>& patterns) {
  json::Value list = json::Value::array();
  for (const Pattern& pattern : patterns) list.push_back(encodePattern(pattern));
  return list;
}

json::Value encodeSteps(const std::vector<ArpeggioStep>& steps) {
  json::Value list = json::Value::array();
  for (const ArpeggioStep& step : steps) list.push_back(encodeList(step));
  return list;
}

}  // namespace

json::Value encodePattern(NoteDuration duration) {
  return rawValue(duration);
}

json::Value encodePattern(TimeSignature timeSignature) {
  return rawValue(timeSignature);
}

json::Value encodePattern(DrumNoteType type) {
  return rawValue(type);
}

json::Value encodePattern(ArpeggioDirection direction) {
  return encodeCase(direction);
}

json::Value encodePattern(BassPitch pitch) {
  return encodeCase(pitch);
}

json::Value encodePattern(NoteArticulation articulation) {
  return encodeCase(articulation);
}

json::Value encodePattern(const ArpeggioNote& note) {
  return {{"noteDuration", encodePattern(note.noteDuration)},
          {"arpeggioDirection", encodePattern(note.arpeggioDirection)},
          {"noteArticulation", encodePattern(note.noteArticulation)},
          {"noteVelocity", note.noteVelocity}};
}

json::Value encodePattern(const BassNote& note) {
  return {{"noteDuration", encodePattern(note.noteDuration)},
          {"pitch", encodePattern(note.pitch)},
          {"noteArticulation", encodePattern(note.noteArticulation)},
          {"noteVelocity", note.noteVelocity}};
}

json::Value encodePattern(const DrumMIDINote& note) {
  return {{"noteType", encodePattern(note.noteType)}, {"noteVelocity", note.noteVelocity}};
}

json::Value encodePattern(const DrumNote& note) {
  return {{"drumMIDINote", encodeList(note.drumMIDINote)},
          {"noteDuration", encodePattern(note.noteDuration)}};
}

json::Value encodePattern(const BassPattern& pattern) {
  return {{"id", pattern.id.text()},
          {"name", pattern.name},
          {"description", pattern.description},
          {"bassNotes", encodeList(pattern.bassNotes)},
          {"timeSignature", encodePattern(pattern.timeSignature)}};
}

json::Value encodePattern(const DrumPattern& pattern) {
  return {{"id", pattern.id.text()},
          {"name", pattern.name},
          {"description", pattern.description},
          {"drumNotes", encodeList(pattern.drumNotes)},
          {"timeSignature", encodePattern(pattern.timeSignature)}};
}

json::Value encodePattern(const BassPatternWithComplexity& link) {
  return {{"id", link.id.text()},
          {"bassPattern", encodePattern(link.bassPattern)},
          {"complexity", link.complexity}};
}

json::Value encodePattern(const DrumPatternWithComplexity& link) {
  return {{"id", link.id.text()},
          {"drumPattern", encodePattern(link.drumPattern)},
          {"complexity", link.complexity}};
}

json::Value encodePattern(const ArpeggioSequence& sequence) {
  return {{"id", sequence.id.text()},
          {"name", sequence.name},
          {"description", sequence.description},
          {"sequence", encodeSteps(sequence.sequence)},
          {"timeSignature", encodePattern(sequence.timeSignature)},
          {"associatedBassPatterns", encodeList(sequence.associatedBassPatterns)},
          {"associatedDrumPatterns", encodeList(sequence.associatedDrumPatterns)}};
}

json::Value encodePattern(const BassPatterns& library) {
  return {{"bassPatterns", encodeList(library.bassPatterns)}};
}

json::Value encodePattern(const DrumPatterns& library) {
  return {{"drumPatterns", encodeList(library.drumPatterns)}};
}

json::Value encodePattern(const ArpeggioSequences& library) {
  return {{"sequences", encodeList(library.sequences)}};
}

}  // namespace tonelake
