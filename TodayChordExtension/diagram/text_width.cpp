#include "TodayChordExtension/diagram/text_width.h"

#include "Tonelake/foundation/text.h"

namespace todaychord {
namespace {

struct WidthClass {
  double width;  // of the widest character, in font sizes
  std::string_view characters;
};

// Measured in Space Grotesk Medium and SemiBold, the music signs and U+FFFD in Noto Music and
// DejaVu Sans, each rounded up.
// clang-format off
constexpr WidthClass widthClasses[] = {
    {0.30, "|Iilj',!.:;`·’‘ "},
    {0.46, "[]/\\)r(1f-{}t•"},
    {0.48, "♮𝄪"},
    {0.56, "♯"},
    {0.68, "–“”♭𝄫"},  // flats are set larger
    {0.90, "wmMW%ÆæŴŵ©«»¼½¾ďĲ—…"},
    {1.03, "@œŒ"},
    {1.12, "�"},  // what stands in for characters that cannot be shown
    {1.28, "№ǄǅǆǇǊ"},
};
// clang-format on
constexpr double commonWidth = 0.68;  // every other letter, digit and sign of western languages
constexpr double eastAsianWidth = 1.05;
constexpr double foreignWidth = 1.25;  // other scripts: Ж in the usual fonts

double characterWidth(std::string_view character) {
  if (!tonelake::isPrintable(character)) character = tonelake::replacementCharacter;
  for (const WidthClass& widthClass : widthClasses) {
    if (widthClass.characters.find(character) != std::string_view::npos) return widthClass.width;
  }
  // As UTF-8 writes them: other scripts begin at U+0180, those that fill squares at U+2E80.
  if (character >= "\xE2\xBA\x80") return eastAsianWidth;
  return character >= "\xC6\x80" ? foreignWidth : commonWidth;
}

}  // namespace

double largestTextWidth(std::string_view text, double fontSize) {
  double width = 0;
  for (const std::string_view character : tonelake::splitCharacters(text)) {
    width += characterWidth(character);
  }
  return width * fontSize;
}

double fittingFontSize(std::string_view text, double fontSize, double width) {
  const double natural = largestTextWidth(text, fontSize);
  return natural <= width ? fontSize : fontSize * width / natural;
}

}  // namespace todaychord
