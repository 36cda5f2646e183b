#include "zyndle/hosting/gallery_command.h"

#include <memory>

#include <CLI/CLI.hpp>

#include "TodayChordExtension/widgets/shared_settings.h"
#include "Tonelake/platform/platform.h"
#include "zyndle/host.h"
#include "zyndle/hosting/folder_options.h"
#include "zyndle/translation.h"

namespace zyndle {
namespace {

constexpr const char* examples =
    message(R"(DIR gets each widget in each family as a picture and index.html, which shows
them as a home screen does. There a pointer plucks strings, and a tap follows
the link of a card.

Examples:
  zyndle gallery widgets && xdg-open widgets/index.html
  zyndle gallery widgets --scale 3       as PNG too, three pixels a point)");

void showGallery(const FolderOptions& options) {
  const GalleryOptions gallery = readFolderOptions(options);
  installHost(true);
  const auto sources = todaychord::WidgetSources::ofProcess();
  WidgetTimelines timelines(sources);
  timelines.refresh(WakeUp::start, sources.calendar->now());
  prepareGallery(gallery);
  writeGallery(gallery, drawGallery(timelines.shown(),
                                    {todaychord::SharedSettings(sources.settings).isLeftHanded()}));
}

}  // namespace

void addGalleryCommand(CLI::App& app, Action& action) {
  const auto options = std::make_shared<FolderOptions>();
  CLI::App& command =
      *app.add_subcommand(galleryCompanion.name, translated(galleryCompanion.description));
  command.footer(translated(examples));
  addFolderOptions(command, *options);
  command.callback([options, &action] { action = [options] { showGallery(*options); }; });
}

}  // namespace zyndle
