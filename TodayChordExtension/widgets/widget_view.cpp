#include "TodayChordExtension/widgets/widget_view.h"

#include "TodayChordExtension/widgets/chord_widget_view.h"
#include "TodayChordExtension/widgets/collections_widget_view.h"
#include "TodayChordExtension/widgets/launcher_widget_view.h"
#include "TodayChordExtension/widgets/recent_chords_widget_view.h"

namespace todaychord {
namespace {

struct Drawing {
  WidgetFamily family;
  const ViewSettings& settings;

  Scene operator()(const ChordEntry& entry) const {
    return drawChordWidget(entry, family, settings);
  }
  Scene operator()(const LauncherEntry& entry) const { return drawLauncherWidget(entry, settings); }
  Scene operator()(const RecentChordsEntry& entry) const {
    return drawRecentChordsWidget(entry, settings);
  }
  Scene operator()(const CollectionsEntry& entry) const { return drawCollectionsWidget(entry); }
};

}  // namespace

Scene drawWidget(const WidgetEntry& entry, WidgetFamily family, const ViewSettings& settings) {
  return std::visit(Drawing{family, settings}, entry);
}

}  // namespace todaychord
