#include "Desktop/zone/machine_zone.h"

#include <filesystem>
#include <set>
#include <tuple>

#include <gtest/gtest.h>

#include "Desktop/files.h"
#include "tests/desktop/temporary_folder.h"

namespace desktop {
namespace {

constexpr std::size_t anySize = 1 << 20;

TEST(MachineZone, HonoursTheVariableFirst) {
  const TemporaryFolder folder;
  const std::string tokyo = "/usr/share/zoneinfo/Asia/Tokyo";
  std::filesystem::create_symlink(tokyo, folder.path("link"));
  folder.write("copy", *readFile(tokyo, anySize));
  const std::tuple<std::string, const char*, bool> rows[] = {
      {"Europe/Berlin", "Europe/Berlin", false},
      {":Europe/Berlin", "Europe/Berlin", false},
      {"/usr/share/zoneinfo/Europe/Berlin", "Europe/Berlin", false},
      {"/elsewhere/zoneinfo/Europe/Berlin", "Europe/Berlin", false},
      {"UTC", "UTC", false},
      {"", "UTC", false},
      {"CET-1CEST", "UTC", true},
      {"JST-9", "JST-9", false},
      {":" + folder.path("link"), "Asia/Tokyo", false},
      {folder.path("copy"), "localtime", false},
      {folder.path("nothing"), "UTC", true},
      {"Europe/Atlantis", "UTC", true},
      {"zone.tab", "UTC", true},
  };
  ZoneSources sources;
  sources.localTimeFile = tokyo;
  for (const auto& [variable, name, warns] : rows) {
    sources.variable = variable;
    const MachineZone machine = findMachineZone(sources);
    EXPECT_EQ(machine.zone.name, name) << variable;
    EXPECT_EQ(!machine.warning.empty(), warns) << variable << machine.warning;
    const bool isJapanese =
        std::set<std::string>{"Asia/Tokyo", "JST-9", "localtime"}.contains(name);
    EXPECT_EQ(machine.zone.zone.periodAt({}).offset == std::chrono::hours(9), isJapanese)
        << variable;
  }
}

TEST(MachineZone, ReadsTheSettingsOfTheMachine) {
  struct Row {
    const char* linkTarget;  // of the local time, "" where it is no link
    const char* copyOf;      // a zone whose file was copied there instead
    const char* nameFile;
    const char* name;
    bool warns;
  };
  const Row rows[] = {
      {"/usr/share/zoneinfo/Asia/Tokyo", "", "Europe/Berlin\n", "Asia/Tokyo", false},
      {"/usr/share/zoneinfo/Gone", "", "Europe/Berlin\n", "Europe/Berlin", false},
      {"", "Asia/Tokyo", "Asia/Tokyo", "Asia/Tokyo", false},
      {"", "Asia/Tokyo", "Europe/Berlin", "localtime", false},
      {"", "", "Europe/Atlantis\n", "UTC", true},
      {"", "", "", "UTC", true},
  };
  for (const Row& row : rows) {
    const TemporaryFolder folder;
    ZoneSources sources;
    sources.localTimeFile = folder.path("localtime");
    sources.zoneNameFile = folder.write("timezone", row.nameFile);
    if (*row.linkTarget != '\0') {
      std::filesystem::create_symlink(row.linkTarget, sources.localTimeFile);
    } else if (*row.copyOf != '\0') {
      folder.write("localtime", *readFile(sources.zoneFolder + '/' + row.copyOf, anySize));
    }
    const MachineZone machine = findMachineZone(sources);
    EXPECT_EQ(machine.zone.name, row.name) << row.linkTarget << row.copyOf << row.nameFile;
    EXPECT_EQ(!machine.warning.empty(), row.warns) << row.linkTarget << row.nameFile;
    if (machine.zone.name == std::string("localtime")) {
      EXPECT_EQ(machine.zone.zone.periodAt({}).offset, std::chrono::hours(9));
    }
  }
}

TEST(MachineZone, IsUtcWhereNoZoneIsInstalled) {
  ZoneSources sources;
  sources.zoneFolder = "/nonexistent";
  sources.variable = "UTC";
  EXPECT_EQ(findMachineZone(sources).warning, "");
  sources.variable = "Europe/Berlin";
  EXPECT_NE(findMachineZone(sources).warning, "");
}

}  // namespace
}  // namespace desktop
