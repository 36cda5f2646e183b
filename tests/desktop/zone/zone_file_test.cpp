#include "Desktop/zone/zone_file.h"

#include <random>

#include <gtest/gtest.h>

#include "Desktop/files.h"

namespace desktop {
namespace {

// Cut short anywhere, it is refused; with any bytes in it, it is refused or of some sense.
TEST(ZoneFile, SurvivesDamage) {
  const std::string bytes = readFile("/usr/share/zoneinfo/Europe/Berlin", 1 << 20).value();
  ASSERT_TRUE(decodeZoneFile(bytes).has_value());
  for (std::size_t length = 0; length < bytes.size(); ++length) {
    EXPECT_FALSE(decodeZoneFile(bytes.substr(0, length)).has_value()) << length;
  }
  std::string huge = bytes;
  huge.replace(32, 4, "\xff\xff\xff\xff");  // the number of changes
  EXPECT_FALSE(decodeZoneFile(huge).has_value());

  std::mt19937 random(7);
  std::uniform_int_distribution<std::size_t> position(0, bytes.size() - 1);
  std::uniform_int_distribution<int> byte(0, 255);
  for (int i = 0; i < 20000; ++i) {
    std::string damaged = bytes;
    for (int j = 0; j < 3; ++j) damaged[position(random)] = static_cast<char>(byte(random));
    if (const auto zone = decodeZoneFile(damaged)) {
      const OffsetPeriod period = zone->periodAt(date::sys_days(date::year(2024) / 7 / 1));
      EXPECT_LT(period.begin, period.end) << i;
    }
  }
}

}  // namespace
}  // namespace desktop
