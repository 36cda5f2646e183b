#pragma once

#include <functional>
#include <memory>

#include "Tonelake/foundation/api.h"
#include "Tonelake/platform/application_information.h"
#include "Tonelake/platform/calendar.h"
#include "Tonelake/platform/diagnostics.h"
#include "Tonelake/platform/notification_center.h"
#include "Tonelake/platform/random_source.h"
#include "Tonelake/platform/resource_bundle.h"
#include "Tonelake/platform/settings_store.h"
#include "Tonelake/platform/string_table.h"

namespace tonelake {

/// Everything the library asks of its host. A default-made platform is inert: UTC, English,
/// settings in memory, the compiled-in resources, notifications dropped, diagnostics on standard
/// output. A host replaces the members it has something better for; none may be null.
struct TONELAKE_API Platform {
  Platform();

  std::shared_ptr<SettingsStore> standardSettings;    ///< generated positions
  std::shared_ptr<SettingsStore> sharedSettings;      ///< what app and widgets share
  std::shared_ptr<const Calendar> calendar;           ///< what time it is, and which day
  ApplicationInformation application;                 ///< part of the key of generated positions
  std::shared_ptr<const ResourceBundle> resources;    ///< daily lists and patterns
  std::shared_ptr<const StringTable> strings;         ///< the user's language
  std::shared_ptr<RandomSource> random;               ///< chooses titles and minutes of reminders
  std::shared_ptr<NotificationCenter> notifications;  ///< takes reminders
  std::shared_ptr<Diagnostics> diagnostics;  ///< takes what goes wrong without anybody's fault
  /// Makes the calling thread give way to others; does nothing unless the host knows how.
  std::function<void()> lowerThreadPriority;
};

/// Makes `platform` the one that operations without a platform of their own use. Call it once,
/// before anything else of the library: a second call, or one after first use, is a programming
/// error.
TONELAKE_API void installPlatform(Platform platform);

/// The installed platform, or the inert one. Safe to call from any thread.
TONELAKE_API const Platform& processPlatform();

}  // namespace tonelake
