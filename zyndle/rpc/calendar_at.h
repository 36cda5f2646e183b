#pragma once

#include <memory>

#include "Tonelake/platform/calendar.h"

namespace zyndle {

/// `calendar` with its clock stopped at `now`.
std::shared_ptr<const tonelake::Calendar> calendarAt(
    tonelake::Instant now, std::shared_ptr<const tonelake::Calendar> calendar);

}  // namespace zyndle
