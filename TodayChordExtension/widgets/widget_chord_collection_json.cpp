#include "TodayChordExtension/widgets/widget_chord_collection_json.h"

#include "Tonelake/chords/chord_json.h"

namespace todaychord {

WidgetChordCollection decodeWidgetChordCollection(const json::Node& node) {
  return {node.member("id").text(), node.member("title").text(), node.member("imageName").text(),
          json::decodeList(node.member("chords"), tonelake::decodeChord)};
}

json::Value encodeWidgetChordCollection(const WidgetChordCollection& collection) {
  json::Value chords = json::Value::array();
  for (const Chord& chord : collection.chords) chords.push_back(tonelake::encodeChord(chord));
  return {{"id", collection.id},
          {"title", collection.title},
          {"imageName", collection.imageName},
          {"chords", chords}};
}

}  // namespace todaychord
