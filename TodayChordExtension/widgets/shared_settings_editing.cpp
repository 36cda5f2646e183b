#include "TodayChordExtension/widgets/shared_settings_editing.h"

#include <utility>

#include "TodayChordExtension/widgets/shared_data.h"
#include "TodayChordExtension/widgets/widget_chord_collection_json.h"
#include "Tonelake/chords/chord_json.h"

namespace todaychord {
namespace {

// Lets `change` make a new list of the one that `data` holds. Works on the JSON rather than on our
// records, which lack what we do not know.
template <typename Change>
SharedDataEdit edit(const std::optional<std::string>& data, Change change) {
  try {
    const json::Value stored = parseSharedList(data);
    std::string edited = json::write(change(json::Node(stored)));
    parseSharedList(edited);
    return {std::move(edited), ""};
  } catch (const json::DecodingError& error) {
    return {"", error.what()};
  }
}

}  // namespace

SharedDataEdit addRecentlyViewedChord(const std::optional<std::string>& data, const Chord& chord) {
  return edit(data, [&](const json::Node& stored) {
    json::Value list = json::Value::array({tonelake::encodeChord(chord)});
    for (std::size_t i = 0; i < stored.size(); ++i) {
      const json::Node record = stored.element(i);
      if (tonelake::decodeChord(record) != chord) list.push_back(record.value());
    }
    return list;
  });
}

SharedDataEdit addChordCollection(const std::optional<std::string>& data,
                                  const WidgetChordCollection& collection) {
  return edit(data, [&](const json::Node& stored) {
    json::decodeList(stored, decodeWidgetChordCollection);  // all of it is sound, or none is
    json::Value list = stored.value();
    list.push_back(encodeWidgetChordCollection(collection));
    return list;
  });
}

}  // namespace todaychord
