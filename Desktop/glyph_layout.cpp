#include "Desktop/glyph_layout.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "Desktop/font_library.h"
#include "Desktop/typefaces.h"
#include "Tonelake/foundation/text.h"

// "B♭m" at 10: B and m come from the text face; ♭ from the music face, raised by 1.2. That is
// three runs. Kerning brings letters of one run together.

namespace desktop {
namespace {

// What only tells other letters how to look takes no room and is not drawn: joiners, marks of
// direction, variation selectors, the byte order mark.
bool isInvisible(std::string_view character) {
  struct Range {
    std::string_view first;
    std::string_view last;
  };
  constexpr Range ranges[] = {
      {"\u00AD", "\u00AD"}, {"\u200B", "\u200F"}, {"\u202A", "\u202E"},
      {"\u2060", "\u206F"}, {"\uFE00", "\uFE0F"}, {"\uFEFF", "\uFEFF"},
  };
  return std::any_of(std::begin(ranges), std::end(ranges), [&](const Range& range) {
    return character >= range.first && character <= range.last;
  });
}

// One character as it is set.
std::string_view clean(std::string_view character) {
  if (character == "\t" || character == "\n" || character == "\r") return " ";
  return tonelake::isPrintable(character) ? character : tonelake::replacementCharacter;
}

struct FoundGlyph {
  const FontFace* face;
  unsigned glyph;
};

FoundGlyph findGlyph(std::string_view character, const FontFace& preferred, int weight) {
  if (const unsigned glyph = preferred.glyphOf(character); glyph != 0) return {&preferred, glyph};
  const FontFace& music = shippedFace(musicSignsFile);
  if (const unsigned glyph = music.glyphOf(character); glyph != 0) return {&music, glyph};
  const FontFace* system = systemFaceFor(character, weight);
  return system == nullptr ? FoundGlyph{&preferred, 0}
                           : FoundGlyph{system, system->glyphOf(character)};
}

// Writes letters behind one another.
class LineSetter {
 public:
  explicit LineSetter(const todaychord::Font& font)
      : typeface_(typefaceCalled(font.name)),
        preferred_(shippedFace(typeface_.file)),
        size_(font.size) {}

  void add(std::string_view character) {
    const auto [face, glyph] = findGlyph(character, preferred_, typeface_.weight);
    const MusicSign setting = settingOf(character);
    const double size = size_ * setting.growth;
    if (line_.runs.empty() || line_.runs.back().face != face || line_.runs.back().size != size) {
      line_.runs.push_back({face, size, "", {}, {}});
    }
    GlyphRun& run = line_.runs.back();
    if (!run.glyphs.empty()) {
      const auto before = static_cast<unsigned>(run.glyphs.back().index);
      line_.width += face->kerningBetween(before, glyph) * size;
    }
    run.text += character;
    run.glyphs.push_back({glyph, line_.width, -setting.rise * size_});
    run.clusters.push_back({static_cast<int>(character.size()), 1});
    line_.width += face->advanceOf(glyph) * size;
  }

  GlyphLine finish() { return std::move(line_); }

 private:
  const Typeface& typeface_;
  const FontFace& preferred_;
  double size_;
  GlyphLine line_;
};

}  // namespace

GlyphLine layOutGlyphs(std::string_view text, const todaychord::Font& font) {
  LineSetter setter(font);
  for (const std::string_view character : tonelake::splitCharacters(text)) {
    if (!isInvisible(character)) setter.add(clean(character));
  }
  return setter.finish();
}

std::string cleanLine(std::string_view text) {
  std::string cleaned;
  for (const std::string_view character : tonelake::splitCharacters(text)) {
    cleaned += clean(character);
  }
  return cleaned;
}

}  // namespace desktop
