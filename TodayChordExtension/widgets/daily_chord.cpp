#include "TodayChordExtension/widgets/daily_chord.h"

#include <chrono>

#include "TodayChordExtension/widgets/shared_settings.h"
#include "Tonelake/platform/platform.h"

namespace todaychord {

std::shared_ptr<const tonelake::TodayChordLibrary> libraryOf(const WidgetSources& sources) {
  if (sources.library != nullptr) return sources.library;
  return std::make_shared<tonelake::TodayChordLibrary>(*tonelake::processPlatform().resources,
                                                       sources.calendar);
}

DailyChord dailyChord(const WidgetSources& sources, const tonelake::TodayChordLibrary& library,
                      tonelake::Instant now) {
  const tonelake::ChordCategory category = SharedSettings(sources.settings).todayChordCategory();
  return {category, library.chordOfTheDay(now, category, *sources.calendar)};
}

TimelineReloadPolicy reloadAtMidnight(const tonelake::Calendar& calendar, tonelake::Instant now) {
  constexpr std::chrono::seconds day{86400};
  return TimelineReloadPolicy::after(calendar.nextMidnight(now).value_or(now + day));
}

std::optional<Chord> placeholderChord(const tonelake::TodayChordLibrary& library) {
  const std::vector<Chord> chords = library.getAllChords();
  return chords.empty() ? std::nullopt : std::optional(chords.front());
}

}  // namespace todaychord
