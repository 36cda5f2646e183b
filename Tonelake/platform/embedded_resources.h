#pragma once

#include <span>
#include <string_view>

namespace tonelake {

/// One file of Tonelake/resources/, compiled in.
struct EmbeddedResource {
  std::string_view fileName;  ///< for example "jazz_chords.json"
  std::string_view contents;
};

/// Every file named in Tonelake/CMakeLists.txt. Written by the build.
std::span<const EmbeddedResource> embeddedResources() noexcept;

}  // namespace tonelake
