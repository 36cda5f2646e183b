#include "zyndle/chord_command.h"
#include "zyndle/collections_command.h"
#include "zyndle/command_line.h"
#include "zyndle/connect_command.h"
#include "zyndle/hosting/gallery_command.h"
#include "zyndle/hosting/host_command.h"
#include "zyndle/recent_command.h"
#include "zyndle/rpc_command.h"
#include "zyndle/settings_command.h"
#include "zyndle/status_command.h"
#include "zyndle/today_command.h"
#include "zyndle/voicings_command.h"
#include "zyndle/widget_command.h"

namespace {

// In the order in which zyndle --help lists them.
void addCommands(CLI::App& app, zyndle::Action& action, zyndle::Arguments arguments) {
  zyndle::addTodayCommand(app, action);
  zyndle::addChordCommand(app, action);
  zyndle::addVoicingsCommand(app, action);
  zyndle::addConnectCommand(app, action);
  zyndle::addWidgetCommand(app, action, arguments);
  zyndle::addStatusCommand(app, action);
  zyndle::addCompanionCommand(app, action, arguments, zyndle::galleryCompanion);
  zyndle::addCompanionCommand(app, action, arguments, zyndle::hostCompanion);
  zyndle::addRecentCommand(app, action);
  zyndle::addCollectionsCommand(app, action);
  zyndle::addSettingsCommand(app, action);
  zyndle::addRpcCommand(app, action);
}

}  // namespace

int main(int argc, char** argv) {
  return zyndle::runProgram(argc, argv, addCommands);
}
