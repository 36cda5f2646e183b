#include <chrono>
#include <thread>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "TodayChordExtension/widgets/chord_provider.h"
#include "TodayChordExtension/widgets/collections_provider.h"
#include "TodayChordExtension/widgets/launcher_provider.h"
#include "TodayChordExtension/widgets/recent_chords_provider.h"
#include "TodayChordExtension/widgets/shared_settings_editing.h"
#include "TodayChordExtension/widgets/today_chord_bundle.h"
#include "TodayChordExtension/widgets/widget_provider.h"
#include "Tonelake/content/curated_chord_lists.h"
#include "tests/support/fixed_calendar.h"
#include "tests/support/printing.h"

namespace todaychord {
namespace {

using ::testing::ElementsAre;
using ::testing::SizeIs;
using tonelake::ChordListCategory;
using tonelake::Note;
using tonelake::SettingsStore;
using tonelake::testing::FixedCalendar;
using tonelake::testing::utc;

const Instant noon = utc({2025, 3, 7, 12, 0, 0});
constexpr int seventhOfMarch = 66;  // the day of the year

template <typename Provider>
auto timelineOf(const Provider& provider) {
  std::vector<Timeline<decltype(provider.placeholder())>> answers;
  provider.getTimeline([&](auto timeline) { answers.push_back(std::move(timeline)); });
  EXPECT_THAT(answers, SizeIs(1)) << "a completion is called once, before the request returns";
  EXPECT_THAT(answers.at(0).entries, SizeIs(1));
  return answers.at(0);
}

class WidgetProviders : public ::testing::Test {
 protected:
  WidgetSources sources(std::shared_ptr<const tonelake::Calendar> calendar) const {
    return {std::move(calendar), store, library()};
  }
  WidgetSources sources() const { return sources(std::make_shared<FixedCalendar>(noon)); }

  static std::shared_ptr<const tonelake::TodayChordLibrary> library() {
    static const auto shared = std::make_shared<const tonelake::TodayChordLibrary>();
    return shared;
  }

  const std::shared_ptr<SettingsStore> store = tonelake::makeMemorySettingsStore();
};

TEST_F(WidgetProviders, ShowTheChordOfTheDayUntilMidnight) {
  constexpr std::chrono::seconds day{86400};
  constexpr std::chrono::hours hour{1};
  struct Row {
    const char* what;
    Instant now;
    int hoursAhead;
    int ordinal;
    std::chrono::seconds untilReload;
  };
  const Row rows[] = {
      {"noon", noon, 0, seventhOfMarch, 12 * hour},
      {"the day's last second", utc({2025, 3, 7, 23, 59, 59}), 0, seventhOfMarch,
       std::chrono::seconds(1)},
      {"midnight itself", utc({2025, 3, 7, 0, 0, 0}), 0, seventhOfMarch, day},
      {"already tomorrow there", utc({2025, 3, 7, 15, 0, 0}), 9, seventhOfMarch + 1, day},
      {"the last day of a leap year", utc({2024, 12, 31, 22, 0, 0}), 0, 366, 2 * hour},
  };
  store->setText("todayChordCategory", "jazz");
  for (const Row& row : rows) {
    const auto calendar = std::make_shared<FixedCalendar>(row.now, row.hoursAhead);
    const Chord& chord = library()->jazzChords.at(static_cast<std::size_t>(row.ordinal - 1));
    const auto policy = TimelineReloadPolicy::after(row.now + row.untilReload);
    EXPECT_EQ(timelineOf(ChordProvider(sources(calendar))),
              (Timeline<ChordEntry>{{{row.now, chord}}, policy}))
        << row.what;
    EXPECT_EQ(timelineOf(LauncherProvider(sources(calendar))),
              (Timeline<LauncherEntry>{{{row.now, chord, ChordCategory::jazz}}, policy}))
        << row.what;
  }
}

TEST_F(WidgetProviders, DoWithACalendarThatDoesNotKnow) {
  const auto calendar = std::make_shared<FixedCalendar>(noon);
  calendar->knowsDays = false;
  calendar->knowsMidnights = false;
  const auto policy = TimelineReloadPolicy::after(noon + std::chrono::seconds(86400));
  EXPECT_EQ(timelineOf(ChordProvider(sources(calendar))),
            (Timeline<ChordEntry>{{{noon, std::nullopt}}, policy}));
  EXPECT_EQ(timelineOf(LauncherProvider(sources(calendar))),
            (Timeline<LauncherEntry>{{{noon, std::nullopt, ChordCategory::beginner}}, policy}));
}

std::string titlesOf(const std::vector<Chord>& chords) {
  std::string titles;
  for (const Chord& chord : chords) {
    titles.append(chord.rootNote.rawValue()).append(" ").append(chord.chordType);
    titles += chord.variant == 0 ? ", " : "/" + std::to_string(chord.variant) + ", ";
  }
  return titles;
}

// Roots are natural notes; types have a letter each, "?" is a type that nobody knows.
std::string chordData(const std::string& names) {
  std::string list;
  for (std::size_t i = 0; i + 1 < names.size(); i += 3) {
    const char type = names[i + 1];
    list += (i > 0 ? "," : "") + std::string(R"({"rootNote":")") + names[i] + R"(","chordType":")" +
            (type == 'M'   ? "major"
             : type == 'm' ? "minor"
                           : "?") +
            R"(","variant":0})";
  }
  return "[" + list + "]";
}

