#include "zyndle/rpc/widget_encoding.h"

#include <string>

#include "TodayChordExtension/widgets/launcher_tools.h"
#include "TodayChordExtension/widgets/widget_links.h"
#include "Tonelake/chords/chord_json.h"
#include "zyndle/rpc/encoding.h"
#include "zyndle/rpc/instant_text.h"

namespace zyndle {
namespace {

using todaychord::Chord;
using todaychord::chordLink;
using todaychord::namedDestination;

json::Value encodeText(const std::string& text) {
  return text;
}

json::Value encodeItem(const todaychord::WidgetCollectionItem& item) {
  return {{"id", item.id},
          {"title", item.title},
          {"subtitle", item.subtitle},
          {"imageName", encodeOptional(item.imageName, encodeText)},
          {"systemImageName", encodeOptional(item.systemImageName, encodeText)},
          {"chords", encodeList(item.chords, tonelake::encodeChord)},
          {"isUserCollection", item.isUserCollection}};
}

json::Value encodeEntry(const todaychord::ChordEntry& entry) {
  return {{"date", formatInstant(entry.date)},
          {"chord", encodeOptional(entry.chord, tonelake::encodeChord)},
          {"links", {{"chord", chordLink(entry.chord)}}}};
}

json::Value encodeEntry(const todaychord::LauncherEntry& entry) {
  const json::Value tools = encodeList(
      todaychord::launcherTools,
      [](const todaychord::LauncherTool& tool) { return namedDestination(tool.destination); });
  return {{"date", formatInstant(entry.date)},
          {"chord", encodeOptional(entry.chord, tonelake::encodeChord)},
          {"category", entry.category.rawValue()},
          {"links", {{"chord", chordLink(entry.chord)}, {"tools", tools}}}};
}

json::Value encodeEntry(const todaychord::RecentChordsEntry& entry) {
  return {
      {"date", formatInstant(entry.date)},
      {"chords", encodeList(entry.chords, tonelake::encodeChord)},
      {"links",
       {{"chords", encodeList(entry.chords, [](const Chord& chord) { return chordLink(chord); })},
        {"search", namedDestination(todaychord::searchDestination)}}}};
}

json::Value encodeEntry(const todaychord::CollectionsEntry& entry) {
  const json::Value links = encodeList(
      entry.collections, [](const auto& item) { return todaychord::collectionLink(item.title); });
  return {{"date", formatInstant(entry.date)},
          {"collections", encodeList(entry.collections, encodeItem)},
          {"links",
           {{"collections", links},
            {"viewAll", namedDestination(todaychord::collectionsDestination)}}}};
}

json::Value encodePolicy(const todaychord::TimelineReloadPolicy& policy) {
  if (!policy.date()) return "never";
  return {{"after", formatInstant(*policy.date())}};
}

}  // namespace

json::Value encodeTimeline(const todaychord::Timeline<todaychord::WidgetEntry>& timeline) {
  const auto encodeAny = [](const todaychord::WidgetEntry& any) {
    return std::visit([](const auto& entry) { return encodeEntry(entry); }, any);
  };
  return {{"entries", encodeList(timeline.entries, encodeAny)},
          {"policy", encodePolicy(timeline.policy)}};
}

}  // namespace zyndle
