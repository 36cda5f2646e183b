#pragma once

#include <compare>
#include <optional>
#include <string>
#include <string_view>

namespace desktop {

/// One font of the machine.
struct SystemFont {
  std::string file;
  int index = 0;  ///< of the font in its file, as FreeType counts

  friend auto operator<=>(const SystemFont&, const SystemFont&) = default;
};

/// The font with outlines that the machine's settings prefer among those that hold `character`,
/// one of well-formed UTF-8, at a weight of 100 (thin) to 900 (heavy). Not for two threads at once.
std::optional<SystemFont> findSystemFont(std::string_view character, int weight);

}  // namespace desktop
