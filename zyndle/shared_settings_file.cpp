#include "zyndle/shared_settings_file.h"

#include "Desktop/settings_files.h"
#include "Tonelake/platform/diagnostics.h"
#include "zyndle/command_error.h"

namespace zyndle {

std::shared_ptr<desktop::SqliteSettingsStore> openSharedSettings() {
  const desktop::SqliteSettingsStore::Opening opening =
      desktop::openSettingsFile(desktop::settingsFiles().shared,
                                makeStreamDiagnostics(tonelake::DiagnosticStream::standardError));
  if (!opening.store) fail(opening.problem);
  return opening.store;
}

void failIf(const std::optional<std::string>& problem) {
  if (problem) fail(*problem);
}

}  // namespace zyndle
