#include "Tonelake/platform/platform.h"

#include <gtest/gtest.h>

namespace tonelake {
namespace {

TEST(PlatformDeathTest, IsInstalledOnceBeforeItsFirstUse) {
  EXPECT_DEATH(
      {
        processPlatform();
        installPlatform(Platform());
      },
      "before its first use");
}

TEST(Platform, IsInertWithoutAHost) {
  const Platform platform;
  EXPECT_EQ(platform.calendar->timeZone(), "UTC");
  EXPECT_EQ(platform.application.version, "0");
  EXPECT_EQ(platform.strings->localized("Beginner"), "Beginner");
  EXPECT_EQ(platform.strings->localized("inversion.first"), "First inversion");
  EXPECT_NE(platform.random->next(), platform.random->next());
  std::optional<std::string> problem;
  platform.notifications->add({}, [&](const auto& reported) { problem = reported; });
  EXPECT_TRUE(problem.has_value());
  EXPECT_FALSE(platform.resources->load("missing", "json").has_value());
}

}  // namespace
}  // namespace tonelake
