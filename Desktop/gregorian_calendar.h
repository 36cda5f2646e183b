#pragma once

#include <functional>
#include <memory>
#include <string>

#include "Desktop/zone/machine_zone.h"
#include "Tonelake/platform/calendar.h"
#include "Tonelake/platform/diagnostics.h"

namespace desktop {

/// Tells the present moment. Called on any thread.
using Clock = std::function<tonelake::Instant()>;

/// The system's clock.
tonelake::Instant systemClock();

/// The Gregorian calendar in the time zone with an IANA name, for example "Europe/Berlin";
/// nullptr for an unknown name. Costs the reading of one small file. Answers for the years
/// -32000 to 32000.
std::shared_ptr<const tonelake::Calendar> makeGregorianCalendar(const std::string& zoneName,
                                                                Clock clock = systemClock);

/// The same in the time zone of the machine, which is looked up when first needed. Never nullptr:
/// where the zone cannot be told, `diagnostics` then gets one line and the zone is UTC.
std::shared_ptr<const tonelake::Calendar> makeMachineCalendar(
    std::shared_ptr<tonelake::Diagnostics> diagnostics, Clock clock = systemClock,
    ZoneSources sources = zoneSourcesOfThisMachine());

}  // namespace desktop
