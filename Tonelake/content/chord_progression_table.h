#pragma once

#include <span>
#include <string_view>
#include <vector>

#include "Tonelake/content/music_styles.h"

namespace tonelake {

/// A progression as it is written down. The description is the key of its translations.
struct ChordProgressionRow {
  std::string_view progression;
  std::vector<MusicStyles> styles;
  std::string_view descriptionKey;
};

/// In the order in which screens list them.
std::span<const ChordProgressionRow> majorProgressionRows();
std::span<const ChordProgressionRow> minorProgressionRows();

}  // namespace tonelake
