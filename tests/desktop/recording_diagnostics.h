#pragma once

#include <mutex>
#include <string>
#include <string_view>
#include <vector>

#include "Tonelake/platform/diagnostics.h"

namespace desktop {

/// Keeps the lines for a test to look at.
class RecordingDiagnostics final : public tonelake::Diagnostics {
 public:
  void write(std::string_view line) override {
    const std::lock_guard lock(mutex_);
    lines_.emplace_back(line);
  }

  std::vector<std::string> lines() const {
    const std::lock_guard lock(mutex_);
    return lines_;
  }

 private:
  mutable std::mutex mutex_;
  std::vector<std::string> lines_;
};

}  // namespace desktop
