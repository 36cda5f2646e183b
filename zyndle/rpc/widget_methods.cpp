#include <string>

#include "TodayChordExtension/widgets/shared_settings.h"
#include "TodayChordExtension/widgets/today_chord_bundle.h"
#include "TodayChordExtension/widgets/widget_links.h"
#include "TodayChordExtension/widgets/widget_provider.h"
#include "Tonelake/foundation/text.h"
#include "Tonelake/platform/platform.h"
#include "zyndle/rpc/calendar_at.h"
#include "zyndle/rpc/encoding.h"
#include "zyndle/rpc/method_table.h"
#include "zyndle/rpc/parameters.h"
#include "zyndle/rpc/widget_encoding.h"

namespace zyndle {
namespace {

namespace TodayChordBundle = todaychord::TodayChordBundle;
using tonelake::SettingsStore;

json::Value widgets(const json::Node&, MethodContext&) {
  return encodeList(TodayChordBundle::widgets(), [](const todaychord::WidgetDescription& widget) {
    return json::Value{
        {"kind", widget.kind},
        {"displayName", widget.displayName},
        {"description", widget.description},
        {"families", encodeList(widget.families, [](auto family) { return family.rawValue(); })}};
  });
}

const std::string& kindParameter(const json::Node& parameters) {
  const json::Node kind = parameters.member("kind");
  if (TodayChordBundle::findWidget(kind.text()) == nullptr) {
    std::vector<std::string> kinds;
    for (const auto& widget : TodayChordBundle::widgets()) kinds.emplace_back(widget.kind);
    kind.fail("there is no widget " + tonelake::quoted(kind.text()) + "; there are " +
              tonelake::join(kinds, ", "));
  }
  return kind.text();
}

// Data comes as text here, since JSON has no bytes.
void addSetting(SettingsStore& store, const std::string& key, const json::Node& value) {
  if (value.value().is_boolean()) {
    store.setBoolean(key, value.boolean());
  } else if (!value.value().is_string()) {
    value.fail("expected a text, true or false");
  } else if (key == todaychord::recentlyViewedChordsKey || key == todaychord::chordCollectionsKey) {
    store.setData(key, value.text());
  } else {
    store.setText(key, value.text());
  }
}

// The optional parameter "settings": a whole store by key; this machine's when left out.
std::shared_ptr<const SettingsStore> settingsParameter(const json::Node& parameters) {
  const auto settings = parameters.optionalMember("settings");
  if (!settings) return tonelake::processPlatform().sharedSettings;
  if (!settings->value().is_object()) settings->fail("expected an object");
  auto store = tonelake::makeMemorySettingsStore();
  for (const auto& [key, value] : settings->value().items()) {
    addSetting(*store, key, json::Node(value, settings->path() + "." + key));
  }
  return store;
}

json::Value getTimeline(const json::Node& parameters, MethodContext& context) {
  const std::string& kind = kindParameter(parameters);
  std::shared_ptr<const tonelake::Calendar> calendar = context.calendar(parameters);
  if (const auto now = parameters.optionalMember("now")) {
    calendar = calendarAt(decodeInstant(*now), calendar);
  }
  const auto provider = todaychord::makeWidgetProvider(
      kind, {calendar, settingsParameter(parameters), context.todayChordLibrary()});
  json::Value result;
  provider->getTimeline([&](const auto& timeline) { result = encodeTimeline(timeline); });
  return result;
}

json::Value chordLink(const json::Node& parameters, MethodContext&) {
  return todaychord::chordLink(chordParameter(parameters));
}

json::Value collectionLink(const json::Node& parameters, MethodContext&) {
  return todaychord::collectionLink(parameters.member("title").text());
}

json::Value namedDestination(const json::Node& parameters, MethodContext&) {
  return todaychord::namedDestination(parameters.member("name").text());
}

constexpr MethodRow rows[] = {
    {"widgets", widgets},
    {"getTimeline", getTimeline},
    {"chordLink", chordLink},
    {"collectionLink", collectionLink},
    {"namedDestination", namedDestination},
};

}  // namespace

std::span<const MethodRow> widgetMethods() noexcept {
  return rows;
}

}  // namespace zyndle
