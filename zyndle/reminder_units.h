#pragma once

#include <optional>
#include <string>

namespace zyndle {

/// What a periodic delivery runs: the program, and the data home where it is not the usual one.
struct DeliveryCommand {
  std::string program;  ///< absolute path of the program that has `reminders deliver`
  std::optional<std::string> dataHome;
};

inline constexpr const char* serviceUnitName = "zyndle-reminders.service";
inline constexpr const char* timerUnitName = "zyndle-reminders.timer";

/// The texts of a systemd user service that delivers what is due, and of the timer that starts it:
/// each minute from 08:00 to 08:16, when reminders are due, and each hour for those that were
/// missed.
std::string serviceUnit(const DeliveryCommand& command);
std::string timerUnit();

/// The line of a crontab that does the same, each minute of the day. `bus` is the address of the
/// user's D-Bus, which cron knows nothing about.
std::string cronLine(const DeliveryCommand& command, const std::string& bus);

}  // namespace zyndle
