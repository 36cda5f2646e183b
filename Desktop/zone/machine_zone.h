#pragma once

#include <optional>
#include <string>

#include "Desktop/zone/zone.h"

namespace desktop {

/// Where a machine says which time zone it is in.
struct ZoneSources {
  std::optional<std::string> variable;  ///< TZ: "Europe/Berlin", ":Europe/Berlin", a path, a rule
                                        ///< such as "CET-1CEST,M3.5.0,M10.5.0/3", or ""
  std::string zoneFolder = "/usr/share/zoneinfo";
  std::string localTimeFile = "/etc/localtime";  ///< a link to, or a copy of, a zone file
  std::string zoneNameFile = "/etc/timezone";    ///< one line, for example "Europe/Berlin"
};

/// The sources as the environment sets them (TZ, TZDIR).
ZoneSources zoneSourcesOfThisMachine();

struct NamedZone {
  std::string name;  ///< for example "Europe/Berlin"; "localtime" for a file without a name
  Zone zone;
};

/// The zone called `name`; nothing when there is none. "UTC" is known even where no zone file is
/// installed.
std::optional<NamedZone> findZone(const std::string& zoneFolder, const std::string& name);

struct MachineZone {
  NamedZone zone;
  std::string warning;  ///< "" unless the machine's zone cannot be told and `zone` is UTC
};

/// TZ if it is set (set to nothing, it means UTC), else what the machine is set to.
MachineZone findMachineZone(const ZoneSources& sources);

}  // namespace desktop
