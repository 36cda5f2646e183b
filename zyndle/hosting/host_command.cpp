#include "zyndle/hosting/host_command.h"

#include <functional>
#include <memory>

#include <CLI/CLI.hpp>

#include "Desktop/settings_files.h"
#include "TodayChordExtension/widgets/shared_settings.h"
#include "Tonelake/platform/platform.h"
#include "zyndle/command_error.h"
#include "zyndle/host.h"
#include "zyndle/hosting/folder_options.h"
#include "zyndle/hosting/reminder_process.h"
#include "zyndle/hosting/system_wake_ups.h"
#include "zyndle/output.h"
#include "zyndle/translation.h"

namespace zyndle {
namespace {

constexpr const char* examples =
    message(R"(DIR gets what "zyndle gallery" writes, and is kept up to date: at midnight the
chord of the day changes, and a change of the settings shows at once. Files are
replaced in one step. The page loads itself again every minute, so that it can
hang on a wall. Reminders are delivered while it runs. Stop it with Ctrl-C, or
with SIGTERM.

Examples:
  zyndle host ~/widgets &
  zyndle host ~/widgets --scale 2        as PNG too, for a panel or a desktop)");

constexpr int secondsToReload = 60;

// Draws the widgets again when their timelines say so.
class GalleryKeeper {
 public:
  GalleryKeeper(GalleryOptions options, const todaychord::WidgetSources& sources)
      : options_(std::move(options)), settings_(sources.settings), timelines_(sources) {}

  std::optional<tonelake::Instant> operator()(WakeUp reason, tonelake::Instant now) {
    isStale_ = timelines_.refresh(reason, now) || isStale_;
    if (isStale_) write(reason);
    return timelines_.nextReload();
  }

 private:
  // What cannot be written at the start is the user's mistake; later the disk may only be full for
  // a while, and the next wake-up tries again.
  void write(WakeUp reason) {
    try {
      writeGallery(options_, drawGallery(timelines_.shown(), {settings_.isLeftHanded()}));
      isStale_ = false;
    } catch (const CommandError& error) {
      if (reason == WakeUp::start) throw;
      reportProblem(error.what());
    }
  }

  GalleryOptions options_;
  todaychord::SharedSettings settings_;
  WidgetTimelines timelines_;
  bool isStale_ = true;
};

void hostWidgets(const FolderOptions& options) {
  const GalleryOptions gallery = readFolderOptions(options, secondsToReload);
  installHost(true);
  const auto sources = todaychord::WidgetSources::ofProcess();
  // Opening the settings makes the folder that is then watched.
  todaychord::SharedSettings(sources.settings).isLeftHanded();
  SystemWakeUps wakeUps(desktop::settingsFiles().shared);
  reportProblem(wakeUps.problem());
  prepareGallery(gallery);
  GalleryKeeper keeper(gallery, sources);
  ReminderProcess reminders;
  // Whatever else a host does from time to time becomes a duty in this list.
  const std::vector<HostDuty> duties{
      std::ref(keeper),
      [&reminders](WakeUp, tonelake::Instant) {
        reminders.keepRunning();
        return std::optional<tonelake::Instant>();
      },
  };
  runHost(duties, *sources.calendar, wakeUps);
}

}  // namespace

void addHostCommand(CLI::App& app, Action& action) {
  const auto options = std::make_shared<FolderOptions>();
  CLI::App& command =
      *app.add_subcommand(hostCompanion.name, translated(hostCompanion.description));
  command.footer(translated(examples));
  addFolderOptions(command, *options);
  command.callback([options, &action] { action = [options] { hostWidgets(*options); }; });
}

}  // namespace zyndle
