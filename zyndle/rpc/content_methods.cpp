#include "Tonelake/chords/chord_json.h"
#include "Tonelake/content/chord_samples.h"
#include "Tonelake/content/chord_texts.h"
#include "Tonelake/content/curated_chord_lists.h"
#include "zyndle/rpc/encoding.h"
#include "zyndle/rpc/method_table.h"

namespace zyndle {
namespace {

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

json::Value chordTexts(const json::Node& parameters, MethodContext&) {
  const std::string chordType = parameters.member("chordType").text();
  const auto textIn = [&](const tonelake::ChordTexts& texts) {
    const auto found = texts.find(chordType);
    return found == texts.end() ? json::Value(nullptr) : json::Value(found->second);
  };
  return {{"character", textIn(tonelake::chordCharacterData())},
          {"genre", textIn(tonelake::chordGenreData())},
          {"description", textIn(tonelake::chordDescriptionData())},
          {"jazzDescription", textIn(tonelake::jazzChordDescriptionData())}};
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

constexpr MethodRow rows[] = {
    {"chordTexts", chordTexts},
    {"curatedChordLists", curatedChordLists},
    {"getChordSampleSet", getChordSampleSet},
    {"getChordSampleSetForChordType", getChordSampleSetForChordType},
};

}  // namespace

std::span<const MethodRow> contentMethods() noexcept {
  return rows;
}

}  // namespace zyndle
