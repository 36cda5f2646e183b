#include "Desktop/font_library.h"

#include <map>
#include <mutex>
#include <string>
#include <utility>

#include "Desktop/embedded_fonts.h"
#include "Desktop/system_fonts.h"
#include "Tonelake/foundation/fatal.h"

namespace desktop {
namespace {

// Opens fonts, one at a time: FreeType wants no two threads to do so at once.
class FontLibrary {
 public:
  FontLibrary() {
    if (FT_Init_FreeType(&library_) != 0) {
      tonelake::stopWithProgrammingError("FreeType cannot be started");
    }
  }

  const FontFace& shipped(std::string_view file) {
    const std::scoped_lock lock(mutex_);
    const auto found = shipped_.find(file);
    if (found != shipped_.end()) return found->second;
    return shipped_.try_emplace(std::string(file), openShipped(file)).first->second;
  }

  const FontFace* system(std::string_view character, int weight) {
    const std::scoped_lock lock(mutex_);
    const std::pair wanted{std::string(character), weight};
    const auto known = systemByCharacter_.find(wanted);
    if (known != systemByCharacter_.end()) return known->second;
    const auto font = findSystemFont(character, weight);
    const FontFace* face = font ? openSystem(*font) : nullptr;
    if (face != nullptr && face->glyphOf(character) == 0) face = nullptr;
    return systemByCharacter_.emplace(wanted, face).first->second;
  }

 private:
  FT_Face openShipped(std::string_view file) {
    FT_Face face = nullptr;
    if (const auto font = tonelake::findResource(embeddedFonts(), file)) {
      FT_New_Memory_Face(library_, reinterpret_cast<const FT_Byte*>(font->data()),
                         static_cast<FT_Long>(font->size()), 0, &face);
    }
    if (face == nullptr) tonelake::stopWithProgrammingError("a typeface of the program is missing");
    return face;
  }

  // A font that cannot be opened is remembered as none at all.
  const FontFace* openSystem(const SystemFont& font) {
    const auto found = system_.find(font);
    if (found != system_.end()) return &found->second;
    FT_Face face = nullptr;
    if (FT_New_Face(library_, font.file.c_str(), font.index, &face) != 0) return nullptr;
    if (!FT_IS_SCALABLE(face)) {
      FT_Done_Face(face);
      return nullptr;
    }
    return &system_.try_emplace(font, face).first->second;
  }

  std::mutex mutex_;
  FT_Library library_ = nullptr;
  // Maps, because what they hold stays where it is.
  std::map<std::string, FontFace, std::less<>> shipped_;
  std::map<SystemFont, FontFace> system_;
  std::map<std::pair<std::string, int>, const FontFace*> systemByCharacter_;
};

FontLibrary& fontLibrary() {
  static auto& library = *new FontLibrary;  // never given back, see FontFace
  return library;
}

}  // namespace

const FontFace& shippedFace(std::string_view file) {
  return fontLibrary().shipped(file);
}

const FontFace* systemFaceFor(std::string_view character, int weight) {
  return fontLibrary().system(character, weight);
}

}  // namespace desktop
