#include "Tonelake/chords/chord_json.h"
#include "Tonelake/content/chord_samples.h"
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
    {"curatedChordLists", curatedChordLists},
    {"getChordSampleSet", getChordSampleSet},
    {"getChordSampleSetForChordType", getChordSampleSetForChordType},
};

}  // namespace

std::span<const MethodRow> contentMethods() noexcept {
  return rows;
}

}  // namespace zyndle
