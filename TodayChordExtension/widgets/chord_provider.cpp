#include "TodayChordExtension/widgets/chord_provider.h"

#include <utility>

#include "TodayChordExtension/widgets/daily_chord.h"

namespace todaychord {

ChordProvider::ChordProvider(WidgetSources sources)
    : library(libraryOf(sources)), sources_(std::move(sources)) {}

ChordEntry ChordProvider::placeholder() const {
  return {sources_.calendar->now(), placeholderChord(*library)};
}

void ChordProvider::getTimeline(const std::function<void(Timeline<ChordEntry>)>& completion) const {
  const Instant now = sources_.calendar->now();
  completion({{{now, dailyChord(sources_, *library, now).chord}},
              reloadAtMidnight(*sources_.calendar, now)});
}

}  // namespace todaychord
