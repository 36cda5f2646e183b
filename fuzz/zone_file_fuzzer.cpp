#include "Desktop/files.h"
#include "Desktop/zone/yearly_rule.h"
#include "Desktop/zone/zone_file.h"
#include "fuzz/fuzzer.h"

// Compiled zone files and the rules at their end: whatever is read, every moment lies in the
// stretch of time that it is said to lie in, and stretches follow upon each other.

namespace fuzz {
namespace {

using date::sys_days;
using date::sys_seconds;

template <typename Zone>
void requireStretches(const Zone& zone) {
  const sys_seconds end = sys_days(date::year(32000) / 1 / 1);  // of what a calendar asks for
  for (const int year : {-30000, 1, 1900, 1945, 2011, 2024, 2036, 2100, 30000}) {
    sys_seconds moment = sys_days(date::year(year) / 7 / 1);
    for (int steps = 0; steps < 4 && moment < end; ++steps) {
      const desktop::OffsetPeriod period = zone.periodAt(moment);
      require(period.begin <= moment && moment < period.end, "a moment lies in its stretch");
      require(period.offset > -std::chrono::hours(27) && period.offset < std::chrono::hours(27),
              "no clock is more than a day off");
      moment = period.end;
    }
  }
}

}  // namespace

void examine(std::string_view input) {
  if (const auto zone = desktop::decodeZoneFile(input)) requireStretches(*zone);
  if (const auto rule = desktop::YearlyRule::parse(input)) requireStretches(*rule);
}

std::vector<std::string> seeds() {
  std::vector<std::string> seeds{"<+0545>-5:45", "CET-1CEST,M3.5.0,M10.5.0/3",
                                 "<-02>2<-01>,M3.5.0/-1,M10.5.0/0", "AAA3BBB,J60/0,J300/1:30",
                                 "AAA3BBB,59/0,300/23:59:59"};
  for (const char* name : {"UTC", "Europe/Dublin", "Pacific/Apia", "Africa/Casablanca"}) {
    const auto bytes = desktop::readFile(std::string("/usr/share/zoneinfo/") + name, 1 << 20);
    if (bytes) seeds.push_back(*bytes);
  }
  return seeds;
}

}  // namespace fuzz
