#include "Desktop/desktop_platform.h"

#include <csignal>
#include <cstdio>
#include <cstdlib>

#include <sys/resource.h>
#include <unistd.h>

#include "Desktop/gregorian_calendar.h"
#include "Desktop/settings_files.h"

namespace desktop {
namespace {

// Nice values run from -20 to 19, where Linux cuts off; 10 is what the command `nice` adds.
constexpr int addedNiceness = 10;

// On Linux a thread has a nice value of its own. It is added to, for a fixed value would hurry a
// process that was started with more. Where the system refuses, the thread stays as it is.
void lowerThreadPriority() {
  const auto thread = static_cast<id_t>(::gettid());
  ::setpriority(PRIO_PROCESS, thread, ::getpriority(PRIO_PROCESS, thread) + addedNiceness);
}

}  // namespace

void DesktopOptions::exitWithProblem(const std::string& problem) {
  std::fflush(stdout);
  std::fprintf(stderr, "%s\n", problem.c_str());
  // Without the clean-up of static objects: other threads may still be using them.
  std::_Exit(EXIT_FAILURE);
}

tonelake::Platform makeDesktopPlatform(const DesktopOptions& options) {
  // A limit on the size of files is to look like a full disk, not to end the process.
  std::signal(SIGXFSZ, SIG_IGN);

  tonelake::Platform platform;
  platform.diagnostics = tonelake::makeStreamDiagnostics(options.diagnostics);
  platform.calendar = makeMachineCalendar(platform.diagnostics);
  platform.application = {ZYNDLE_VERSION, options.build};
  platform.strings = options.strings;
  const SettingsFiles files = settingsFiles();
  platform.standardSettings = makeStandardSettings(files.standard, platform.diagnostics);
  platform.sharedSettings =
      makeSharedSettings(files.shared, platform.diagnostics, options.onSharedSettingsProblem);
  platform.lowerThreadPriority = lowerThreadPriority;
  return platform;
}

}  // namespace desktop
