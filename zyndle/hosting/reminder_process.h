#pragma once

#include <sys/types.h>

namespace zyndle {

/// The program that delivers reminders as they fall due, running for as long as this lives. Apart,
/// so that a host need not load the libraries for notifications.
class ReminderProcess {
 public:
  ReminderProcess() = default;
  ReminderProcess(const ReminderProcess&) = delete;
  ReminderProcess& operator=(const ReminderProcess&) = delete;
  /// Ends the program, which loses nothing: reminders that are due wait in their store.
  ~ReminderProcess();

  /// Starts the program where it is not running, because it has ended meanwhile or never ran.
  /// Nothing happens where it is not installed.
  void keepRunning();

 private:
  pid_t process_ = 0;  // 0 while there is none
};

}  // namespace zyndle
