#include "Desktop/settings_files.h"

#include <filesystem>

#include <gtest/gtest.h>

#include "tests/desktop/temporary_folder.h"
#include "tests/support/recording_diagnostics.h"

namespace desktop {
namespace {

using tonelake::testing::RecordingDiagnostics;

TEST(SettingsFiles, LieInTheUsersDataFolder) {
  const std::pair<DataHome, const char*> rows[] = {
      {{"/data", "/home/ada"}, "/data/zyndle/shared.sqlite"},
      {{"", "/home/ada"}, "/home/ada/.local/share/zyndle/shared.sqlite"},
      {{"data", "/home/ada"}, "/home/ada/.local/share/zyndle/shared.sqlite"},
      {{"data", ""}, "shared.sqlite"},
  };
  for (const auto& [home, shared] : rows) {
    EXPECT_EQ(settingsFiles(home).shared, shared)
        << home.variable.value_or("-") << ' ' << home.home.value_or("-");
  }
}

TEST(SettingsFiles, AreMadeOnFirstUseForThisUserOnly) {
  const TemporaryFolder folder;
  const auto diagnostics = std::make_shared<RecordingDiagnostics>();
  const SettingsFiles files = settingsFiles({folder.path("a/b"), std::nullopt});
  const auto standard = makeStandardSettings(files.standard, diagnostics);
  const auto shared = makeSharedSettings(files.shared, diagnostics,
                                         [](const std::string& problem) { FAIL() << problem; });
  EXPECT_FALSE(std::filesystem::exists(folder.path("a")));
  standard->setText("kept", "here");
  EXPECT_FALSE(std::filesystem::exists(files.shared));
  EXPECT_EQ(shared->text("kept"), std::nullopt);
  EXPECT_EQ(openSettingsFile(files.standard, diagnostics).store->text("kept"), "here");
  EXPECT_EQ(std::filesystem::status(folder.path("a/b/zyndle")).permissions(),
            std::filesystem::perms::owner_all);
  EXPECT_EQ(diagnostics->lines(), std::vector<std::string>());
}

TEST(SettingsFiles, ThatCannotBeOpened) {
  const TemporaryFolder folder;
  folder.write("file", "not a folder");
  folder.write("garbage.sqlite", "not a database");
  for (const std::string& path :
       {std::string("standard.sqlite"), folder.path("file/zyndle/standard.sqlite"),
        folder.path("garbage.sqlite")}) {
    const auto diagnostics = std::make_shared<RecordingDiagnostics>();
    const auto standard = makeStandardSettings(path, diagnostics);
    standard->setText("a", "b");
    EXPECT_EQ(standard->text("a"), "b") << "kept in memory: " << path;
    ASSERT_EQ(diagnostics->lines().size(), 1u) << path;
    EXPECT_TRUE(diagnostics->lines()[0].starts_with(path + ": ")) << diagnostics->lines()[0];

    std::vector<std::string> problems;
    const auto shared = makeSharedSettings(
        path, diagnostics, [&](const std::string& problem) { problems.push_back(problem); });
    EXPECT_EQ(shared->text("a"), std::nullopt);
    ASSERT_EQ(problems.size(), 1u) << path;
    EXPECT_TRUE(problems[0].starts_with(path + ": ")) << problems[0];
    EXPECT_EQ(diagnostics->lines().size(), 1u) << "told to the handler only";
  }
}

}  // namespace
}  // namespace desktop
