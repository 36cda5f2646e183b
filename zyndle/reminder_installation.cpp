#include "zyndle/reminder_installation.h"

#include <filesystem>
#include <optional>
#include <string>

#include <unistd.h>

#include "Desktop/environment.h"
#include "Desktop/settings_files.h"
#include "zyndle/child_process.h"
#include "zyndle/command_error.h"
#include "zyndle/companion.h"
#include "zyndle/output.h"
#include "zyndle/reminder_units.h"
#include "zyndle/translation.h"

namespace zyndle {
namespace {

namespace filesystem = std::filesystem;

std::optional<std::string> absoluteVariable(const char* name) {
  auto value = desktop::environmentVariable(name);
  if (value && !value->starts_with('/')) value.reset();
  return value;
}

filesystem::path unitFolder() {
  if (const auto config = absoluteVariable("XDG_CONFIG_HOME")) return *config + "/systemd/user";
  if (const auto home = absoluteVariable("HOME")) return *home + "/.config/systemd/user";
  fail(translated("neither {0} nor {1} says where the timer belongs", "XDG_CONFIG_HOME", "HOME"));
}

DeliveryCommand deliveryCommand() {
  return {ownProgram().string(), absoluteVariable("XDG_DATA_HOME")};
}

std::string busAddress() {
  const auto address = desktop::environmentVariable("DBUS_SESSION_BUS_ADDRESS");
  if (address && !address->empty()) return *address;
  return "unix:path=/run/user/" + std::to_string(::getuid()) + "/bus";
}

bool controlSystemd(std::vector<std::string> arguments) {
  arguments.insert(arguments.begin(), {"systemctl", "--user"});
  return runQuietly(arguments);
}

// Whether a file was there.
bool removeUnit(const filesystem::path& file) {
  std::error_code error;
  const bool wasThere = filesystem::remove(file, error);
  if (error) fail(translated("cannot delete {0}: {1}", file.string(), error.message()));
  return wasThere;
}

// A unit that systemd does not understand would be passed over without a word. Its check needs the
// folder of a session, without which there is no timer to start either.
void checkUnits(const filesystem::path& service, const filesystem::path& timer) {
  if (!desktop::findProgram("systemd-analyze") || !absoluteVariable("XDG_RUNTIME_DIR")) return;
  if (runQuietly({"systemd-analyze", "--user", "verify", service.string(), timer.string()})) return;
  fail(translated("systemd does not take the timer; {} says why",
                  "systemd-analyze --user verify " + timer.string()));
}

}  // namespace

void installReminders() {
  const filesystem::path folder = unitFolder();
  const DeliveryCommand command = deliveryCommand();
  std::error_code error;
  filesystem::create_directories(folder, error);
  if (error) fail(translated("cannot make the folder {0}: {1}", folder.string(), error.message()));
  const filesystem::path service = folder / serviceUnitName;
  const filesystem::path timer = folder / timerUnitName;
  writeFile(service.string(), serviceUnit(command));
  writeFile(timer.string(), timerUnit());
  checkUnits(service, timer);
  std::string text = service.string() + '\n' + timer.string() + '\n';
  const bool isRunning =
      controlSystemd({"daemon-reload"}) && controlSystemd({"enable", "--now", timerUnitName});
  text += isRunning ? translated("The timer is running.")
                    : translated("The timer is not running: no systemd answers to this user here.");
  text += '\n' + translated("Without systemd, add this line by {} instead:", "crontab -e") + '\n';
  writeStandardOutput(text + cronLine(command, busAddress()) + '\n');
}

void uninstallReminders() {
  const filesystem::path folder = unitFolder();
  controlSystemd({"disable", "--now", timerUnitName});
  const bool hadTimer = removeUnit(folder / timerUnitName);
  const bool hadService = removeUnit(folder / serviceUnitName);
  controlSystemd({"daemon-reload"});
  writeStandardOutput((hadTimer || hadService ? translated("The timer is removed.")
                                              : translated("There was no timer to remove.")) +
                      '\n');
}

}  // namespace zyndle
