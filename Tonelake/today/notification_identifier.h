#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "Tonelake/foundation/api.h"
#include "Tonelake/today/chord_category.h"

// Pure functions: any thread may call.
namespace tonelake {

/// Which reminder a notification is: there is one a day in each category.
struct ReminderKey {
  ChordCategory category = ChordCategory::beginner;  ///< of the chord
  int year = 0;                                      ///< of the day that it is due on
  int month = 0;                                     ///< 1 to 12
  int day = 0;                                       ///< 1 to 31

  friend bool operator==(const ReminderKey&, const ReminderKey&) = default;
};

/// "chordOfTheDay_jazz_2025_3_7". Kept by notification services and calendars: do not change.
TONELAKE_API std::string notificationIdentifier(const ReminderKey& key);

/// The reverse; nothing for any text that notificationIdentifier does not write.
TONELAKE_API std::optional<ReminderKey> parseNotificationIdentifier(std::string_view identifier);

}  // namespace tonelake
