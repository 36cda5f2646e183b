#include "TodayChordExtension/widgets/recent_chords_provider.h"

#include <algorithm>
#include <utility>

#include "TodayChordExtension/widgets/shared_settings.h"
#include "Tonelake/content/curated_chord_lists.h"

namespace todaychord {
namespace {

using tonelake::ChordListCategory;

// What fills up a short list, in this order.
constexpr ChordListCategory fillers[] = {ChordListCategory::commonChords,
                                         ChordListCategory::beginnerEssentials};

void addDifferentChords(std::vector<Chord>& taken, const std::vector<Chord>& offered) {
  for (const Chord& chord : offered) {
    if (taken.size() == RecentChordsEntry::capacity) return;
    if (std::find(taken.begin(), taken.end(), chord) == taken.end()) taken.push_back(chord);
  }
}

std::vector<Chord> chooseChords(const std::vector<Chord>& viewed) {
  std::vector<Chord> chosen;
  addDifferentChords(chosen, viewed);
  for (const ChordListCategory category : fillers) {
    addDifferentChords(chosen, tonelake::curatedChordLists().at(category).chords);
  }
  return chosen;
}

}  // namespace

RecentChordsProvider::RecentChordsProvider(WidgetSources sources) : sources_(std::move(sources)) {}

RecentChordsEntry RecentChordsProvider::placeholder() const {
  return {sources_.calendar->now(), chooseChords({})};
}

void RecentChordsProvider::getTimeline(
    const std::function<void(Timeline<RecentChordsEntry>)>& completion) const {
  const auto viewed = SharedSettings(sources_.settings).recentlyViewedChords();
  completion({{{sources_.calendar->now(), chooseChords(viewed)}}, TimelineReloadPolicy::never()});
}

}  // namespace todaychord
