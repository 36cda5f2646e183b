#pragma once

#include <functional>
#include <memory>
#include <string>

#include "Tonelake/platform/calendar.h"

namespace zyndle {

/// What the methods need of the host beyond the installed platform. No member may be empty.
struct RpcContext {
  /// This machine's calendar: the one for a time zone that is left out.
  std::shared_ptr<const tonelake::Calendar> calendar;
  /// The calendar of an IANA zone such as "Europe/Berlin"; null for an unknown name.
  std::function<std::shared_ptr<const tonelake::Calendar>(const std::string& zone)> calendarOfZone;
};

}  // namespace zyndle
