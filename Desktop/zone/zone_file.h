#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "Desktop/zone/zone.h"

namespace desktop {

/// The zone that a compiled zone file describes (TZif of version 2 or later, without leap
/// seconds). Nothing when `bytes` are anything else or damaged.
std::optional<Zone> decodeZoneFile(std::string_view bytes);

/// The zone of a name such as "Europe/Berlin" in the folder of zone files. Nothing for a name
/// without a readable file there, and for one that would lead out of the folder.
std::optional<Zone> readZone(const std::string& folder, std::string_view name);

}  // namespace desktop
