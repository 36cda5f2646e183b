#include "TodayChordExtension/widgets/today_chord_bundle.h"

#include <algorithm>

namespace todaychord {
namespace {

constexpr WidgetFamily chordFamilies[] = {
    WidgetFamily::small, WidgetFamily::medium, WidgetFamily::accessoryCircular,
    WidgetFamily::accessoryRectangular, WidgetFamily::accessoryInline};
constexpr WidgetFamily portrait[] = {WidgetFamily::extraLargePortrait};

// Kind, display name, description, families. The apostrophe is the typographic one.
// clang-format off
constexpr WidgetDescription descriptions[] = {
    {chordWidgetKind,        "Chord of the Day",
     "See today’s featured chord from Zyndle.",                 chordFamilies},
    {launcherWidgetKind,     "Zyndle Launcher",
     "Open today’s chord and your essential guitar tools.",     portrait},
    {recentChordsWidgetKind, "Recently Viewed Chords",
     "Quickly return to recently viewed and essential chords.", portrait},
    {collectionsWidgetKind,  "Chord Collections",
     "Open your collections and curated chord packs.",          portrait},
};
// clang-format on

}  // namespace

namespace TodayChordBundle {

std::span<const WidgetDescription> widgets() noexcept {
  return descriptions;
}

const WidgetDescription* findWidget(std::string_view kind) noexcept {
  const auto* const found =
      std::find_if(std::begin(descriptions), std::end(descriptions),
                   [&](const WidgetDescription& widget) { return widget.kind == kind; });
  return found == std::end(descriptions) ? nullptr : found;
}

}  // namespace TodayChordBundle
}  // namespace todaychord
