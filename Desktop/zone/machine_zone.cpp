#include "Desktop/zone/machine_zone.h"

#include <array>
#include <string_view>
#include <utility>

#include <unistd.h>

#include "Desktop/environment.h"
#include "Desktop/files.h"
#include "Desktop/translation.h"
#include "Desktop/zone/zone_file.h"

namespace desktop {
namespace {

constexpr std::size_t largestZoneFile = 1 << 20;
constexpr std::size_t largestNameFile = 4096;

NamedZone universalTime() {
  return {"UTC", Zone(std::chrono::seconds(0), {}, std::nullopt)};
}

// "Europe/Berlin" for "/usr/share/zoneinfo/Europe/Berlin" and
// "../usr/share/zoneinfo/Europe/Berlin", wherever the folder of zones lies; any other text as it
// is.
std::string withoutFolder(const std::string& path, const std::string& zoneFolder) {
  if (path.starts_with(zoneFolder + '/')) return path.substr(zoneFolder.size() + 1);
  constexpr std::string_view folder = "/zoneinfo/";
  const std::size_t position = path.find(folder);
  return position == std::string::npos ? path : path.substr(position + folder.size());
}

std::string linkTarget(const std::string& path) {
  std::array<char, 4096> target;
  const ssize_t length = ::readlink(path.c_str(), target.data(), target.size());
  return length > 0 ? std::string(target.data(), static_cast<std::size_t>(length)) : "";
}

std::string firstLine(const std::string& path) {
  const std::string text = readFile(path, largestNameFile).value_or("");
  return text.substr(0, text.find_first_of(" \t\r\n"));
}

std::optional<NamedZone> zoneOfSettings(const ZoneSources& sources) {
  const std::string target = linkTarget(sources.localTimeFile);
  if (auto zone = findZone(sources.zoneFolder, withoutFolder(target, sources.zoneFolder))) {
    return zone;
  }
  // The local time may also be a plain copy of a zone file. Every other program follows that
  // copy, so the name that is written beside it counts only if it means the same.
  const auto copy = readFile(sources.localTimeFile, largestZoneFile);
  const std::string name = firstLine(sources.zoneNameFile);
  auto named = findZone(sources.zoneFolder, name);
  if (!copy || (named && readFile(sources.zoneFolder + '/' + name, largestZoneFile) == copy)) {
    return named;
  }
  if (auto zone = decodeZoneFile(*copy)) return NamedZone{"localtime", std::move(*zone)};
  return named;
}

std::optional<NamedZone> zoneOfVariable(const ZoneSources& sources) {
  std::string value = *sources.variable;
  if (value.starts_with(':')) value.erase(0, 1);
  if (value.empty()) return universalTime();
  if (auto zone = findZone(sources.zoneFolder, withoutFolder(value, sources.zoneFolder))) {
    return zone;
  }
  if (value.starts_with('/')) {
    ZoneSources file = sources;
    file.localTimeFile = value;
    file.zoneNameFile = "";
    return zoneOfSettings(file);
  }
  const auto rule = YearlyRule::parse(value);
  if (!rule) return std::nullopt;
  return NamedZone{value, Zone(std::chrono::seconds(0), {}, rule)};
}

}  // namespace

ZoneSources zoneSourcesOfThisMachine() {
  ZoneSources sources;
  sources.variable = environmentVariable("TZ");
  if (auto folder = environmentVariable("TZDIR")) sources.zoneFolder = *std::move(folder);
  return sources;
}

std::optional<NamedZone> findZone(const std::string& zoneFolder, const std::string& name) {
  if (auto zone = readZone(zoneFolder, name)) return NamedZone{name, std::move(*zone)};
  return name == "UTC" ? std::optional(universalTime()) : std::nullopt;
}

MachineZone findMachineZone(const ZoneSources& sources) {
  if (sources.variable) {
    if (auto zone = zoneOfVariable(sources)) return {std::move(*zone), ""};
    return {universalTime(), translated("TZ is {}, which names no known time zone: using UTC",
                                        '"' + *sources.variable + '"')};
  }
  if (auto zone = zoneOfSettings(sources)) return {std::move(*zone), ""};
  return {universalTime(), translated("this machine's time zone is unknown ({0}, {1}): using UTC",
                                      sources.localTimeFile, sources.zoneNameFile)};
}

}  // namespace desktop
