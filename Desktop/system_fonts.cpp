#include "Desktop/system_fonts.h"

#include <fontconfig/fontconfig.h>

#include "Desktop/c_pointer.h"

namespace desktop {
namespace {

using Pattern = CPointer<FcPattern, FcPatternDestroy>;
using CharacterSet = CPointer<FcCharSet, FcCharSetDestroy>;

FcChar32 codePoint(std::string_view character) {
  FcChar32 code = 0;
  FcUtf8ToUcs4(reinterpret_cast<const FcChar8*>(character.data()), &code,
               static_cast<int>(character.size()));
  return code;
}

// Letters that are pictures of dots, as emoji are, cannot be drawn at all sizes.
Pattern describe(FcChar32 code, int weight) {
  const CharacterSet characters(FcCharSetCreate());
  FcCharSetAddChar(characters.get(), code);
  Pattern pattern(FcPatternCreate());
  FcPatternAddCharSet(pattern.get(), FC_CHARSET, characters.get());
  FcPatternAddString(pattern.get(), FC_FAMILY, reinterpret_cast<const FcChar8*>("sans-serif"));
  FcPatternAddInteger(pattern.get(), FC_WEIGHT, FcWeightFromOpenType(weight));
  FcPatternAddBool(pattern.get(), FC_OUTLINE, FcTrue);
  FcPatternAddBool(pattern.get(), FC_COLOR, FcFalse);
  return pattern;
}

// The best match need not hold what was asked for.
bool holds(const FcPattern* font, FcChar32 code) {
  FcCharSet* characters = nullptr;
  FcBool hasOutlines = FcFalse;
  return FcPatternGetCharSet(font, FC_CHARSET, 0, &characters) == FcResultMatch &&
         FcCharSetHasChar(characters, code) == FcTrue &&
         FcPatternGetBool(font, FC_OUTLINE, 0, &hasOutlines) == FcResultMatch &&
         hasOutlines == FcTrue;
}

}  // namespace

std::optional<SystemFont> findSystemFont(std::string_view character, int weight) {
  // Read once and kept: reading the list is what costs.
  static FcConfig* const settings = FcInitLoadConfigAndFonts();
  if (settings == nullptr) return std::nullopt;
  const FcChar32 code = codePoint(character);
  const Pattern pattern = describe(code, weight);
  FcConfigSubstitute(settings, pattern.get(), FcMatchPattern);
  FcDefaultSubstitute(pattern.get());
  FcResult result = FcResultNoMatch;
  const Pattern font(FcFontMatch(settings, pattern.get(), &result));
  if (font == nullptr || !holds(font.get(), code)) return std::nullopt;
  FcChar8* file = nullptr;
  int index = 0;
  if (FcPatternGetString(font.get(), FC_FILE, 0, &file) != FcResultMatch) return std::nullopt;
  FcPatternGetInteger(font.get(), FC_INDEX, 0, &index);
  return SystemFont{reinterpret_cast<const char*>(file), index};
}

}  // namespace desktop
