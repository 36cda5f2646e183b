#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "Desktop/sqlite_settings_store.h"
#include "Tonelake/platform/diagnostics.h"
#include "Tonelake/platform/settings_store.h"

namespace desktop {

/// The files in which a user's settings are kept.
struct SettingsFiles {
  std::string shared;    ///< what the app and its widgets share
  std::string standard;  ///< generated positions
};

/// The folder of the user's data, as the environment gives it.
struct DataHome {
  std::optional<std::string> variable;  ///< XDG_DATA_HOME; counts if it is an absolute path
  std::optional<std::string> home;      ///< HOME; ".local/share" in it is used otherwise
};
DataHome dataHomeOfThisUser();

/// "/home/ada/.local/share/zyndle/shared.sqlite" and its neighbour. Without any data home the
/// files have no folder, and opening them says so.
SettingsFiles settingsFiles(const DataHome& home = dataHomeOfThisUser());

/// Opens a settings file after making the folders on its way, for this user only.
SqliteSettingsStore::Opening openSettingsFile(const std::string& file,
                                              std::shared_ptr<tonelake::Diagnostics> diagnostics);

/// The store of generated positions. It is opened on first use; where it cannot be, the
/// diagnostics get one line and positions are kept in memory only.
std::shared_ptr<tonelake::SettingsStore> makeStandardSettings(
    const std::string& file, const std::shared_ptr<tonelake::Diagnostics>& diagnostics);

/// The store that app and widgets share. It is opened on first use; where it cannot be,
/// `onProblem` gets one line that names the file. There is nothing to fall back on, so that
/// `onProblem` is expected not to return: should it, the store lives in memory.
std::shared_ptr<tonelake::SettingsStore> makeSharedSettings(
    const std::string& file, const std::shared_ptr<tonelake::Diagnostics>& diagnostics,
    const std::function<void(const std::string& problem)>& onProblem);

}  // namespace desktop
