#include "Tonelake/chords/chord_json.h"
#include "Tonelake/content/chord_progression_json.h"
#include "Tonelake/content/chord_progressions.h"
#include "Tonelake/content/chord_samples.h"
#include "Tonelake/content/curated_chord_lists.h"
#include "zyndle/rpc/encoding.h"
#include "zyndle/rpc/method_table.h"
#include "zyndle/rpc/parameters.h"

namespace zyndle {
namespace {

namespace ChordProgressions = tonelake::ChordProgressions;

json::Value encodeChordList(const tonelake::ChordList& list) {
  return {{"title", list.title},
          {"description", list.description},
          {"imageName", list.imageName},
          {"chords", encodeList(list.chords, tonelake::encodeChord)},
          {"preferredPositions", encodeList(list.preferredPositions, [](const auto& preferred) {
             return json::Value{{"chord", tonelake::encodeChord(preferred.first)},
                                {"frets", preferred.second}};
           })}};
}

json::Value curatedChordLists(const json::Node&, MethodContext&) {
  json::Value lists = json::Value::object();
  for (const auto& [category, list] : tonelake::curatedChordLists()) {
    lists[std::string(category.rawValue())] = encodeChordList(list);
  }
  return lists;
}

json::Value getChordSampleSet(const json::Node&, MethodContext&) {
  return encodeList(tonelake::Chords::getChordSampleSet(), tonelake::encodeChord);
}

json::Value getChordSampleSetForChordType(const json::Node& parameters, MethodContext&) {
  return encodeList(
      tonelake::Chords::getChordSampleSetForChordType(parameters.member("chordType").text()),
      tonelake::encodeChord);
}

json::Value getChordProgressionsDataForChordType(const json::Node& parameters, MethodContext&) {
  return encodeList(ChordProgressions::getChordProgressionsDataForChordType(
                        parameters.member("chordType").text()),
                    tonelake::encodeChordProgression);
}

json::Value getChordsForChordProgression(const json::Node& parameters, MethodContext&) {
  return encodeList(ChordProgressions::getChordsForChordProgression(
                        chordParameter(parameters), parameters.member("progression").text()),
                    tonelake::encodeChord);
}

json::Value getRelatedChordsForKeySignature(const json::Node& parameters, MethodContext&) {
  return encodeList(ChordProgressions::getRelatedChordsForKeySignature(
                        tonelake::decodeChord(parameters.member("keySignature"))),
                    tonelake::encodeChord);
}

// The whole of an operation on a progression in a key.
template <auto operation>
json::Value ofProgression(const json::Node& parameters, MethodContext&) {
  return operation(tonelake::decodeChordProgression(parameters.member("for")),
                   chordParameter(parameters));
}

constexpr MethodRow rows[] = {
    {"curatedChordLists", curatedChordLists},
    {"getChordSampleSet", getChordSampleSet},
    {"getChordSampleSetForChordType", getChordSampleSetForChordType},
    {"getChordProgressionsDataForChordType", getChordProgressionsDataForChordType},
    {"getChordsForChordProgression", getChordsForChordProgression},
    {"getRelatedChordsForKeySignature", getRelatedChordsForKeySignature},
    {"getDescription", ofProgression<ChordProgressions::getDescription>},
    {"getChordTitles", ofProgression<ChordProgressions::getChordTitles>},
};

}  // namespace

std::span<const MethodRow> contentMethods() noexcept {
  return rows;
}

}  // namespace zyndle
