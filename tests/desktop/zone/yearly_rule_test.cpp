#include "Desktop/zone/yearly_rule.h"

#include <random>

#include <gtest/gtest.h>

#include "tests/desktop/system_local_time.h"

namespace desktop {
namespace {

TEST(YearlyRule, AgreesWithTheSystemsClock) {
  std::mt19937 random(11);
  std::uniform_int_distribution<std::time_t> moment(0, 200LL * 366 * 24 * 3600);
  const char* const texts[] = {"<+0545>-5:45",
                               "CET-1CEST,M3.5.0,M10.5.0/3",
                               "AEST-10AEDT,M10.1.0,M4.1.0/3",
                               "IST-1GMT0,M10.5.0,M3.5.0/1",
                               "<-02>2<-01>,M3.5.0/-1,M10.5.0/0",
                               "EET-2EEST,M3.4.4/50,M10.4.4/50",
                               "<+1030>-10:30<+11>-11,M10.1.0,M4.1.0",
                               "AAA3BBB,J60/0,J300/1:30",
                               "AAA3BBB,59/0,300/23:59:59"};
  for (const char* text : texts) {
    const auto rule = YearlyRule::parse(text);
    ASSERT_TRUE(rule.has_value()) << text;
    const SystemLocalTime clock(text);
    for (int i = 0; i < 10000; ++i) {
      const std::time_t now = moment(random);
      const date::sys_seconds here{std::chrono::seconds(now)};
      const OffsetPeriod period = rule->periodAt(here);
      ASSERT_EQ(period.offset.count(), clock.at(now).tm_gmtoff) << text << " at " << now;
      ASSERT_TRUE(period.begin <= here && here < period.end) << text << " at " << now;
    }
  }
}

TEST(YearlyRule, RefusesWhatIsNone) {
  for (const char* text :
       {"", "C", "CET", "CET-", "CET25", "CET-1:60", "<CET-1", "CET-1CEST", "CET-1CEST,M3.5.0",
        "CET-1CEST,M3.5.0,", "CET-1CEST,M13.5.0,M10.5.0", "CET-1CEST,M3.6.0,M10.5.0",
        "CET-1CEST,M3.5.7,M10.5.0", "CET-1CEST,J0,J365", "CET-1CEST,0,366",
        "CET-1CEST,M3.5.0/168,M10.5.0", "CET-1CEST,M3.5.0,M10.5.0 ", " CET-1"}) {
    EXPECT_FALSE(YearlyRule::parse(text).has_value()) << text;
  }
}

}  // namespace
}  // namespace desktop
