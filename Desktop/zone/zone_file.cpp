// One small file is read for one zone. The date library's own database would also do for the past,
// but it lists the whole folder of zones first (650 calls of the system, 1 ms warm and 5 ms cold)
// and does not know the last line of a zone file, the rule for all years after the last recorded
// one.
//
// A file holds two blocks: the first, with moments of 32 bits, is for readers of long ago and is
// skipped; the second, with moments of 64 bits, is followed by the rule between two line breaks.
// All numbers are big-endian.

#include "Desktop/zone/zone_file.h"

#include <array>
#include <cstddef>
#include <cstdint>

#include "Desktop/files.h"

namespace desktop {
namespace {

using std::chrono::seconds;

constexpr std::size_t headerSize = 44;
constexpr std::size_t countsPosition = 20;
constexpr std::size_t offsetTypeSize = 6;  // 4 bytes of offset, summer time or not, abbreviation
constexpr std::size_t largestFile = 1 << 20;

// The six numbers of a header, in the order of the file.
enum Count : std::size_t { universalFlags, standardFlags, leapSeconds, changes, types, letters };
using Counts = std::array<std::size_t, 6>;

std::uint64_t readNumber(std::string_view bytes, std::size_t position, std::size_t size) {
  std::uint64_t number = 0;
  for (const char byte : bytes.substr(position, size)) {
    number = (number << 8) | static_cast<unsigned char>(byte);
  }
  return number;
}

std::optional<Counts> readHeader(std::string_view bytes) {
  if (bytes.size() < headerSize || !bytes.starts_with("TZif") || bytes[4] < '2') {
    return std::nullopt;
  }
  Counts counts;
  for (std::size_t i = 0; i < counts.size(); ++i) {
    counts[i] = readNumber(bytes, countsPosition + 4 * i, 4);
  }
  return counts;
}

std::size_t sizeOfBlock(const Counts& counts, std::size_t momentSize) {
  return counts[changes] * (momentSize + 1) + counts[types] * offsetTypeSize + counts[letters] +
         counts[leapSeconds] * (momentSize + 4) + counts[standardFlags] + counts[universalFlags];
}

std::optional<std::vector<seconds>> readOffsets(std::string_view bytes, std::size_t count) {
  constexpr seconds limit = std::chrono::hours(26);
  std::vector<seconds> offsets;
  for (std::size_t i = 0; i < count; ++i) {
    const std::uint64_t number = readNumber(bytes, i * offsetTypeSize, 4);
    const seconds offset(static_cast<std::int32_t>(static_cast<std::uint32_t>(number)));
    if (offset < -limit || offset > limit) return std::nullopt;
    offsets.push_back(offset);
  }
  return offsets;
}

// `block` starts with the moments, then one byte for each that says which offset follows it.
std::optional<Zone> readBlock(std::string_view block, const Counts& counts,
                              std::optional<YearlyRule> rule) {
  const std::size_t count = counts[changes];
  const auto offsets = readOffsets(block.substr(9 * count), counts[types]);
  if (!offsets || offsets->empty()) return std::nullopt;
  std::vector<OffsetChange> result;
  result.reserve(count);
  for (std::size_t i = 0; i < count; ++i) {
    const auto moment = static_cast<std::int64_t>(readNumber(block, 8 * i, 8));
    const std::size_t type = readNumber(block, 8 * count + i, 1);
    const OffsetChange change{date::sys_seconds(seconds(moment)), seconds(0)};
    const bool isInOrder = result.empty() || result.back().moment < change.moment;
    if (type >= offsets->size() || !isInOrder || change.moment < distantPast ||
        change.moment > distantFuture) {
      return std::nullopt;
    }
    result.push_back({change.moment, (*offsets)[type]});
  }
  return Zone(offsets->front(), std::move(result), rule);
}

// Whether `name` stays inside the folder: "../../etc/passwd" and "/etc/passwd" do not.
bool isZoneName(std::string_view name) {
  return !name.empty() && name.front() != '/' && name.find("..") == std::string_view::npos &&
         name.find('\0') == std::string_view::npos;
}

}  // namespace

std::optional<Zone> decodeZoneFile(std::string_view bytes) {
  const auto oldCounts = readHeader(bytes);
  if (!oldCounts) return std::nullopt;
  const std::size_t oldSize = headerSize + sizeOfBlock(*oldCounts, 4);
  if (bytes.size() < oldSize) return std::nullopt;
  bytes.remove_prefix(oldSize);

  const auto counts = readHeader(bytes);
  if (!counts || (*counts)[leapSeconds] != 0) return std::nullopt;
  bytes.remove_prefix(headerSize);
  const std::size_t size = sizeOfBlock(*counts, 8);
  if (bytes.size() < size) return std::nullopt;

  std::string_view footer = bytes.substr(size);
  if (footer.size() < 2 || footer.front() != '\n' || footer.back() != '\n') return std::nullopt;
  footer = footer.substr(1, footer.size() - 2);
  const auto rule = YearlyRule::parse(footer);
  if (!rule && !footer.empty()) return std::nullopt;
  return readBlock(bytes.substr(0, size), *counts, rule);
}

std::optional<Zone> readZone(const std::string& folder, std::string_view name) {
  if (!isZoneName(name)) return std::nullopt;
  const auto bytes = readFile(folder + '/' + std::string(name), largestFile);
  return bytes ? decodeZoneFile(*bytes) : std::nullopt;
}

}  // namespace desktop
