#include <algorithm>

#include <pugixml.hpp>

#include "Desktop/svg_renderer.h"
#include "TodayChordExtension/diagram/scene_json.h"
#include "TodayChordExtension/widgets/shared_data.h"
#include "TodayChordExtension/widgets/shared_settings.h"
#include "TodayChordExtension/widgets/shared_settings_editing.h"
#include "TodayChordExtension/widgets/today_chord_bundle.h"
#include "TodayChordExtension/widgets/widget_chord_collection_json.h"
#include "TodayChordExtension/widgets/widget_view.h"
#include "Tonelake/chords/chord_json.h"
#include "Tonelake/foundation/text.h"
#include "fuzz/json_agreement.h"

// What the app leaves for its widgets. An input is three lines: the category, the recent chords
// and the collections. Whatever they hold, the widgets that show them are drawn.

namespace fuzz {
namespace {

using namespace todaychord;
using Data = std::optional<std::string>;

const Chord addedChord{tonelake::Note::C, "major", 0};
const WidgetChordCollection addedCollection{"7", "Warm-up", "acoustic", {addedChord}};

template <typename Decode>
auto listIn(const std::string& data, Decode decode) -> std::optional<decltype(decode(data))> {
  try {
    return decode(data);
  } catch (const json::DecodingError&) {
    return std::nullopt;
  }
}

// The chord leads, and leads only; the others stay as they were.
void examineRecents(const std::string& data, const std::vector<Chord>& read) {
  const auto recents = listIn(data, decodeRecentlyViewedChords);
  require(read == recents.value_or(std::vector<Chord>()), "a damaged list counts as none");
  const SharedDataEdit edit = addRecentlyViewedChord(data, addedChord);
  require(edit.problem.empty() == recents.has_value(), "only what is sound is edited");
  if (!recents) return;
  std::vector<Chord> expected = *recents;
  std::erase(expected, addedChord);
  expected.insert(expected.begin(), addedChord);
  require(decodeRecentlyViewedChords(edit.data) == expected, "the chord leads the others");
  require(addRecentlyViewedChord(edit.data, addedChord).data == edit.data, "once is enough");
}

void examineCollections(const std::string& data, const std::vector<WidgetChordCollection>& read) {
  auto collections = listIn(data, decodeChordCollections);
  require(read == collections.value_or(std::vector<WidgetChordCollection>()),
          "a damaged list counts as none");
  const SharedDataEdit edit = addChordCollection(data, addedCollection);
  require(edit.problem.empty() == collections.has_value(), "only what is sound is edited");
  if (!collections) return;
  collections->push_back(addedCollection);
  require(decodeChordCollections(edit.data) == collections, "a collection comes last");
  for (const auto& collection : *collections) {
    requireAgreement(encodeWidgetChordCollection(collection), decodeWidgetChordCollection,
                     encodeWidgetChordCollection);
  }
}

bool isXmlCharacter(char character) {
  return static_cast<unsigned char>(character) >= ' ' || character == '\n' || character == '\t';
}

void requireDrawn(const Scene& scene) {
  const std::string svg = desktop::renderSvg(scene);
  require(tonelake::isValidUtf8(svg) && std::all_of(svg.begin(), svg.end(), isXmlCharacter) &&
              pugi::xml_document().load_string(svg.c_str()),
          "a picture is well-formed");
  json::parse(json::write(encodeScene(scene)));
}

void drawWidget(std::string_view kind, std::size_t choice,
                const std::shared_ptr<const tonelake::SettingsStore>& store) {
  static const auto library = std::make_shared<const tonelake::TodayChordLibrary>();
  const auto families = TodayChordBundle::findWidget(kind)->families;
  const auto provider = makeWidgetProvider(kind, {tonelake::makeUtcCalendar(), store, library});
  provider->getTimeline([&](const Timeline<WidgetEntry>& timeline) {
    require(!timeline.entries.empty(), "there is something to show");
    requireDrawn(todaychord::drawWidget(timeline.entries.front(),
                                        families[choice % families.size()], {choice % 2 == 0}));
  });
}

}  // namespace

void examine(std::string_view input) {
  auto lines = tonelake::split(input, '\n');
  lines.resize(3);
  const auto store = tonelake::makeMemorySettingsStore();
  store->setText(todayChordCategoryKey, lines[0]);
  store->setData(recentlyViewedChordsKey, lines[1]);
  store->setData(chordCollectionsKey, lines[2]);
  const SharedSettings settings(store);
  settings.todayChordCategory();
  const auto recents = settings.recentlyViewedChords();
  const auto collections = settings.chordCollections();
  examineRecents(std::string(lines[1]), recents);
  examineCollections(std::string(lines[2]), collections);
  // Pictures take their time: one of those that differ, in a family and hand for each input.
  if (!recents.empty()) drawWidget(recentChordsWidgetKind, input.size(), store);
  if (!collections.empty()) drawWidget(collectionsWidgetKind, input.size(), store);
}

std::vector<std::string> seeds() {
  const std::string chords = R"([{"rootNote":"F♯","chordType":"minor 7th","variant":1,"new":{}},)"
                             R"({"rootNote":"C","chordType":"major","variant":0}])";
  const std::string collections =
      R"([{"id":"7","title":"Warm-up <&\u0007 夏","imageName":"acoustic","chords":)" + chords +
      "}]";
  return {"jazz\n" + chords + "\n" + collections, "\n\n" + collections, "beginner\n" + chords,
          "advanced\n[]\n[]"};
}

}  // namespace fuzz
