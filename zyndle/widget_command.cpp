#include "zyndle/widget_command.h"

#include <algorithm>
#include <filesystem>
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
#include "zyndle/command_options.h"
#include "zyndle/host.h"
#include "zyndle/output.h"
#include "zyndle/scale_option.h"
#include "zyndle/translation.h"
#include "zyndle/widget_names.h"

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
  zyndle widget chord --format png --scale 3 -o today.png
  zyndle widget launcher --format json  the shapes, texts and links themselves)");

struct WidgetOptions {
  std::string kind;
  std::optional<std::string> family;
  std::optional<std::string> format;
  std::optional<std::string> scale;
  std::string file = "-";
};

constexpr double standardScale = 2;  // as screens of today have it

std::string writeSvg(const Scene& scene, double /*scale*/) {
  return desktop::renderSvg(scene, {.idPrefix = "", .isPluckable = true});
}

std::string writeJson(const Scene& scene, double /*scale*/) {
  return tonelake::json::write(todaychord::encodeScene(scene)) + '\n';
}

// Those without a function are zyndle-picture's.
constexpr SceneFormat formats[] = {
    {"svg", writeSvg},
    {"png", nullptr},
    {"pdf", nullptr},
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
  for (const WidgetName& known : widgetNames) {
    if (name == known.name) kind = known.kind;
  }
  const WidgetDescription* widget = todaychord::TodayChordBundle::findWidget(kind);
  if (widget == nullptr) {
    refuse(translated("there is no widget {0}; there are {1}", tonelake::quoted(name),
                      listNames(widgetNames)));
  }
  return *widget;
}

WidgetFamily readFamily(const WidgetOptions& options, const WidgetDescription& widget) {
  if (!options.family) return widget.families.front();
  const std::optional<WidgetFamily> family = WidgetFamily::fromRawValue(*options.family);
  const std::vector<WidgetFamily> families = drawnFamilies(widget);
  if (family && std::find(families.begin(), families.end(), *family) != families.end()) {
    return *family;
  }
  std::vector<std::string> names;
  names.reserve(families.size());
  for (const WidgetFamily each : families) names.emplace_back(each.rawValue());
  refuse(translated("{0} {1} is not one of {2}", "--family", tonelake::quoted(*options.family),
                    tonelake::join(names, ", ")));
}

const SceneFormat* findFormat(std::string_view name, std::span<const SceneFormat> known) {
  const auto found = std::find_if(known.begin(), known.end(),
                                  [&](const SceneFormat& format) { return name == format.name; });
  return found == known.end() ? nullptr : &*found;
}

// As it is asked for; else what the file is named for: today.png is to be a PNG.
std::string formatName(const WidgetOptions& options) {
  if (options.format) return *options.format;
  const std::string ending = std::filesystem::path(options.file).extension();
  if (ending.size() <= 1) return "svg";
  const SceneFormat* format = findFormat(tonelake::inSmallLetters(ending.substr(1)), formats);
  if (format != nullptr) return format->name;
  // TRANSLATORS: {0} is an option, {1} the name of a file, {2} a list, {3} another option:
  // -o "today.jpg" ends in none of svg, png; say which with --format.
  refuse(translated("{0} {1} ends in none of {2}; say which with {3}", "-o",
                    tonelake::quoted(options.file), listNames(formats), "--format"));
}

// How the scene is written here; nullptr where another program has to do it.
const SceneFormat* readFormat(const std::string& name, std::span<const SceneFormat> more) {
  const SceneFormat* format = findFormat(name, formats);
  if (format == nullptr) {
    refuse(translated("{0} {1} is not one of {2}", "--format", tonelake::quoted(name),
                      listNames(formats)));
  }
  return format->write != nullptr ? format : findFormat(name, more);
}

void showWidget(const WidgetOptions& options, Arguments arguments,
                std::span<const SceneFormat> more) {
  const WidgetDescription& widget = readWidget(options.kind);
  const WidgetFamily family = readFamily(options, widget);
  if (options.file.empty()) {
    refuse(translated("{} needs the name of a file, or - for standard output", "-o"));
  }
  const std::string name = formatName(options);
  const SceneFormat* const format = readFormat(name, more);
  if (options.scale && name != "png") {
    refuse(translated("--scale is for --format png; other pictures have no pixels"));
  }
  const double scale = options.scale ? readScale(*options.scale) : standardScale;
  if (format == nullptr) becomeCompanion("zyndle-picture", arguments);
  installHost(true);
  const todaychord::ViewSettings settings{
      todaychord::SharedSettings(tonelake::processPlatform().sharedSettings).isLeftHanded()};
  todaychord::makeWidgetProvider(widget.kind)
      ->getSnapshot([&](const todaychord::WidgetEntry& entry) {
        const Scene scene = todaychord::drawWidget(entry, family, settings);
        writeFile(options.file, format->write(scene, scale));
      });
}

}  // namespace

void addWidgetCommand(CLI::App& app, Action& action, Arguments arguments,
                      std::span<const SceneFormat> more) {
  const auto options = std::make_shared<WidgetOptions>();
  CLI::App& command = *app.add_subcommand("widget", translated(description));
  command.footer(translated(examples));
  addArgument(command, "KIND", options->kind, message("Which widget"));
  addOption(command, "--family", options->family,
            message("Its size; else the first that it offers"), "FAMILY");
  addOption(command, "--format", options->format,
            message("svg, png, pdf or json; else by FILE, or svg"), "FORMAT");
  addOption(command, "--scale", options->scale, message("Pixels a point, for png; else 2"),
            "NUMBER");
  addOption(command, "-o,--output", options->file,
            message("Write to a file, not to standard output"), "FILE");
  command.callback([=, &action] { action = [=] { showWidget(*options, arguments, more); }; });
}

}  // namespace zyndle
