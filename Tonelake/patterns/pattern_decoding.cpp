#include <cstdint>
#include <limits>
#include <optional>
#include <string>

#include "Tonelake/foundation/text.h"
#include "Tonelake/patterns/pattern_json.h"

namespace tonelake {
namespace {

// As Node::fail, with an error of another kind.
template <typename Error>
[[noreturn]] void failWith(const json::Node& node, const std::string& problem) {
  throw Error(node.path().empty() ? problem : node.path() + ": " + problem);
}

// {"pick":{}}: keys that name no case do not count.
template <typename Enumeration>
Enumeration decodeCase(const json::Node& node,
                       std::optional<Enumeration> (*named)(std::string_view)) {
  if (!node.value().is_object()) node.fail("expected an object");
  std::optional<Enumeration> only;
  std::string key;
  std::size_t count = 0;
  for (const auto& item : node.value().items()) {
    const std::optional<Enumeration> known = named(item.key());
    if (!known) continue;
    only = known;
    key = item.key();
    ++count;
  }
  if (count != 1) {
    failWith<TypeMismatch>(node, "Invalid number of keys found, expected one.");
  }
  const json::Node contents = node.member(key);
  if (!contents.value().is_object()) contents.fail("expected an object");
  return *only;
}

// The value that a raw value stands for.
template <typename Enumeration>
Enumeration knownCase(const json::Node& node, std::optional<Enumeration> found,
                      const std::string& kind) {
  if (!found) {
    const json::Value& value = node.value();
    failWith<CorruptedData>(
        node, (value.is_string() ? tonelake::quoted(node.text()) : json::write(value)) + " is no " +
                  kind);
  }
  return *found;
}

Uuid decodeId(const json::Node& record) {
  const json::Node node = record.member("id");
  const auto id = Uuid::fromText(node.text());
  if (!id) failWith<CorruptedData>(node, tonelake::quoted(node.text()) + " is no UUID");
  return *id;
}

std::uint8_t decodeByte(const json::Node& node) {
  return static_cast<std::uint8_t>(node.wholeNumber(0, std::numeric_limits<std::uint8_t>::max()));
}

template <typename Pattern>
Pattern decodeMember(const json::Node& record, std::string_view key) {
  return decodePattern<Pattern>(record.member(key));
}

template <typename Pattern>
std::vector<Pattern> decodeListMember(const json::Node& record, std::string_view key) {
  return json::decodeList(record.member(key), decodePattern<Pattern>);
}

}  // namespace

template <>
NoteDuration decodePattern(const json::Node& node) {
  return knownCase(node, noteDurationFromRawValue(node.number()), "note duration");
}

template <>
TimeSignature decodePattern(const json::Node& node) {
  return knownCase(node, timeSignatureFromRawValue(node.text()), "time signature");
}

template <>
DrumNoteType decodePattern(const json::Node& node) {
  return knownCase(node, drumNoteTypeFromRawValue(node.wholeNumber()), "drum note");
}

template <>
ArpeggioDirection decodePattern(const json::Node& node) {
  return decodeCase(
      node, +[](std::string_view name) { return arpeggioDirectionNamed(name); });
}

template <>
BassPitch decodePattern(const json::Node& node) {
  return decodeCase(
      node, +[](std::string_view name) { return bassPitchNamed(name); });
}

template <>
NoteArticulation decodePattern(const json::Node& node) {
  return decodeCase(
      node, +[](std::string_view name) { return noteArticulationNamed(name); });
}

template <>
ArpeggioNote decodePattern(const json::Node& node) {
  return {decodeMember<NoteDuration>(node, "noteDuration"),
          decodeMember<ArpeggioDirection>(node, "arpeggioDirection"),
          decodeMember<NoteArticulation>(node, "noteArticulation"),
          decodeByte(node.member("noteVelocity"))};
}

template <>
BassNote decodePattern(const json::Node& node) {
  return {decodeMember<NoteDuration>(node, "noteDuration"), decodeMember<BassPitch>(node, "pitch"),
          decodeMember<NoteArticulation>(node, "noteArticulation"),
          node.member("noteVelocity").wholeNumber()};
}

template <>
DrumMIDINote decodePattern(const json::Node& node) {
  return {decodeMember<DrumNoteType>(node, "noteType"), decodeByte(node.member("noteVelocity"))};
}

template <>
DrumNote decodePattern(const json::Node& node) {
  return {decodeListMember<DrumMIDINote>(node, "drumMIDINote"),
          decodeMember<NoteDuration>(node, "noteDuration")};
}

template <>
BassPattern decodePattern(const json::Node& node) {
  const Uuid id = decodeId(node);
  return {node.member("name").text(), node.member("description").text(),
          decodeListMember<BassNote>(node, "bassNotes"),
          decodeMember<TimeSignature>(node, "timeSignature"), id};
}

template <>
DrumPattern decodePattern(const json::Node& node) {
  const Uuid id = decodeId(node);
  return {node.member("name").text(), node.member("description").text(),
          decodeListMember<DrumNote>(node, "drumNotes"),
          decodeMember<TimeSignature>(node, "timeSignature"), id};
}

template <>
BassPatternWithComplexity decodePattern(const json::Node& node) {
  const Uuid id = decodeId(node);
  return {decodeMember<BassPattern>(node, "bassPattern"), decodeByte(node.member("complexity")),
          id};
}

template <>
DrumPatternWithComplexity decodePattern(const json::Node& node) {
  const Uuid id = decodeId(node);
  return {decodeMember<DrumPattern>(node, "drumPattern"), decodeByte(node.member("complexity")),
          id};
}

template <>
ArpeggioSequence decodePattern(const json::Node& node) {
  const Uuid id = decodeId(node);
  return {node.member("name").text(),
          node.member("description").text(),
          json::decodeList(node.member("sequence"),
                           [](const json::Node& step) {
                             return json::decodeList(step, decodePattern<ArpeggioNote>);
                           }),
          decodeMember<TimeSignature>(node, "timeSignature"),
          decodeListMember<BassPatternWithComplexity>(node, "associatedBassPatterns"),
          decodeListMember<DrumPatternWithComplexity>(node, "associatedDrumPatterns"),
          id};
}

template <>
BassPatterns decodePattern(const json::Node& node) {
  return {decodeListMember<BassPattern>(node, "bassPatterns")};
}

template <>
DrumPatterns decodePattern(const json::Node& node) {
  return {decodeListMember<DrumPattern>(node, "drumPatterns")};
}

template <>
ArpeggioSequences decodePattern(const json::Node& node) {
  return {decodeListMember<ArpeggioSequence>(node, "sequences")};
}

}  // namespace tonelake
