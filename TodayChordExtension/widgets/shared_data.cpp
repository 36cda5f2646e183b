#include "TodayChordExtension/widgets/shared_data.h"

#include "TodayChordExtension/widgets/shared_settings.h"
#include "TodayChordExtension/widgets/widget_chord_collection_json.h"
#include "Tonelake/chords/chord_json.h"

namespace todaychord {

json::Value parseSharedList(const std::optional<std::string>& data) {
  if (!data) return json::Value::array();
  if (data->size() > largestSharedData) {
    throw json::DecodingError("more than " + std::to_string(largestSharedData) + " bytes");
  }
  json::Value list = json::parse(*data);
  if (!list.is_array()) json::Node(list).fail("expected a list");
  return list;
}

std::vector<Chord> decodeRecentlyViewedChords(const std::optional<std::string>& data) {
  const json::Value list = parseSharedList(data);
  return json::decodeList(json::Node(list), tonelake::decodeChord);
}

std::vector<WidgetChordCollection> decodeChordCollections(const std::optional<std::string>& data) {
  const json::Value list = parseSharedList(data);
  return json::decodeList(json::Node(list), decodeWidgetChordCollection);
}

}  // namespace todaychord
