#pragma once

#include <functional>
#include <memory>

#include "Tonelake/platform/settings_store.h"

namespace desktop {

/// A store that `open` makes when it is first asked for anything: a command that needs no settings
/// then costs no file. `open` is called once, on the thread that asks first, and never gives
/// nullptr.
std::shared_ptr<tonelake::SettingsStore> makeLazySettingsStore(
    std::function<std::shared_ptr<tonelake::SettingsStore>()> open);

}  // namespace desktop
