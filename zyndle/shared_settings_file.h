#pragma once

#include <memory>
#include <optional>
#include <string>

#include "Desktop/sqlite_settings_store.h"

namespace zyndle {

/// The store that is shared with the widgets, for commands that change it: the store itself rather
/// than the port, since it tells what went wrong. A CommandError when it cannot be opened.
std::shared_ptr<desktop::SqliteSettingsStore> openSharedSettings();

/// Ends the command for a problem, if there is one.
void failIf(const std::optional<std::string>& problem);

}  // namespace zyndle
