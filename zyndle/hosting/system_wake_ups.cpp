#include "zyndle/hosting/system_wake_ups.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
#include <cstring>
#include <filesystem>
#include <string_view>
#include <system_error>

#include <poll.h>
#include <sys/inotify.h>
#include <sys/signalfd.h>
#include <unistd.h>

#include "zyndle/translation.h"

namespace zyndle {
namespace {

constexpr std::uint32_t anyChange = IN_MODIFY | IN_CREATE | IN_DELETE | IN_MOVED_TO;

int watchSignals() {
  sigset_t signals;
  ::sigemptyset(&signals);
  for (const int number : {SIGTERM, SIGINT, SIGHUP}) ::sigaddset(&signals, number);
  ::sigprocmask(SIG_BLOCK, &signals, nullptr);
  return ::signalfd(-1, &signals, SFD_CLOEXEC);
}

}  // namespace

SystemWakeUps::SystemWakeUps(const std::string& settingsFile)
    : fileName_(std::filesystem::path(settingsFile).filename()), signals_(watchSignals()) {
  // The folder and not the file: the database keeps its newest changes in files beside it.
  const std::string folder = std::filesystem::path(settingsFile).parent_path();
  changes_ = ::inotify_init1(IN_CLOEXEC | IN_NONBLOCK);
  if (changes_ < 0 || ::inotify_add_watch(changes_, folder.c_str(), anyChange) < 0) {
    const std::string reason = std::generic_category().message(errno);
    problem_ = translated("cannot watch {0}: {1}", '"' + folder + '"', reason);
  }
}

SystemWakeUps::~SystemWakeUps() {
  for (const int descriptor : {signals_, changes_}) {
    if (descriptor >= 0) ::close(descriptor);
  }
}

std::optional<WakeUp> SystemWakeUps::wait(std::chrono::milliseconds longest) {
  using std::chrono::milliseconds;
  const auto deadline = std::chrono::steady_clock::now() + longest;
  for (;;) {
    const auto left = std::chrono::ceil<milliseconds>(deadline - std::chrono::steady_clock::now());
    std::array<pollfd, 2> sources{{{signals_, POLLIN, 0}, {changes_, POLLIN, 0}}};
    ::poll(sources.data(), sources.size(),
           static_cast<int>(std::max(left, milliseconds(0)).count()));
    if (sources[0].revents != 0) return std::nullopt;
    if (sources[1].revents != 0 && takeChanges()) return WakeUp::settings;
    if (left.count() <= 0) return WakeUp::time;
  }
}

// Empties the queue; whether anything in it was about the settings. An overflow counts, too.
bool SystemWakeUps::takeChanges() const {
  alignas(inotify_event) std::array<char, 4096> buffer{};
  bool isOurs = false;
  ssize_t length = 0;
  while ((length = ::read(changes_, buffer.data(), buffer.size())) > 0) {
    for (ssize_t at = 0; at < length;) {
      inotify_event event{};
      std::memcpy(&event, buffer.data() + at, sizeof event);
      const char* const name = buffer.data() + at + sizeof event;
      isOurs = isOurs || event.len == 0 || std::string_view(name).starts_with(fileName_);
      at += static_cast<ssize_t>(sizeof event + event.len);
    }
  }
  return isOurs;
}

}  // namespace zyndle
