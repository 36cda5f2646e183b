#include "Desktop/desktop_platform.h"

#include <algorithm>
#include <thread>

#include <gtest/gtest.h>
#include <sys/resource.h>
#include <unistd.h>

#include "tests/desktop/temporary_folder.h"

namespace desktop {
namespace {

TEST(DesktopPlatform, KeepsSettingsAndTimeZoneOfTheEnvironment) {
  const TemporaryFolder folder;
  ::setenv("XDG_DATA_HOME", folder.path().c_str(), 1);
  ::setenv("TZ", "Asia/Tokyo", 1);
  DesktopOptions options;
  options.build = "212";
  makeDesktopPlatform(options).sharedSettings->setText("a", "b");
  const tonelake::Platform platform = makeDesktopPlatform(options);
  EXPECT_EQ(platform.sharedSettings->text("a"), "b");
  EXPECT_EQ(platform.standardSettings->text("a"), std::nullopt);
  EXPECT_EQ(platform.calendar->timeZone(), "Asia/Tokyo");
  EXPECT_EQ(platform.application.build, "212");
  EXPECT_NE(platform.application.version, "0");
}

TEST(DesktopPlatformDeathTest, EndsWithoutSharedSettings) {
  const TemporaryFolder folder;
  ::setenv("XDG_DATA_HOME", folder.write("file", "").c_str(), 1);
  EXPECT_EXIT(makeDesktopPlatform({}).sharedSettings->text("a"), testing::ExitedWithCode(1),
              "^[^\n]*/file/zyndle/shared.sqlite: [^\n]*\n$");
}

TEST(DesktopPlatform, LowersThePriorityOfOneThread) {
  const int before = ::getpriority(PRIO_PROCESS, 0);
  const tonelake::Platform platform = makeDesktopPlatform({});
  int lowered = before;
  std::jthread([&] {
    platform.lowerThreadPriority();
    lowered = ::getpriority(PRIO_PROCESS, static_cast<id_t>(::gettid()));
  }).join();
  EXPECT_GT(lowered, std::min(before, 18));  // 19 is the end of the scale
  EXPECT_EQ(::getpriority(PRIO_PROCESS, 0), before);
}

}  // namespace
}  // namespace desktop
