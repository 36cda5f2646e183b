#include "zyndle/rpc/method_context.h"

#include <utility>

#include "Tonelake/platform/platform.h"

namespace zyndle {

MethodContext::MethodContext(RpcContext host) : host_(std::move(host)) {}

std::shared_ptr<const tonelake::TodayChordLibrary> MethodContext::todayChordLibrary() {
  if (todayChordLibrary_ == nullptr) {
    todayChordLibrary_ = std::make_shared<const tonelake::TodayChordLibrary>(
        *tonelake::processPlatform().resources, host_.calendar);
  }
  return todayChordLibrary_;
}

std::shared_ptr<const tonelake::Calendar> MethodContext::calendar(
    const tonelake::json::Node& parameters) {
  const auto zone = parameters.optionalMember("timeZone");
  if (!zone) return host_.calendar;
  const auto known = calendars_.find(zone->text());
  if (known != calendars_.end()) return known->second;
  // Only known zones are kept: there are some hundreds of them, but no end of unknown ones.
  auto calendar = host_.calendarOfZone(zone->text());
  if (calendar == nullptr) zone->fail("\"" + zone->text() + "\" is not a known time zone");
  return calendars_.emplace(zone->text(), std::move(calendar)).first->second;
}

}  // namespace zyndle
