#include "zyndle/hosting/widget_timelines.h"

#include <utility>

namespace zyndle {

using tonelake::Instant;

WidgetTimelines::WidgetTimelines(const todaychord::WidgetSources& sources) {
  for (const todaychord::WidgetDescription& widget : todaychord::TodayChordBundle::widgets()) {
    auto provider = todaychord::makeWidgetProvider(widget.kind, sources);
    todaychord::WidgetEntry placeholder = provider->placeholder();
    rows_.push_back({&widget, std::move(provider), std::move(placeholder), std::nullopt});
  }
}

bool WidgetTimelines::refresh(WakeUp reason, Instant now) {
  const bool isClockSetBack = now < lastLook_;
  lastLook_ = now;
  bool isAnyDue = false;
  for (Row& row : rows_) {
    const bool isOver = row.reload && now >= *row.reload;
    if (reason == WakeUp::time && !isClockSetBack && !isOver) continue;
    isAnyDue = true;
    row.provider->getTimeline([&](todaychord::Timeline<todaychord::WidgetEntry> timeline) {
      row.entry = std::move(timeline.entries.front());
      row.reload = timeline.policy.date();
    });
  }
  return isAnyDue;
}

std::optional<Instant> WidgetTimelines::nextReload() const {
  std::optional<Instant> next;
  for (const Row& row : rows_) {
    if (row.reload && (!next || *row.reload < *next)) next = row.reload;
  }
  return next;
}

std::vector<WidgetTimelines::Shown> WidgetTimelines::shown() const {
  std::vector<Shown> shown;
  shown.reserve(rows_.size());
  for (const Row& row : rows_) shown.push_back({row.widget, row.entry});
  return shown;
}

}  // namespace zyndle
