#pragma once

#include <memory>

#include "Tonelake/foundation/api.h"
#include "Tonelake/platform/calendar.h"
#include "Tonelake/platform/settings_store.h"
#include "Tonelake/today/today_chord_library.h"

namespace todaychord {

/// What the providers read. Neither calendar nor settings are null.
struct TONELAKE_API WidgetSources {
  /// The platform of the process.
  static WidgetSources ofProcess();

  std::shared_ptr<const tonelake::Calendar> calendar;  ///< asked for the day and for midnights
  /// What the app leaves for its widgets, see shared_settings.h.
  std::shared_ptr<const tonelake::SettingsStore> settings;
  /// The daily chords, shared by whoever needs them; where it is null, each provider that needs a
  /// library makes its own. Days are counted by the calendar above, whatever the library's is.
  std::shared_ptr<const tonelake::TodayChordLibrary> library;
};

}  // namespace todaychord
