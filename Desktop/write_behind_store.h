#pragma once

#include <memory>

#include "Desktop/sqlite_settings_store.h"

namespace desktop {

/// A store in front of `store` that keeps data later, on a thread of its own and many pieces in
/// one transaction: for results that take less time to work out than a disk takes to keep them.
/// What is set can be read at once. Everything is kept when the store is destroyed; a process that
/// is killed before loses what was not kept yet. Texts and truth values do not wait.
std::shared_ptr<tonelake::SettingsStore> makeWriteBehindStore(
    std::shared_ptr<SqliteSettingsStore> store);

}  // namespace desktop
