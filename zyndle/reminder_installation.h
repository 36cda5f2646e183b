#pragma once

namespace zyndle {

/// `zyndle reminders install`: writes the user's systemd service and timer and starts the timer,
/// and tells the line for cron.
void installReminders();

/// `zyndle reminders uninstall`: stops the timer and deletes the two files.
void uninstallReminders();

}  // namespace zyndle
