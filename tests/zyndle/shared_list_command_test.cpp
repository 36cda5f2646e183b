// `zyndle recent` and `zyndle collections`, run as a user would, and what the widgets see of them.

#include <thread>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "Desktop/sqlite_settings_store.h"
#include "TodayChordExtension/widgets/shared_settings.h"
#include "tests/support/recording_diagnostics.h"
#include "tests/zyndle/command_runner.h"

namespace zyndle {
namespace {

using testing::AllOf;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;
using testing::StartsWith;
using todaychord::SharedSettings;
using todaychord::WidgetChordCollection;
using tonelake::Chord;
using tonelake::Note;

class SharedListCommand : public testing::Test, protected CommandRunner {
 protected:
  // After a command has made the file.
  std::shared_ptr<desktop::SqliteSettingsStore> store() const {
    return desktop::SqliteSettingsStore::open(
               folder_.path("zyndle/shared.sqlite"),
               std::make_shared<tonelake::testing::RecordingDiagnostics>())
        .store;
  }

  void expectSuccess(const std::vector<std::string>& arguments, const std::string& output = "") {
    const auto result = run(arguments);
    EXPECT_EQ(result.status, 0) << result.errors;
    EXPECT_EQ(result.output, output);
  }
};

TEST_F(SharedListCommand, PutsRecentChordsFirst) {
  expectSuccess({"recent", "list"}, "(none)\n");
  expectSuccess({"recent", "add", "c", "major", "7th"});
  expectSuccess({"recent", "add", "F#m7b5/E"});
  expectSuccess({"recent", "add", "CM7"});
  EXPECT_THAT(SharedSettings(store()).recentlyViewedChords(),
              ElementsAre(Chord{Note::C, "major 7th", 0}, Chord{Note::Fs, "minor 7th flat 5", 3}));
  expectSuccess({"recent", "list"}, "C major 7th\nF♯min7(♭5)/E\n");
  expectSuccess({"recent", "clear"});
  expectSuccess({"recent", "list"}, "(none)\n");
}

TEST_F(SharedListCommand, AddsCollectionsAtTheEnd) {
  expectSuccess({"collections", "list"}, "(none)\n");
  expectSuccess({"collections", "add", "Warm-up", "C", "a minor", "G7"});
  expectSuccess({"collections", "add", "Ü & ♯", "Dsus4"});
  expectSuccess({"collections", "list"},
                "Warm-up\n  C major, A minor, G dominant 7th\nÜ & ♯\n  Dsus4\n");
  const std::vector<WidgetChordCollection> stored = SharedSettings(store()).chordCollections();
  ASSERT_THAT(stored, SizeIs(2));
  EXPECT_EQ(stored[1], (WidgetChordCollection{
                           stored[1].id, "Ü & ♯", "", {Chord{Note::D, "suspended 4th", 0}}}));
  EXPECT_NE(stored[0].id, stored[1].id);
  expectSuccess({"collections", "clear"});
  EXPECT_THAT(SharedSettings(store()).chordCollections(), IsEmpty());
}

TEST_F(SharedListCommand, ListsWhatTheAppStored) {
  expectSuccess({"recent", "list"}, "(none)\n");
  const std::string odd = R"({"rootNote":"G♭","chordType":"no\ntype","variant":3})";
  store()->setData("recentlyViewedChords", "[" + odd + "]");
  store()->setData("chordCollections", R"([{"id":"","title":"A\nB","imageName":"x","chords":[]}])");
  expectSuccess({"recent", "list"}, "G♭ no\uFFFDtype, variant 3\n");
  expectSuccess({"collections", "list"}, "A\uFFFDB\n  (no chords)\n");
}

TEST_F(SharedListCommand, LeavesDamagedDataAlone) {
  expectSuccess({"recent", "list"}, "(none)\n");
  struct Row {
    std::string command;
    std::vector<std::string> add;
    std::string key;
    std::string data;
    std::string problem;
  };
  const Row rows[] = {
      {"recent", {"C"}, "recentlyViewedChords", "[{}]", "([0].rootNote: missing)"},
      {"recent", {"C"}, "recentlyViewedChords", "", "(not JSON"},
      {"collections", {"A", "C"}, "chordCollections", "{}", "(expected a list)"},
      {"collections",
       {"A", "C"},
       "chordCollections",
       R"([{"id":"1","title":2}])",
       "([0].title: expected a text)"},
  };
  for (const Row& row : rows) {
    store()->setData(row.key, row.data);
    std::vector<std::string> add{row.command, "add"};
    add.insert(add.end(), row.add.begin(), row.add.end());
    for (const auto& arguments : {add, {row.command, "list"}}) {
      const auto result = run(arguments);
      EXPECT_EQ(result.status, 1) << row.data;
      EXPECT_EQ(result.output, "") << row.data;
      EXPECT_THAT(result.errors, AllOf(StartsWith("zyndle: " + row.key), HasSubstr(row.problem),
                                       HasSubstr("zyndle " + row.command + " clear")));
      EXPECT_EQ(countLines(result.errors), 1U);
    }
    EXPECT_EQ(store()->data(row.key), row.data);
    expectSuccess({row.command, "clear"});
    expectSuccess(add);
  }
}

TEST_F(SharedListCommand, LosesNothingWhenSeveralAddAtOnce) {
  expectSuccess({"recent", "list"}, "(none)\n");
  std::vector<std::jthread> runs;
  for (const char* name : {"C", "D", "E", "F", "G", "A"}) {
    runs.emplace_back([this, name] { expectSuccess({"recent", "add", name}); });
  }
  runs.clear();
  EXPECT_THAT(SharedSettings(store()).recentlyViewedChords(), SizeIs(6));
}

}  // namespace
}  // namespace zyndle
