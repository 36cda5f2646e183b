#pragma once

#include <string>

#include "zyndle/hosting/host_loop.h"

namespace zyndle {

/// Sleeps on this machine. Wakes for a change of the settings file and its companions in the same
/// folder, and stops for SIGTERM, SIGINT and SIGHUP, which from its making on no longer end the
/// process. Make it before any thread is started: threads inherit which signals they leave alone.
/// Where the system watches no more files, changes are seen a minute late; `problem` then says so.
class SystemWakeUps final : public WakeUps {
 public:
  explicit SystemWakeUps(const std::string& settingsFile);
  SystemWakeUps(const SystemWakeUps&) = delete;
  SystemWakeUps& operator=(const SystemWakeUps&) = delete;
  ~SystemWakeUps() override;

  std::optional<WakeUp> wait(std::chrono::milliseconds longest) override;

  const std::string& problem() const noexcept { return problem_; }

 private:
  bool takeChanges() const;

  std::string fileName_;
  std::string problem_;
  int signals_ = -1;
  int changes_ = -1;
};

}  // namespace zyndle
