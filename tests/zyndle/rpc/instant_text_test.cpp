#include "zyndle/rpc/instant_text.h"

#include <gtest/gtest.h>

namespace zyndle {
namespace {

// What `text` is read as, in the one form that instants are written in; "" when it is refused.
std::string reread(std::string_view text) {
  const auto instant = parseInstant(text);
  return instant ? formatInstant(*instant) : "";
}

TEST(InstantText, ReadsAndWritesInstants) {
  const std::pair<const char*, const char*> rows[] = {
      {"2025-03-07t09:05:01z", "2025-03-07T09:05:01Z"},
      {"2025-03-07T09:00:00+05:30", "2025-03-07T03:30:00Z"},
      {"2024-12-31T19:00:00-05:00", "2025-01-01T00:00:00Z"},
      {"0000-01-01T00:00:00Z", "0000-01-01T00:00:00Z"},
      {"2025-03-07T09:00:00.5Z", "2025-03-07T09:00:00.500000Z"},
      {"1969-12-31T23:59:59.0000019999999999999999999Z", "1969-12-31T23:59:59.000001Z"},
      {"1990-12-31T15:59:60.25-08:00", "1990-12-31T23:59:59.999999Z"},
  };
  for (const auto& [text, written] : rows) EXPECT_EQ(reread(text), written) << text;
  EXPECT_EQ(parseInstant("2001-09-09T01:46:40.000001Z")->time_since_epoch().count(),
            1'000'000'000'000'001);
}

TEST(InstantText, RefusesEverythingElse) {
  // clang-format off
  const char* const texts[] = {
      "", "now", "2025-03-07", "2025-03-07T09:00:00", "2025-03-07T09:00Z",
      "2025-02-29T00:00:00Z", "2025-00-07T00:00:00Z", "2025-13-07T00:00:00Z",
      "2025-03-07T24:00:00Z", "2025-03-07T09:60:00Z", "2025-03-07T09:00:61Z",
      "2025-03-07T23:59:60Z", "2016-12-31T23:58:60Z", "2025-03-07T09:00:00.Z",
      "2025-03-07T09:00:00,5Z", "2025-03-07 09:00:00Z", " 2025-03-07T09:00:00Z",
      "2025-03-07T09:00:00Z ", "2025-03-07T09:00:00+0530", "2025-03-07T09:00:00+24:00",
      "2025-03-07T09:00:00+05:60", "-001-03-07T09:00:00Z", "12025-03-07T09:00:00Z",
      "0000-01-01T00:59:59+01:00", "9999-12-31T23:59:59-00:01", "2025-3-07T09:00:00Z"};
  // clang-format on
  for (const char* text : texts) {
    EXPECT_EQ(reread(text), "") << text;
  }
}

}  // namespace
}  // namespace zyndle
