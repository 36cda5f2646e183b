#include "Tonelake/theory/music_signs.h"

#include "Tonelake/foundation/text.h"

namespace tonelake {

std::string withMusicSigns(std::string_view name) {
  return replaceAll(replaceAll(name, "#", "♯"), "b", "♭");
}

std::string withTypedSigns(std::string_view name) {
  return replaceAll(replaceAll(name, "♯", "#"), "♭", "b");
}

}  // namespace tonelake
