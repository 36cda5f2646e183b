#include "TodayChordExtension/widgets/widget_text.h"

#include <algorithm>

#include "TodayChordExtension/diagram/text_width.h"
#include "TodayChordExtension/widgets/widget_metrics.h"
#include "Tonelake/foundation/text.h"
#include "Tonelake/platform/platform.h"

namespace todaychord {
namespace {

constexpr const char* ellipsis = "…";

// The longest beginning of `text` that fits in with an ellipsis. Blanks before the ellipsis go too:
// "My songs…", not "My songs …".
std::string cut(const std::string& text, double fontSize, double width) {
  const double room = width - largestTextWidth(ellipsis, fontSize);
  std::string kept;
  double used = 0;
  for (const std::string_view character : tonelake::splitCharacters(text)) {
    used += largestTextWidth(character, fontSize);
    if (used > room) break;
    kept += character;
  }
  while (!kept.empty() && kept.back() == ' ') kept.pop_back();
  return kept + ellipsis;
}

}  // namespace

std::string localized(std::string_view english) {
  return tonelake::processPlatform().strings->localized(english);
}

TextItem fitLine(const std::string& text, const TextStyle& style, Point baseline, double width) {
  const double smallest = style.font.size * widgetMetrics::smallestTextScale;
  const double size = std::max(smallest, fittingFontSize(text, style.font.size, width));
  const bool isTooLong = largestTextWidth(text, size) > width * (1 + 1e-9);
  return {isTooLong ? cut(text, size, width) : text,
          {style.font.name, size},
          style.anchor,
          baseline,
          style.color};
}

std::string inCapitals(std::string text) {
  constexpr char latin1 = '\xC3';  // begins U+00C0 to U+00FF, the capitals before the small letters
  char before = 0;
  for (char& letter : text) {
    const bool isSmall = letter >= '\xA0' && letter <= '\xBE' && letter != '\xB7';  // no ÷
    if (before == latin1 && isSmall) letter = static_cast<char>(letter - 0x20);
    before = letter;
    letter = tonelake::uppercase(letter);
  }
  return text;
}

}  // namespace todaychord
