#include "Tonelake/platform/platform.h"

#include <atomic>
#include <mutex>
#include <random>
#include <utility>

#include "Tonelake/foundation/fatal.h"

namespace tonelake {
namespace {

class SystemRandomSource final : public RandomSource {
 public:
  std::uint64_t next() override {
    const std::lock_guard lock(mutex_);
    return distribution_(device_);
  }

 private:
  std::mutex mutex_;
  std::random_device device_;
  std::uniform_int_distribution<std::uint64_t> distribution_;
};

class NoNotificationCenter final : public NotificationCenter {
 public:
  void add(const NotificationRequest&, Completion completion) override {
    completion("there is no notification service");
  }
};

// Set once, by whoever comes first: the host that installs a platform or the first use.
std::atomic<bool> isInUse = false;

Platform& slot() {
  static Platform platform;
  return platform;
}

}  // namespace

Platform::Platform()
    : standardSettings(makeMemorySettingsStore()),
      sharedSettings(makeMemorySettingsStore()),
      calendar(makeUtcCalendar()),
      resources(makeEmbeddedResourceBundle()),
      strings(makeEnglishStringTable()),
      random(std::make_shared<SystemRandomSource>()),
      notifications(std::make_shared<NoNotificationCenter>()),
      diagnostics(makeStreamDiagnostics(DiagnosticStream::standardOutput)),
      lowerThreadPriority([] {}) {}

void installPlatform(Platform platform) {
  if (isInUse.exchange(true)) {
    stopWithProgrammingError("the platform is installed once, before its first use");
  }
  slot() = std::move(platform);
}

const Platform& processPlatform() {
  isInUse.store(true, std::memory_order_relaxed);
  return slot();
}

}  // namespace tonelake