TEST_F(WidgetProviders, FillRecentChordsUpWithCommonOnes) {
  const std::pair<std::string, const char*> rows[] = {
      {"[]", "C major, G major, D major, A major, E major, A minor, E minor, D minor, "},
      {"[{}]", "C major, G major, D major, A major, E major, A minor, E minor, D minor, "},
      // Ten chords, of which three repeat others.
      {chordData("Fm F? CM Fm GM F? Bm BM CM FM"),
       "F minor, F ?, C major, G major, B minor, B major, F major, D major, "},
      {chordData("Cm Dm Em Fm Gm Am Bm CM DM EM"),
       "C minor, D minor, E minor, F minor, G minor, A minor, B minor, C major, "},
      {chordData("Dm Em Am EM AM DM GM"),
       "D minor, E minor, A minor, E major, A major, D major, G major, C major, "},
      {R"([{"rootNote":"C","chordType":"major","variant":7}])",
       "C major/7, C major, G major, D major, A major, E major, A minor, E minor, "},
  };
  for (const auto& [data, titles] : rows) {
    store->setData("recentlyViewedChords", data);
    const auto timeline = timelineOf(RecentChordsProvider(sources()));
    EXPECT_EQ(titlesOf(timeline.entries[0].chords), titles) << data;
    EXPECT_EQ(timeline.entries[0].date, noon);
    EXPECT_EQ(timeline.policy, TimelineReloadPolicy::never());
  }
}

TEST_F(WidgetProviders, FillCollectionsUpWithCuratedPacks) {
  const std::string curated[] = {"undergroundMusic", "jazzChords", "bluesChords", "folk", "metal",
                                 "country",          "rock"};
  std::string data = "[]";
  for (std::size_t own = 0; own <= 9; ++own) {
    store->setData("chordCollections", data);
    const auto timeline = timelineOf(CollectionsProvider(sources()));
    std::vector<std::string> expected;
    for (std::size_t i = 0; i < 7; ++i) {
      expected.push_back(i < own ? "user-" + std::to_string(i) : "curated-" + curated[i - own]);
    }
    std::vector<std::string> ids;
    for (const auto& item : timeline.entries[0].collections) ids.push_back(item.id);
    EXPECT_EQ(ids, expected) << own;
    EXPECT_EQ(timeline.policy, TimelineReloadPolicy::never());
    data = addChordCollection(data, {std::to_string(own), "Mine", "picture", {}}).data;
  }
}

