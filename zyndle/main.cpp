#include "Tonelake/platform/string_table.h"
#include "zyndle/chord_command.h"
#include "zyndle/collections_command.h"
#include "zyndle/command_line.h"
#include "zyndle/connect_command.h"
#include "zyndle/find_command.h"
#include "zyndle/hosting/gallery_command.h"
#include "zyndle/hosting/host_command.h"
#include "zyndle/packs_command.h"
#include "zyndle/progression_command.h"
#include "zyndle/progressions_command.h"
#include "zyndle/recent_command.h"
#include "zyndle/rpc_command.h"
#include "zyndle/settings_command.h"
#include "zyndle/status_command.h"
#include "zyndle/today_command.h"
#include "zyndle/voicings_command.h"
#include "zyndle/widget_command.h"

namespace {

using tonelake::message;

constexpr const char* jamProgram = "zyndle-jam";
constexpr zyndle::Companion jam{"jam", message("Play a row of chords as music"), jamProgram};
constexpr zyndle::Companion patterns{
    "patterns", message("Show ways to pick, bass lines and grooves"), jamProgram};
constexpr zyndle::Companion reminders{
    "reminders", message("Be reminded of the chord of the day every morning"), "zyndle-reminders"};

// In the order in which zyndle --help lists them.
void addCommands(CLI::App& app, zyndle::Action& action, zyndle::Arguments arguments) {
  zyndle::addTodayCommand(app, action);
  zyndle::addChordCommand(app, action);
  zyndle::addVoicingsCommand(app, action);
  zyndle::addConnectCommand(app, action);
  zyndle::addFindCommand(app, action);
  zyndle::addProgressionCommand(app, action);
  zyndle::addProgressionsCommand(app, action);
  zyndle::addPacksCommands(app, action);
  zyndle::addCompanionCommand(app, action, arguments, jam);
  zyndle::addCompanionCommand(app, action, arguments, patterns);
  zyndle::addWidgetCommand(app, action, arguments);
  zyndle::addStatusCommand(app, action);
  zyndle::addCompanionCommand(app, action, arguments, zyndle::galleryCompanion);
  zyndle::addCompanionCommand(app, action, arguments, zyndle::hostCompanion);
  zyndle::addRecentCommand(app, action);
  zyndle::addCollectionsCommand(app, action);
  zyndle::addCompanionCommand(app, action, arguments, reminders);
  zyndle::addSettingsCommand(app, action);
  zyndle::addRpcCommand(app, action);
}

}  // namespace

int main(int argc, char** argv) {
  return zyndle::runProgram(argc, argv, addCommands);
}
