#pragma once

#include <memory>
#include <optional>
#include <vector>

#include "Tonelake/chords/chord.h"
#include "Tonelake/foundation/api.h"
#include "Tonelake/foundation/whole_number.h"
#include "Tonelake/platform/calendar.h"
#include "Tonelake/platform/platform.h"
#include "Tonelake/platform/resource_bundle.h"
#include "Tonelake/today/chord_category.h"

namespace tonelake {

/// The chord of every day of the year, in three categories. Reads its lists when it is made and
/// never changes afterwards: any thread may ask. A packaged list that is missing or damaged stops
/// the process.
class TONELAKE_API TodayChordLibrary {
 public:
  /// One chord a day, 31 December of a leap year included.
  static constexpr std::size_t daysInYear = 366;

  /// On the process's platform, or on what it is given.
  TodayChordLibrary();
  /// @overload
  TodayChordLibrary(const ResourceBundle& resources, std::shared_ptr<const Calendar> calendar);

  const std::vector<Chord> beginnerChords;  ///< 366, by the day of the year
  const std::vector<Chord> advancedChords;  ///< 366, by the day of the year
  const std::vector<Chord> jazzChords;      ///< 366, by the day of the year

  /// The chord of the calendar day that holds `date`: entry (day of the year - 1), the same every
  /// year. Nothing when the calendar cannot place the date. The second form asks another calendar
  /// than the library's own.
  std::optional<Chord> chordOfTheDay(Instant date, ChordCategory category) const;
  /// @overload
  std::optional<Chord> chordOfTheDay(Instant date, ChordCategory category,
                                     const Calendar& calendar) const;

  /// Beginner, then advanced, then jazz: 1098 chords, duplicates kept.
  std::vector<Chord> getAllChords() const;
  /// A copy of jazzChords.
  std::vector<Chord> getJazzChords() const { return jazzChords; }

  /// Hands one notification for each remaining day of a month to the notification center, between
  /// 08:00:00 and 08:15:59 local time, with the day's chord in its text. The month is `monthOffset`
  /// calendar months from now: 0 this one, 1 the next; every day of a past month is over. A request
  /// that the center does not take becomes one diagnostic line, later and on whatever thread the
  /// center reports it. Scheduling again replaces the requests of the same category and days. The
  /// second form asks the ports of another platform than the process's.
  static void scheduleChordNotificationsForMonth(const TodayChordLibrary& library,
                                                 ChordCategory selectedCategory,
                                                 WholeNumber monthOffset);
  /// @overload
  static void scheduleChordNotificationsForMonth(const TodayChordLibrary& library,
                                                 ChordCategory selectedCategory,
                                                 WholeNumber monthOffset, const Platform& platform);

 private:
  const std::vector<Chord>& chords(ChordCategory category) const;

  std::shared_ptr<const Calendar> calendar_;
};

}  // namespace tonelake
