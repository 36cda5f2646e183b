#include "zyndle/reminder_units.h"

#include "Tonelake/foundation/text.h"

namespace zyndle {
namespace {

using tonelake::replaceAll;

// A word of a unit file, where backslashes escape and % begins a specifier.
std::string unitWord(const std::string& text) {
  std::string word = replaceAll(text, "\\", "\\\\");
  word = replaceAll(word, "\"", "\\\"");
  return '"' + replaceAll(word, "%", "%%") + '"';
}

// A word for the shell that cron starts; cron itself takes a bare % for a line break.
std::string cronWord(const std::string& text) {
  return '\'' + replaceAll(replaceAll(text, "'", "'\\''"), "%", "\\%") + '\'';
}

}  // namespace

std::string serviceUnit(const DeliveryCommand& command) {
  std::string unit =
      "[Unit]\n"
      "Description=Reminders of the chord of the day\n"
      "\n"
      "[Service]\n"
      "Type=oneshot\n";
  if (command.dataHome) {
    unit += "Environment=" + unitWord("XDG_DATA_HOME=" + *command.dataHome) + '\n';
  }
  unit += "ExecStart=" + unitWord(command.program) + " reminders deliver\n";
  // Where no notification service is up yet, after logging in for example.
  unit += "Restart=on-failure\nRestartSec=60\n";
  return unit;
}

std::string timerUnit() {
  return "[Unit]\n"
         "Description=Moments for reminders of the chord of the day\n"
         "\n"
         "[Timer]\n"
         "OnCalendar=*-*-* 08:00..16:00\n"
         "OnCalendar=hourly\n"
         "OnStartupSec=1min\n"
         "AccuracySec=1s\n"
         "Persistent=true\n"
         "\n"
         "[Install]\n"
         "WantedBy=timers.target\n";
}

std::string cronLine(const DeliveryCommand& command, const std::string& bus) {
  std::string line = "* * * * * DBUS_SESSION_BUS_ADDRESS=" + cronWord(bus);
  if (command.dataHome) line += " XDG_DATA_HOME=" + cronWord(*command.dataHome);
  return line + ' ' + cronWord(command.program) + " reminders deliver 2>&1 | logger -t zyndle";
}

}  // namespace zyndle
