#pragma once

#include <functional>
#include <memory>
#include <string>

#include "Tonelake/platform/platform.h"

namespace desktop {

struct DesktopOptions {
  /// Standard error where standard output is an answer for another program.
  tonelake::DiagnosticStream diagnostics = tonelake::DiagnosticStream::standardOutput;

  /// The application's build, for example "212". Positions stored by another build are not used.
  std::string build = "0";

  /// The library's texts in the user's language; see Desktop/languages.h.
  std::shared_ptr<const tonelake::StringTable> strings = tonelake::makeEnglishStringTable();

  /// Called with one line that names the file when the shared settings cannot be opened; not
  /// expected to return. Prints the line on standard error and ends the process with status 1.
  std::function<void(const std::string& problem)> onSharedSettingsProblem = exitWithProblem;

  [[noreturn]] static void exitWithProblem(const std::string& problem);
};

/// A platform for a desktop: the Gregorian calendar in the machine's time zone, settings in the
/// user's data folder, threads that can give way. Costs next to nothing: zone and settings are
/// opened on first use. Call it on the main thread: it reads the environment, and it has the
/// process ignore SIGXFSZ.
tonelake::Platform makeDesktopPlatform(const DesktopOptions& options);

}  // namespace desktop
