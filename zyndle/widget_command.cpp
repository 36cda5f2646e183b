#include "zyndle/widget_command.h"

#include <algorithm>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include <CLI/CLI.hpp>

#include "Desktop/svg_renderer.h"
#include "TodayChordExtension/diagram/scene_json.h"
#include "TodayChordExtension/widgets/shared_settings.h"
#include "TodayChordExtension/widgets/today_chord_bundle.h"
#include "TodayChordExtension/widgets/widget_provider.h"
#include "TodayChordExtension/widgets/widget_view.h"
#include "Tonelake/foundation/text.h"
#include "Tonelake/platform/platform.h"
#include "zyndle/command_error.h"
#include "zyndle/host.h"
#include "zyndle/output.h"
#include "zyndle/translation.h"

namespace zyndle {
namespace {

using todaychord::Scene;
using todaychord::WidgetDescription;
using todaychord::WidgetFamily;

constexpr const char* description = message("Draw a widget as it is now");

constexpr const char* examples =
    message(R"(Widgets: chord, launcher, recent, collections, or their kinds as hosts know
them: ZyndleChordWidget and so on.

Families of the chord of the day: small, medium, large, extraLarge,
accessoryCircular, accessoryRectangular, accessoryInline. The others have one:
extraLargePortrait.

Examples:
  zyndle widget chord > today.svg       today's chord, small
  zyndle widget chord --family medium -o today.svg
  zyndle widget recent -o recent.svg    what you have looked at last
  zyndle widget launcher --format json  the shapes, texts and links themselves)");

struct WidgetOptions {
  std::string kind;
  std::optional<std::string> family;
  std::string format = "svg";
  std::string file = "-";
};

struct ShortName {
  const char* name;
  std::string_view kind;
};

constexpr ShortName shortNames[] = {
    {"chord", todaychord::chordWidgetKind},
    {"launcher", todaychord::launcherWidgetKind},
    {"recent", todaychord::recentChordsWidgetKind},
    {"collections", todaychord::collectionsWidgetKind},
};

// A way to write a scene down.
struct Format {
  const char* name;
  std::string (*write)(const Scene& scene);
};

std::string writeSvg(const Scene& scene) {
  return desktop::renderSvg(scene);
}

std::string writeJson(const Scene& scene) {
  return tonelake::json::write(todaychord::encodeScene(scene)) + '\n';
}

constexpr Format formats[] = {
    {"svg", writeSvg},
    {"json", writeJson},
};

template <typename Named>
std::string listNames(const Named& all) {
  std::vector<std::string> names;
  for (const auto& each : all) names.emplace_back(each.name);
  return tonelake::join(names, ", ");
}

const WidgetDescription& readWidget(const std::string& name) {
  std::string_view kind = name;
  for (const ShortName& known : shortNames) {
    if (name == known.name) kind = known.kind;
  }
  const WidgetDescription* widget = todaychord::TodayChordBundle::findWidget(kind);
  if (widget == nullptr) {
    refuse(translated("there is no widget {0}; there are {1}", tonelake::quoted(name),
                      listNames(shortNames)));
  }
  return *widget;
}

// The chord of the day is drawn in every family, also in those that it does not offer to hosts.
std::vector<WidgetFamily> familiesOf(const WidgetDescription& widget) {
  const bool isChord = widget.kind == todaychord::chordWidgetKind;
  const auto families = isChord ? WidgetFamily::allCases() : widget.families;
  return {families.begin(), families.end()};
}

WidgetFamily readFamily(const WidgetOptions& options, const WidgetDescription& widget) {
  if (!options.family) return widget.families.front();
  const std::optional<WidgetFamily> family = WidgetFamily::fromRawValue(*options.family);
  const std::vector<WidgetFamily> families = familiesOf(widget);
  if (family && std::find(families.begin(), families.end(), *family) != families.end()) {
    return *family;
  }
  std::vector<std::string> names;
  for (const WidgetFamily each : families) names.emplace_back(each.rawValue());
  refuse(translated("{0} {1} is not one of {2}", "--family", tonelake::quoted(*options.family),
                    tonelake::join(names, ", ")));
}

const Format& readFormat(const std::string& name) {
  for (const Format& format : formats) {
    if (name == format.name) return format;
  }
  refuse(translated("{0} {1} is not one of {2}", "--format", tonelake::quoted(name),
                    listNames(formats)));
}

void showWidget(const WidgetOptions& options) {
  const WidgetDescription& widget = readWidget(options.kind);
  const WidgetFamily family = readFamily(options, widget);
  const Format& format = readFormat(options.format);
  if (options.file.empty())
    refuse(translated("{} needs the name of a file, or - for standard output", "-o"));
  installHost(true);
  const todaychord::ViewSettings settings{
      todaychord::SharedSettings(tonelake::processPlatform().sharedSettings).isLeftHanded()};
  todaychord::makeWidgetProvider(widget.kind)
      ->getSnapshot([&](const todaychord::WidgetEntry& entry) {
        writeFile(options.file, format.write(todaychord::drawWidget(entry, family, settings)));
      });
}

}  // namespace

void addWidgetCommand(CLI::App& app, Action& action) {
  const auto options = std::make_shared<WidgetOptions>();
  CLI::App& command = *app.add_subcommand("widget", translated(description));
  command.footer(translated(examples));
  command.add_option("KIND", options->kind, translated("Which widget"))->required()->type_name("");
  command
      .add_option("--family", options->family,
                  translated("Its size; else the first that it offers"))
      ->type_name("FAMILY");
  command.add_option("--format", options->format, translated("svg or json; else svg"))
      ->type_name("FORMAT");
  command.add_option("-o", options->file, translated("Write to a file, not to standard output"))
      ->type_name("FILE");
  command.callback([options, &action] { action = [options] { showWidget(*options); }; });
}

}  // namespace zyndle
