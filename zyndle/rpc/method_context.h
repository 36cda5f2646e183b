#pragma once

#include <map>
#include <memory>
#include <string>

#include "Tonelake/fingering/chord_engine.h"
#include "Tonelake/foundation/json.h"
#include "Tonelake/platform/calendar.h"
#include "Tonelake/today/today_chord_library.h"
#include "zyndle/rpc/rpc_context.h"

namespace zyndle {

/// What methods share and keep from call to call, so that a call costs what its operation costs.
/// For one thread.
class MethodContext {
 public:
  explicit MethodContext(RpcContext host);

  const tonelake::ChordEngine& engine() const { return engine_; }

  /// Made when it is first asked for.
  std::shared_ptr<const tonelake::TodayChordLibrary> todayChordLibrary();

  /// The calendar of the optional parameter "timeZone". Throws json::DecodingError for an unknown
  /// zone.
  std::shared_ptr<const tonelake::Calendar> calendar(const tonelake::json::Node& parameters);

 private:
  RpcContext host_;
  tonelake::ChordEngine engine_;
  std::shared_ptr<const tonelake::TodayChordLibrary> todayChordLibrary_;
  std::map<std::string, std::shared_ptr<const tonelake::Calendar>> calendars_;
};

}  // namespace zyndle
