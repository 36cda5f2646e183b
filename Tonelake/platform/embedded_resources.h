#pragma once

#include <optional>
#include <span>
#include <string_view>

namespace tonelake {

/// One file that is compiled in.
struct EmbeddedResource {
  std::string_view fileName;  ///< for example "jazz_chords.json"
  std::string_view contents;
};

/// The contents of the file of that name; nothing without one.
inline std::optional<std::string_view> findResource(std::span<const EmbeddedResource> resources,
                                                    std::string_view fileName) noexcept {
  for (const EmbeddedResource& resource : resources) {
    if (resource.fileName == fileName) return resource.contents;
  }
  return std::nullopt;
}

/// Every file of Tonelake/resources/ that Tonelake/CMakeLists.txt names. Written by the build.
std::span<const EmbeddedResource> embeddedResources() noexcept;

}  // namespace tonelake
