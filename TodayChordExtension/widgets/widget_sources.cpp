#include "TodayChordExtension/widgets/widget_sources.h"

#include "Tonelake/platform/platform.h"

namespace todaychord {

WidgetSources WidgetSources::ofProcess() {
  const tonelake::Platform& platform = tonelake::processPlatform();
  return {platform.calendar, platform.sharedSettings, nullptr};
}

}  // namespace todaychord
