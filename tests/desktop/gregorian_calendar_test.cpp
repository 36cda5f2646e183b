#include "Desktop/gregorian_calendar.h"

#include <cstdint>
#include <fstream>
#include <limits>
#include <random>
#include <sstream>
#include <tuple>

#include <gtest/gtest.h>

#include "tests/desktop/system_local_time.h"
#include "tests/support/recording_diagnostics.h"

namespace desktop {
namespace {

using tonelake::testing::RecordingDiagnostics;

using std::chrono::microseconds;
using tonelake::Instant;
using tonelake::LocalTime;
using tonelake::YearMonth;

constexpr std::int64_t hour = 3600;
constexpr std::int64_t day = 24 * hour;

Instant at(std::int64_t unixTime) {
  return Instant(std::chrono::seconds(unixTime));
}

std::optional<std::int64_t> unixTime(std::optional<Instant> instant) {
  if (!instant) return std::nullopt;
  return std::chrono::floor<std::chrono::seconds>(*instant).time_since_epoch().count();
}

TEST(GregorianCalendar, FindsTheNextMidnight) {
  struct Row {
    const char* zone;
    const char* what;
    std::int64_t midnight;
    std::int64_t lengthOfDayBefore;  // in seconds: any moment in it leads to the midnight
  };
  const Row rows[] = {
      {"Europe/Berlin", "ordinary", 1735686000, 24 * hour},
      {"Europe/Berlin", "after 23 hours", 1711922400, 23 * hour},
      {"Europe/Berlin", "after 25 hours", 1730070000, 25 * hour},
      {"America/Sao_Paulo", "skipped, 2018-11-04", 1541300400, 24 * hour},
      {"Asia/Beirut", "skipped, 2022-03-27", 1648332000, 24 * hour},
      {"Asia/Tehran", "skipped, 2022-03-22", 1647894600, 24 * hour},
      {"Atlantic/Azores", "skipped, 2022-03-27", 1648342800, 24 * hour},
      {"America/Havana", "the first of two, 2022-11-06", 1667707200, 24 * hour},
      {"Atlantic/Azores", "the first of two, 2022-10-30", 1667088000, 24 * hour},
      {"Asia/Dhaka", "after 23 hours, 2009-06-20", 1245430800, 23 * hour},
      {"Asia/Pyongyang", "after 23 and a half hours, 2018-05-05", 1525446000, 47 * hour / 2},
      {"Pacific/Apia", "30 December 2011 does not exist", 1325239200, 24 * hour},
      {"Pacific/Kwajalein", "21 August 1993 does not exist", 745934400, 24 * hour},
      {"America/Nuuk", "by the rule, after 25 hours in 2051", 2582157600, 25 * hour},
  };
  for (const Row& row : rows) {
    const auto calendar = makeGregorianCalendar(row.zone);
    ASSERT_NE(calendar, nullptr) << row.zone;
    const std::int64_t start = row.midnight - row.lengthOfDayBefore;
    for (const Instant now : {at(start), at(start + 13 * hour), at(row.midnight - hour),
                              at(row.midnight) - microseconds(1)}) {
      EXPECT_EQ(calendar->nextMidnight(now), at(row.midnight))
          << row.zone << ": " << row.what << ", from " << now.time_since_epoch().count();
    }
    EXPECT_EQ(calendar->nextMidnight(at(start) - microseconds(1)), at(start)) << row.zone;
    EXPECT_GT(calendar->nextMidnight(at(row.midnight)), at(row.midnight)) << row.zone;
  }
}

TEST(GregorianCalendar, FindsTheMomentOfALocalTime) {
  const std::tuple<const char*, LocalTime, std::optional<std::int64_t>> rows[] = {
      {"Europe/Berlin", {2025, 3, 7, 9, 5, 12}, 1741334712},
      {"Europe/Berlin", {2024, 3, 31, 2, 30, 0}, 1711846800},   // skipped: 02:00 to 03:00
      {"Europe/Berlin", {2024, 10, 27, 2, 30, 0}, 1729989000},  // twice
      {"Australia/Lord_Howe", {2024, 10, 6, 2, 15, 0}, 1728142200},
      {"Pacific/Apia", {2011, 12, 29, 23, 59, 59}, 1325239199},
      {"Pacific/Apia", {2011, 12, 30, 0, 0, 0}, std::nullopt},
      {"Pacific/Apia", {2011, 12, 31, 0, 0, 0}, 1325239200},
      {"America/New_York", {1800, 1, 1, 0, 0, 0}, -5364644638},  // local mean time
      {"UTC", {-32000, 1, 1, 0, 0, 0}, -1071989683200},
      {"UTC", {32001, 1, 1, 0, 0, 0}, std::nullopt},
      {"UTC", {2023, 2, 29, 0, 0, 0}, std::nullopt},
      {"UTC", {2024, 257, 1, 0, 0, 0}, std::nullopt},
      {"UTC", {2024, 1, 257, 0, 0, 0}, std::nullopt},
      {"UTC", {2024, 1, 1, 24, 0, 0}, std::nullopt},
      {"UTC", {2024, 1, 1, 0, -1, 0}, std::nullopt},
      {"UTC", {2024, 1, 1, 0, 0, 60}, std::nullopt},
  };
  for (const auto& [zone, time, moment] : rows) {
    EXPECT_EQ(unixTime(makeGregorianCalendar(zone)->instant(time)), moment)
        << zone << ' ' << time.year << '-' << time.month << '-' << time.day << ' ' << time.hour
        << ':' << time.minute << ':' << time.second;
  }
}

TEST(GregorianCalendar, CountsMonths) {
  const auto calendar = makeGregorianCalendar("Pacific/Auckland");
  const Instant newYear = at(1735642800);  // 2025-01-01 00:00 there, still 2024 in UTC
  constexpr long long first = 12 * (-32000 - 2025);
  constexpr long long last = 12 * (32000 - 2025) + 11;
  const std::pair<long long, std::optional<YearMonth>> rows[] = {
      {0, {{2025, 1}}},
      {-13, {{2023, 12}}},
      {last, {{32000, 12}}},
      {last + 1, {}},
      {first, {{-32000, 1}}},
      {first - 1, {}},
      {std::numeric_limits<long long>::min(), {}}};
  for (const auto& [months, result] : rows) {
    EXPECT_EQ(calendar->month(newYear, months), result) << months;
  }
  EXPECT_EQ(calendar->lastDayOfMonth({2100, 2}), 28);
  EXPECT_EQ(calendar->lastDayOfMonth({2024, 13}), std::nullopt);
  EXPECT_EQ(calendar->lastDayOfMonth({67560, 2}), std::nullopt);
}

TEST(GregorianCalendar, AnswersNothingBeyondItsYears) {
  constexpr std::int64_t farOff = std::int64_t{200'000} * 366 * day * 1'000'000;
  const auto calendar = makeGregorianCalendar("Pacific/Apia");
  for (const std::int64_t moment : {std::numeric_limits<std::int64_t>::min(),
                                    std::numeric_limits<std::int64_t>::max(), farOff, -farOff}) {
    const Instant instant{microseconds(moment)};
    EXPECT_EQ(calendar->ordinalOfDay(instant), std::nullopt) << moment;
    EXPECT_EQ(calendar->month(instant, 0), std::nullopt) << moment;
    EXPECT_EQ(calendar->nextMidnight(instant), std::nullopt) << moment;
  }
}

// The judge of the calendar: whole minutes one by one, by the C library's clock. Since 1972 all
// clocks of the world have changed on whole minutes, by whole minutes.
std::time_t nextMidnightStepByStep(const SystemLocalTime& clock, std::time_t now) {
  std::tm before = clock.at(now);
  for (std::time_t moment = now - now % 60 + 60;; moment += 60) {
    const std::tm local = clock.at(moment);
    if (local.tm_hour == 0 && local.tm_min == 0) return moment;
    if (local.tm_mday != before.tm_mday && local.tm_hour < 12 && before.tm_hour > 12) {
      return moment;  // a new day that did not begin with a midnight
    }
    before = local;
  }
}

std::vector<std::string> zonesOfTheWorld() {
  std::vector<std::string> zones;
  std::ifstream table("/usr/share/zoneinfo/zone1970.tab");
  for (std::string line; std::getline(table, line);) {
    if (line.starts_with('#')) continue;
    std::istringstream columns(line);
    std::string zone;
    columns >> zone >> zone >> zone;  // the third column
    zones.push_back(zone);
  }
  return zones;
}

// Moments of one year: a random one, and one in the day before each change of the clocks.
std::vector<std::time_t> interestingMoments(const SystemLocalTime& clock, std::time_t newYear,
                                            std::mt19937& random) {
  std::uniform_int_distribution<std::time_t> withinDay(0, day);
  std::uniform_int_distribution<std::time_t> withinYear(0, 365 * day);
  std::vector<std::time_t> moments = {newYear + withinYear(random)};
  for (std::time_t moment = newYear; moment < newYear + 365 * day; moment += day) {
    if (clock.at(moment).tm_gmtoff == clock.at(moment + day).tm_gmtoff) continue;
    moments.push_back(moment + withinDay(random) - withinDay(random));
    moments.push_back(moment + withinDay(random));
  }
  return moments;
}

void expectAgreement(const tonelake::Calendar& calendar, const SystemLocalTime& clock,
                     std::time_t now) {
  SCOPED_TRACE(calendar.timeZone() + " at " + std::to_string(now));
  const std::tm local = clock.at(now);
  EXPECT_EQ(calendar.ordinalOfDay(at(now)), local.tm_yday + 1);
  EXPECT_EQ(calendar.month(at(now), 0), (YearMonth{local.tm_year + 1900, local.tm_mon + 1}));
  EXPECT_EQ(unixTime(calendar.nextMidnight(at(now))), nextMidnightStepByStep(clock, now));

  const auto moment =
      unixTime(calendar.instant({local.tm_year + 1900, local.tm_mon + 1, local.tm_mday,
                                 local.tm_hour, local.tm_min, local.tm_sec}));
  ASSERT_TRUE(moment.has_value());
  EXPECT_LE(*moment, now) << "a repeated time is the first of the two";
  const std::tm again = clock.at(*moment);
  EXPECT_EQ(std::tie(again.tm_yday, again.tm_hour, again.tm_min, again.tm_sec),
            std::tie(local.tm_yday, local.tm_hour, local.tm_min, local.tm_sec));
}

TEST(GregorianCalendar, AgreesWithTheSystemsClockAllOverTheWorld) {
  std::mt19937 random(20250307);
  std::uniform_int_distribution<std::time_t> year(2, 149);  // 1972 to 2119
  const auto zones = zonesOfTheWorld();
  ASSERT_GT(zones.size(), 250u);
  for (const std::string& zone : zones) {
    const auto calendar = makeGregorianCalendar(zone);
    ASSERT_NE(calendar, nullptr) << zone;
    const SystemLocalTime clock(zone);
    for (int i = 0; i < 6; ++i) {
      for (const std::time_t now : interestingMoments(clock, year(random) * 365 * day, random)) {
        expectAgreement(*calendar, clock, now);
      }
    }
    if (HasFailure()) break;  // one zone's failures tell enough
  }
}

TEST(GregorianCalendar, KnowsItsZoneByNameOnly) {
  EXPECT_EQ(makeGregorianCalendar("Europe/Berlin")->timeZone(), "Europe/Berlin");
  for (const char* name :
       {"", "Europe", "europe/berlin", "tzdata.zi", "../zoneinfo/UTC", "/usr/share/zoneinfo/UTC"}) {
    EXPECT_EQ(makeGregorianCalendar(name), nullptr) << name;
  }
}

TEST(GregorianCalendar, AsksTheClockItWasGiven) {
  const auto diagnostics = std::make_shared<RecordingDiagnostics>();
  const Clock clock = [] { return at(42); };
  EXPECT_EQ(makeGregorianCalendar("UTC", clock)->now(), at(42));
  ZoneSources sources;
  sources.variable = "Nowhere/At_All";
  const auto calendar = makeMachineCalendar(diagnostics, clock, sources);
  EXPECT_EQ(calendar->now(), at(42));
  EXPECT_EQ(diagnostics->lines().size(), 0u) << "the zone does not matter yet";
  EXPECT_EQ(calendar->timeZone(), "UTC");
  ASSERT_EQ(diagnostics->lines().size(), 1u);
  EXPECT_NE(diagnostics->lines()[0].find("Nowhere/At_All"), std::string::npos);
}

}  // namespace
}  // namespace desktop
