#include "TodayChordExtension/widgets/widget_provider.h"

#include "TodayChordExtension/widgets/chord_provider.h"
#include "TodayChordExtension/widgets/collections_provider.h"
#include "TodayChordExtension/widgets/launcher_provider.h"
#include "TodayChordExtension/widgets/recent_chords_provider.h"
#include "TodayChordExtension/widgets/today_chord_bundle.h"

namespace todaychord {
namespace {

// A provider of one kind of entries as a provider of any.
template <typename Provider, typename Entry>
class AnyProvider final : public WidgetProvider {
 public:
  explicit AnyProvider(const WidgetSources& sources) : provider_(sources) {}

  WidgetEntry placeholder() const override { return provider_.placeholder(); }

  void getTimeline(const std::function<void(Timeline<WidgetEntry>)>& completion) const override {
    provider_.getTimeline([&](Timeline<Entry> timeline) {
      completion({{timeline.entries.begin(), timeline.entries.end()}, timeline.policy});
    });
  }

 private:
  Provider provider_;
};

template <typename Provider, typename Entry>
std::unique_ptr<const WidgetProvider> make(const WidgetSources& sources) {
  return std::make_unique<const AnyProvider<Provider, Entry>>(sources);
}

struct ProviderRow {
  std::string_view kind;
  std::unique_ptr<const WidgetProvider> (*make)(const WidgetSources& sources);
};

// clang-format off
constexpr ProviderRow rows[] = {
    {chordWidgetKind,        make<ChordProvider,        ChordEntry>},
    {launcherWidgetKind,     make<LauncherProvider,     LauncherEntry>},
    {recentChordsWidgetKind, make<RecentChordsProvider, RecentChordsEntry>},
    {collectionsWidgetKind,  make<CollectionsProvider,  CollectionsEntry>},
};
// clang-format on

}  // namespace

std::unique_ptr<const WidgetProvider> makeWidgetProvider(std::string_view kind,
                                                         const WidgetSources& sources) {
  for (const ProviderRow& row : rows) {
    if (row.kind == kind) return row.make(sources);
  }
  return nullptr;
}

}  // namespace todaychord
