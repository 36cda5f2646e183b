#pragma once

// Internal: names the JSON library.

#include "Tonelake/foundation/json.h"
#include "Tonelake/patterns/arpeggio_sequence.h"

namespace tonelake {

/// A value of another kind than its place asks for: an enumeration whose object has not exactly
/// one of the known keys. Its text ends in "Invalid number of keys found, expected one.".
class TypeMismatch : public json::DecodingError {
 public:
  using DecodingError::DecodingError;
};

/// A value of the right kind that stands for nothing: a duration of 0.3, a time signature "6/8".
class CorruptedData : public json::DecodingError {
 public:
  using DecodingError::DecodingError;
};

/// Reads what encodePattern writes; unknown keys are ignored, ids are kept. Every record and every
/// enumeration of patterns can be read: decodePattern<BassNote>(node). Throws json::DecodingError,
/// or one of the two above, with the path to the fault:
/// "bassNotes[2].noteDuration: 0.3 is no note duration".
template <typename Pattern>
Pattern decodePattern(const json::Node& node);
template <>
NoteDuration decodePattern(const json::Node& node);
template <>
TimeSignature decodePattern(const json::Node& node);
template <>
DrumNoteType decodePattern(const json::Node& node);
template <>
ArpeggioDirection decodePattern(const json::Node& node);
template <>
BassPitch decodePattern(const json::Node& node);
template <>
NoteArticulation decodePattern(const json::Node& node);
template <>
ArpeggioNote decodePattern(const json::Node& node);
template <>
BassNote decodePattern(const json::Node& node);
template <>
DrumMIDINote decodePattern(const json::Node& node);
template <>
DrumNote decodePattern(const json::Node& node);
template <>
BassPattern decodePattern(const json::Node& node);
template <>
DrumPattern decodePattern(const json::Node& node);
template <>
BassPatternWithComplexity decodePattern(const json::Node& node);
template <>
DrumPatternWithComplexity decodePattern(const json::Node& node);
template <>
ArpeggioSequence decodePattern(const json::Node& node);
template <>
BassPatterns decodePattern(const json::Node& node);
template <>
DrumPatterns decodePattern(const json::Node& node);
template <>
ArpeggioSequences decodePattern(const json::Node& node);

// Durations, time signatures and drum voices are their raw values, other enumerations objects with
// the case as their only key, {"pick":{}}, records objects with the names of their fields as keys,
// the id first, the others in the order of the fields. Stored: do not change the keys.
json::Value encodePattern(NoteDuration duration);
json::Value encodePattern(TimeSignature timeSignature);
json::Value encodePattern(DrumNoteType type);
json::Value encodePattern(ArpeggioDirection direction);
json::Value encodePattern(BassPitch pitch);
json::Value encodePattern(NoteArticulation articulation);
json::Value encodePattern(const ArpeggioNote& note);
json::Value encodePattern(const BassNote& note);
json::Value encodePattern(const DrumMIDINote& note);
json::Value encodePattern(const DrumNote& note);
json::Value encodePattern(const BassPattern& pattern);
json::Value encodePattern(const DrumPattern& pattern);
json::Value encodePattern(const BassPatternWithComplexity& link);
json::Value encodePattern(const DrumPatternWithComplexity& link);
json::Value encodePattern(const ArpeggioSequence& sequence);
json::Value encodePattern(const BassPatterns& library);
json::Value encodePattern(const DrumPatterns& library);
json::Value encodePattern(const ArpeggioSequences& library);

}  // namespace tonelake
