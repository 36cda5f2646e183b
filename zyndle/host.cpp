#include "zyndle/host.h"

#include <cstdio>
#include <cstdlib>

#include "Desktop/desktop_platform.h"
#include "Tonelake/platform/platform.h"
#include "zyndle/command_error.h"
#include "zyndle/output.h"
#include "zyndle/translation.h"

namespace zyndle {
namespace {

// Not by way of an exception: the settings may be opened on any thread and in the middle of
// answering a request, where an exception would become the answer.
[[noreturn]] void endCommand(const std::string& problem) {
  std::fflush(stdout);
  reportProblem(problem);
  std::_Exit(static_cast<int>(ExitStatus::failure));
}

}  // namespace

void installHost(bool isForPrograms) {
  desktop::DesktopOptions options;
  if (isForPrograms) options.diagnostics = tonelake::DiagnosticStream::standardError;
  options.strings = strings();
  options.onSharedSettingsProblem = endCommand;
  tonelake::installPlatform(desktop::makeDesktopPlatform(options));
}

}  // namespace zyndle