TEST_F(WidgetProviders, DescribeOwnAndCuratedCollections) {
  const Chord unknown{Note::C, "?", 9};
  const WidgetChordCollection own{"a b", "Märchen", "picture", {unknown}};
  store->setData("chordCollections", addChordCollection(std::nullopt, own).data);
  const auto items = timelineOf(CollectionsProvider(sources())).entries[0].collections;
  const WidgetCollectionItem shown{
      "user-a b", "Märchen", "Your collection", "picture", "square.stack.3d.up.fill",
      {unknown},  true};
  EXPECT_EQ(items.at(0), shown);
  const auto& jazz = tonelake::curatedChordLists().at(ChordListCategory::jazzChords);
  EXPECT_EQ(items.at(2), (WidgetCollectionItem{"curated-jazzChords", jazz.title, "Curated pack",
                                               jazz.imageName, std::nullopt, jazz.chords, false}));
}

TEST_F(WidgetProviders, StandInWithoutReadingSettings) {
  // Without settings: to read any would end the process.
  const WidgetSources blind{std::make_shared<FixedCalendar>(noon), nullptr, library()};
  const Chord& first = library()->beginnerChords.front();
  EXPECT_EQ(ChordProvider(blind).placeholder(), (ChordEntry{noon, first}));
  EXPECT_EQ(LauncherProvider(blind).placeholder(),
            (LauncherEntry{noon, first, ChordCategory::beginner}));
  EXPECT_THAT(RecentChordsProvider(blind).placeholder().chords, SizeIs(8));
  EXPECT_THAT(CollectionsProvider(blind).placeholder().collections, SizeIs(7));
}

TEST_F(WidgetProviders, ServeEveryWidgetOfTheBundleByItsKind) {
  std::vector<std::size_t> entryTypes;
  for (const WidgetDescription& widget : TodayChordBundle::widgets()) {
    EXPECT_EQ(TodayChordBundle::findWidget(widget.kind), &widget);
    for (const WidgetFamily family : widget.families) {
      EXPECT_EQ(WidgetFamily::fromRawValue(family.rawValue()), family);
    }
    const auto provider = makeWidgetProvider(widget.kind, sources());
    ASSERT_NE(provider, nullptr) << widget.kind;
    const auto timeline = timelineOf(*provider);
    entryTypes.push_back(timeline.entries[0].index());
    EXPECT_EQ(provider->placeholder().index(), entryTypes.back()) << widget.kind;
    provider->getSnapshot(
        [&](const WidgetEntry& entry) { EXPECT_EQ(entry, timeline.entries[0]) << widget.kind; });
  }
  EXPECT_THAT(entryTypes, ElementsAre(0, 1, 2, 3));
  EXPECT_EQ(makeWidgetProvider("zyndleChordWidget", sources()), nullptr);
  EXPECT_EQ(TodayChordBundle::findWidget(""), nullptr);
}

TEST_F(WidgetProviders, AnswerManyThreadsWhileSettingsChange) {
  const ChordProvider today(sources());
  const RecentChordsProvider recent(sources());
  std::vector<std::thread> threads;
  threads.reserve(4);
  for (int i = 0; i < 4; ++i) {
    threads.emplace_back([&, i] {
      for (int round = 0; round < 50; ++round) {
        store->setData("recentlyViewedChords", chordData(i % 2 == 0 ? "Fm" : "Gm"));
        recent.getTimeline([](const Timeline<RecentChordsEntry>& timeline) {
          EXPECT_THAT(timeline.entries.at(0).chords, SizeIs(8));
        });
        today.getSnapshot([](const ChordEntry& entry) { EXPECT_TRUE(entry.chord.has_value()); });
      }
    });
  }
  for (std::thread& thread : threads) thread.join();
}

}  // namespace
}  // namespace todaychord
