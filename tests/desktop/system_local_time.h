#pragma once

#include <cstdlib>
#include <ctime>
#include <string>

namespace desktop {

/// The C library's own idea of local time: an independent judge of the calendar. One zone at a
/// time, since it is the process's.
class SystemLocalTime {
 public:
  explicit SystemLocalTime(const std::string& zone) {
    ::setenv("TZ", zone.c_str(), 1);
    ::tzset();
  }
  SystemLocalTime(const SystemLocalTime&) = delete;
  SystemLocalTime& operator=(const SystemLocalTime&) = delete;
  ~SystemLocalTime() {
    ::unsetenv("TZ");
    ::tzset();
  }

  std::tm at(std::time_t moment) const {
    std::tm local{};
    ::localtime_r(&moment, &local);
    return local;
  }
};

}  // namespace desktop
