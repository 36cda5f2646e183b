#include "TodayChordExtension/widgets/shared_settings.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "TodayChordExtension/widgets/shared_settings_editing.h"
#include "TodayChordExtension/widgets/widget_chord_collection_json.h"
#include "Tonelake/foundation/text.h"
#include "tests/support/printing.h"

namespace todaychord {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::SizeIs;
using tonelake::ChordCategory;
using tonelake::Note;

const std::string cMajor = R"({"rootNote":"C","chordType":"major","variant":0})";

class SharedSettingsTest : public ::testing::Test {
 protected:
  std::vector<Chord> chordsIn(const std::string& data) {
    store->setData("recentlyViewedChords", data);
    return settings.recentlyViewedChords();
  }
  std::vector<WidgetChordCollection> collectionsIn(const std::string& data) {
    store->setData("chordCollections", data);
    return settings.chordCollections();
  }

  const std::shared_ptr<tonelake::SettingsStore> store = tonelake::makeMemorySettingsStore();
  const SharedSettings settings{store};
};

TEST_F(SharedSettingsTest, HaveDefaults) {
  EXPECT_EQ(settings.todayChordCategory(), ChordCategory::beginner);
  EXPECT_FALSE(settings.isLeftHanded());
  EXPECT_THAT(settings.recentlyViewedChords(), IsEmpty());
  EXPECT_THAT(settings.chordCollections(), IsEmpty());
}

TEST_F(SharedSettingsTest, TakeNoValueOfAnotherType) {
  store->setText("recentlyViewedChords", "[" + cMajor + "]");
  store->setText("left_handed", "true");
  store->setData("todayChordCategory", "jazz");
  EXPECT_THAT(settings.recentlyViewedChords(), IsEmpty());
  EXPECT_FALSE(settings.isLeftHanded());
  EXPECT_EQ(settings.todayChordCategory(), ChordCategory::beginner);
}

TEST_F(SharedSettingsTest, KnowTheCategoriesByTheirExactNames) {
  const std::pair<const char*, ChordCategory> rows[] = {{"jazz", ChordCategory::jazz},
                                                        {"advanced", ChordCategory::advanced},
                                                        {"Jazz", ChordCategory::beginner},
                                                        {"", ChordCategory::beginner}};
  for (const auto& [text, category] : rows) {
    store->setText("todayChordCategory", text);
    EXPECT_EQ(settings.todayChordCategory(), category) << text;
  }
}

TEST_F(SharedSettingsTest, GiveChordsAsTheyAreStored) {
  EXPECT_THAT(chordsIn("[" + cMajor + "," + cMajor + R"(,{"variant":-7,"date":null,)" +
                       R"("chordType":"H7","rootNote":"B♭♭"}])"),
              ElementsAre(Chord{Note::C, "major", 0}, Chord{Note::C, "major", 0},
                          Chord{Note::Bdf, "H7", -7}));
  const std::string blanks(largestSharedData - cMajor.size() - 2, ' ');
  EXPECT_THAT(chordsIn("[" + cMajor + blanks + "]"), SizeIs(1));
  EXPECT_THAT(chordsIn("[" + cMajor + blanks + " ]"), IsEmpty());
}

// One damaged record makes the whole value worthless, wherever it stands.
TEST_F(SharedSettingsTest, TakeDamagedDataForNone) {
  const auto listOf = [](const std::vector<std::string>& items) {
    return "[" + tonelake::join(items, ",") + "]";
  };
  const auto collectionOf = [&](const std::vector<std::string>& chords) {
    return R"({"id":"1","title":"A","imageName":"i","chords":)" + listOf(chords) + "}";
  };
  const std::string records[] = {
      R"({"rootNote":"C","chordType":"major"})",
      R"({"rootNote":"C","chordType":"major","variant":"0"})",
      R"({"rootNote":"C","chordType":"major","variant":0.0})",
      R"({"rootNote":"C","chordType":"major","variant":9223372036854775808})",
      R"({"rootNote":"C","chordType":null,"variant":0})",
      R"({"rootNote":"Db","chordType":"major","variant":0})",
      R"({"rootNote":"","chordType":"major","variant":0})",
      "\"C major\"",
      "null",
      "[]",
      cMajor + "}",
      "{\"rootNote\":\"C\",\"chordType\":\"\xE2\x99\",\"variant\":0}",
      std::string("\0", 1),
      std::string(200'000, '['),
  };
  for (const std::string& record : records) {
    EXPECT_THAT(chordsIn(listOf({record})), IsEmpty()) << record.substr(0, 99);
    EXPECT_THAT(chordsIn(listOf({cMajor, record})), IsEmpty()) << record.substr(0, 99);
    EXPECT_THAT(collectionsIn(listOf({collectionOf({}), collectionOf({record})})), IsEmpty());
  }
  const std::string texts[] = {
      "", "null", cMajor, "[" + cMajor, "[" + cMajor + ",]", "[" + cMajor + "]]"};
  for (const std::string& data : texts) {
    EXPECT_THAT(chordsIn(data), IsEmpty()) << data;
  }
  for (const char* record : {R"({"title":"A","imageName":"i","chords":[]})",
                             R"({"id":1,"title":"A","imageName":"i","chords":[]})",
                             R"({"id":"1","title":"A","imageName":null,"chords":[]})",
                             R"({"id":"1","title":"A","imageName":"i","chords":{}})"}) {
    EXPECT_THAT(collectionsIn(listOf({collectionOf({}), record})), IsEmpty()) << record;
  }
  EXPECT_THAT(collectionsIn(listOf({collectionOf({})})), SizeIs(1)) << "the rows above begin well";
}

TEST_F(SharedSettingsTest, KeepCollectionsThroughJson) {
  const WidgetChordCollection collection{
      "7", "Warm-up \"♯\"\n", "", {{Note::Gf, "5", 1}, {Note::C, "?", 99}}};
  EXPECT_EQ(decodeWidgetChordCollection(json::Node(encodeWidgetChordCollection(collection))),
            collection);
  EXPECT_THAT(collectionsIn(addChordCollection(std::nullopt, collection).data),
              ElementsAre(collection));
}

TEST_F(SharedSettingsTest, PutTheChordJustViewedFirst) {
  std::optional<std::string> data;
  for (const char* type : {"major", "minor", "5", "minor"}) {
    const SharedDataEdit edit = addRecentlyViewedChord(data, {Note::C, type, 0});
    ASSERT_EQ(edit.problem, "");
    data = edit.data;
  }
  EXPECT_THAT(chordsIn(*data), ElementsAre(Chord{Note::C, "minor", 0}, Chord{Note::C, "5", 0},
                                           Chord{Note::C, "major", 0}));
}

TEST_F(SharedSettingsTest, AreEditedWithoutLoss) {
  const std::string rich = R"({"rootNote":"D","chordType":"major","variant":0,"seen":[1,"x"]})";
  EXPECT_EQ(addRecentlyViewedChord("[" + rich + "," + cMajor + "]", {Note::C, "major", 0}).data,
            "[" + cMajor + "," + rich + "]");
  const std::string own = R"({"id":"1","new":true,"title":"A","imageName":"","chords":[]})";
  EXPECT_EQ(addChordCollection("[" + own + "]", {"2", "B", "", {}}).data,
            "[" + own + R"(,{"id":"2","title":"B","imageName":"","chords":[]}])");

  const std::string full = "[" + cMajor + R"(,{"rootNote":"D","chordType":")" +
                           std::string(largestSharedData - 120, 'x') + R"(","variant":0}])";
  const std::pair<std::string, const char*> damaged[] = {
      {"", "not JSON"},
      {"{}", "expected a list"},
      {"[" + cMajor + R"(,{"rootNote":"H"}])", "[1].rootNote"},
      {std::string(largestSharedData + 1, ' '), "more than 1048576 bytes"},
      {full, "more than 1048576 bytes"},
  };
  for (const auto& [data, problem] : damaged) {
    const SharedDataEdit edit = addRecentlyViewedChord(data, {Note::E, "minor 7th flat 5", 0});
    EXPECT_THAT(edit.problem, HasSubstr(problem));
    EXPECT_EQ(edit.data, "");
  }
  EXPECT_THAT(addChordCollection("[" + own + ",{}]", {"2", "B", "", {}}).problem,
              HasSubstr("[1].id"));
}

}  // namespace
}  // namespace todaychord
