#pragma once

#include <span>
#include <string_view>

namespace tonelake {

/// One file that is compiled in.
struct EmbeddedResource {
  std::string_view fileName;  ///< for example "jazz_chords.json"
  std::string_view contents;
};

/// Every file of Tonelake/resources/ that Tonelake/CMakeLists.txt names. Written by the build.
std::span<const EmbeddedResource> embeddedResources() noexcept;

}  // namespace tonelake
