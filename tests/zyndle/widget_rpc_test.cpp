// What the scripting interface gives of curated lists and widgets.

#include <gtest/gtest.h>

#include "Tonelake/foundation/json.h"
#include "Tonelake/platform/platform.h"
#include "tests/zyndle/rpc_answers.h"

namespace zyndle {
namespace {

namespace json = tonelake::json;

const std::string chordWidget = R"("kind":"ZyndleChordWidget")";
const std::string launcher = R"("kind":"ZyndleExtraLargeLauncher")";
const std::string recent = R"("kind":"ZyndleExtraLargeRecentChords")";
const std::string collections = R"("kind":"ZyndleExtraLargeCollections")";
const std::string evening = R"(,"now":"2025-03-07T23:59:59Z")";

std::string chord(const std::string& root, const std::string& type, int variant = 0) {
  return R"({"rootNote":")" + root + R"(","chordType":")" + type + R"(","variant":)" +
         std::to_string(variant) + "}";
}

// A store with one text.
std::string settings(const std::string& key, const std::string& value) {
  return R"(,"settings":)" + json::write({{key, value}});
}

TEST(WidgetRpc, GivesCuratedListsAndSamples) {
  expectResults({
      {"chordTexts", R"("chordType":"minor")", "/genre", R"("Pop, Rock, Blues, Classical")"},
      {"chordTexts", R"("chordType":"minor")", "/jazzDescription", "null"},
      {"chordTexts", R"("chordType":"Minor")", "/description", "null"},
      {"curatedChordLists", "", "/size", "13"},
      {"curatedChordLists", "", "/barreChords",
       R"({"title":"Barre Chords Mastery","description":)"
       R"("For intermediate players looking to expand their versatility","imageName":"fret",)"
       R"("chords":[)" +
           chord("F", "major") + "," + chord("B", "minor") + "," + chord("C", "minor") + "," +
           chord("C♯", "minor") + "," + chord("B♭", "minor") + "," + chord("F♯", "major") +
           R"(],"preferredPositions":[]})"},
      {"curatedChordLists", "", "/metal/preferredPositions",
       R"([{"chord":)" + chord("E", "5") + R"(,"frets":[0,2,2,-1,-1,-1]}])"},
      {"getChordSampleSet", "", "", "[" + chord("C", "major") + "," + chord("C", "minor") + "]"},
      {"getChordSampleSetForChordType", R"("chordType":"minor")", "/6", chord("B", "minor")},
      {"getChordSampleSetForChordType", R"("chordType":"minor 7th")", "", "[]"},
  });
}

TEST(WidgetRpc, GivesTimelinesOfDays) {
  expectResults({
      {"getTimeline", chordWidget + evening, "/policy", R"({"after":"2025-03-08T00:00:00Z"})"},
      {"getTimeline", chordWidget + evening, "/entries/0/date", R"("2025-03-07T23:59:59Z")"},
      {"getTimeline", chordWidget + R"(,"timeZone":"Asia/Tokyo")", "",
       R"({"entries":[{"date":"2025-03-07T15:00:00Z","chord":)" + chord("A", "major") +
           R"(,"links":{"chord":"zyndle://widget/chord?root=A&type=major&variant=0"}}],)"
           R"("policy":{"after":"2025-03-08T15:00:00Z"}})"},
      {"getTimeline", launcher + evening + settings("todayChordCategory", "jazz"),
       "/entries/0/category", R"("jazz")"},
      {"getTimeline", launcher + evening + settings("todayChordCategory", "Jazz"),
       "/entries/0/category", R"("beginner")"},
      {"getTimeline", launcher + evening, "/entries/0/links/tools",
       R"(["zyndle://widget/tuner","zyndle://widget/metronome",)"
       R"("zyndle://widget/reverse-chord-finder","zyndle://widget/scan-song"])"},
  });
}

TEST(WidgetRpc, GivesTimelinesOfSettings) {
  const std::string odd = chord("G♭", "no type", -3);
  const std::string own = R"({"id":"7","title":"A & B","imageName":"","chords":[)" + odd + "]}";
  expectResults({
      {"getTimeline", recent + settings("recentlyViewedChords", "[" + odd + "," + odd + "]"),
       "/entries/0/chords/0", odd},
      {"getTimeline", recent + settings("recentlyViewedChords", "[" + odd + "," + odd + "]"),
       "/entries/0/links/chords/0",
       R"("zyndle://widget/chord?root=G%E2%99%AD&type=no%20type&variant=-3")"},
      {"getTimeline", recent + settings("recentlyViewedChords", "[" + odd), "/entries/0/chords/0",
       chord("C", "major")},
      {"getTimeline", recent + R"(,"settings":{"left_handed":true})", "/entries/0/links/search",
       R"("zyndle://widget/search")"},
      {"getTimeline", recent, "/policy", R"("never")"},
      {"getTimeline", collections + settings("chordCollections", "[" + own + "]"),
       "/entries/0/collections/0",
       R"({"id":"user-7","title":"A & B","subtitle":"Your collection","imageName":"",)"
       R"("systemImageName":"square.stack.3d.up.fill","chords":[)" +
           odd + R"(],"isUserCollection":true})"},
      {"getTimeline", collections + settings("chordCollections", "[" + own + "]"),
       "/entries/0/links/collections/0", R"("zyndle://widget/collection?title=A%20%26%20B")"},
      {"getTimeline", collections, "/entries/0/collections/0/systemImageName", "null"},
      {"getTimeline", collections, "/entries/0/links/viewAll", R"("zyndle://widget/collections")"},
      {"getTimeline", collections, "/policy", R"("never")"},
  });
}

TEST(WidgetRpc, ReadsThisMachinesSettingsUnlessGivenSome) {
  const auto& store = tonelake::processPlatform().sharedSettings;
  store->setData("recentlyViewedChords", "[" + chord("B", "5") + "]");
  expectResults({
      {"getTimeline", recent, "/entries/0/chords/0", chord("B", "5")},
      {"getTimeline", recent + R"(,"settings":null)", "/entries/0/chords/0", chord("B", "5")},
      {"getTimeline", recent + R"(,"settings":{})", "/entries/0/chords/0", chord("C", "major")},
  });
  store->remove("recentlyViewedChords");
}

TEST(WidgetRpc, GivesWidgetsAndLinks) {
  expectResults({
      {"widgets", "", "/size", "4"},
      {"widgets", "", "/0/families",
       R"(["small","medium","accessoryCircular","accessoryRectangular","accessoryInline"])"},
      {"widgets", "", "/2",
       R"({"kind":"ZyndleExtraLargeRecentChords","displayName":"Recently Viewed Chords",)"
       R"("description":"Quickly return to recently viewed and essential chords.",)"
       R"("families":["extraLargePortrait"]})"},
      {"chordLink", "\"chord\":" + chord("F♯", "?", 2), "",
       R"("zyndle://widget/chord?root=F%E2%99%AF&type=%3F&variant=2")"},
      {"collectionLink", R"("title":"")", "", R"("zyndle://widget/collection?title=")"},
      {"namedDestination", R"("name":"search")", "", R"("zyndle://widget/search")"},
      {"namedDestination", R"("name":"a b")", "", R"("/")"},
  });
}

TEST(WidgetRpc, NamesTheParameterThatIsWrong) {
  expectRefusals({
      {"getTimeline", "", "kind: missing"},
      {"getTimeline", R"("kind":"Chord")", "kind: there is no widget \"Chord\""},
      {"getTimeline", chordWidget + R"(,"now":"today")", "now: \"today\" is not an instant"},
      {"getTimeline", chordWidget + R"(,"timeZone":"Mars/Olympus")", "timeZone: \"Mars/Olympus\""},
      {"getTimeline", chordWidget + R"(,"settings":[])", "settings: expected an object"},
      {"getTimeline", chordWidget + R"(,"settings":{"left_handed":1})", "settings.left_handed: "},
      {"getTimeline", recent + R"(,"settings":{"recentlyViewedChords":[]})",
       "settings.recentlyViewedChords: expected a text"},
      {"getChordSampleSetForChordType", "", "chordType: missing"},
      {"chordLink", R"("chord":{"rootNote":"Gb","chordType":"major","variant":0})",
       "chord.rootNote: \"Gb\""},
      {"collectionLink", R"("title":null)", "title: expected a text"},
  });
}

}  // namespace
}  // namespace zyndle
