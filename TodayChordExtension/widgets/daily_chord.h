#pragma once

// What the two widgets that show the chord of the day have in common.

#include <memory>
#include <optional>

#include "TodayChordExtension/widgets/timeline.h"
#include "TodayChordExtension/widgets/widget_sources.h"
#include "Tonelake/chords/chord.h"
#include "Tonelake/today/chord_category.h"

namespace todaychord {

using tonelake::Chord;

/// The library of the sources, or a new one.
std::shared_ptr<const tonelake::TodayChordLibrary> libraryOf(const WidgetSources& sources);

/// The chord of the day that holds `now`, by the calendar of the sources and in the category that
/// the user has set.
struct DailyChord {
  tonelake::ChordCategory category;
  std::optional<Chord> chord;
};
DailyChord dailyChord(const WidgetSources& sources, const tonelake::TodayChordLibrary& library,
                      tonelake::Instant now);

/// The next local midnight; a day from now where the calendar finds none.
TimelineReloadPolicy reloadAtMidnight(const tonelake::Calendar& calendar, tonelake::Instant now);

/// A chord to stand in: the library's first.
std::optional<Chord> placeholderChord(const tonelake::TodayChordLibrary& library);

}  // namespace todaychord
