#include "TodayChordExtension/widgets/launcher_provider.h"

#include <utility>

#include "TodayChordExtension/widgets/daily_chord.h"

namespace todaychord {

LauncherProvider::LauncherProvider(WidgetSources sources)
    : library(libraryOf(sources)), sources_(std::move(sources)) {}

LauncherEntry LauncherProvider::placeholder() const {
  return {sources_.calendar->now(), placeholderChord(*library), ChordCategory::beginner};
}

void LauncherProvider::getTimeline(
    const std::function<void(Timeline<LauncherEntry>)>& completion) const {
  const Instant now = sources_.calendar->now();
  const DailyChord today = dailyChord(sources_, *library, now);
  completion({{{now, today.chord, today.category}}, reloadAtMidnight(*sources_.calendar, now)});
}

}  // namespace todaychord
