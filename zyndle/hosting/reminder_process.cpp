#include "zyndle/hosting/reminder_process.h"

#include <csignal>

#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include "zyndle/companion.h"

namespace zyndle {
namespace {

// What stops the host stops this as well, even when the host is killed; and the signals that the
// host takes in its own time are meant for everybody here.
[[noreturn]] void becomeDeliverer(const char* program) {
  ::prctl(PR_SET_PDEATHSIG, SIGTERM);
  sigset_t none;
  sigemptyset(&none);
  ::sigprocmask(SIG_SETMASK, &none, nullptr);
  ::execl(program, "zyndle", "reminders", "deliver", "--wait", static_cast<char*>(nullptr));
  constexpr int notStarted = 127;
  ::_exit(notStarted);
}

}  // namespace

ReminderProcess::~ReminderProcess() {
  if (process_ == 0) return;
  ::kill(process_, SIGTERM);
  ::waitpid(process_, nullptr, 0);
}

void ReminderProcess::keepRunning() {
  if (process_ != 0 && ::waitpid(process_, nullptr, WNOHANG) == 0) return;
  process_ = 0;
  const auto program = findCompanion("zyndle-reminders");
  if (!program) return;
  const pid_t child = ::fork();
  if (child == 0) becomeDeliverer(program->c_str());
  if (child > 0) process_ = child;
}

}  // namespace zyndle
