#include "Desktop/svg_text.h"

#include "Desktop/number_text.h"
#include "Desktop/typefaces.h"
#include "Tonelake/foundation/text.h"

namespace desktop {
namespace {

using todaychord::Point;

// A comma is not needed before a minus, but a blank reads better and costs the same.
std::string formatPoint(Point point) {
  return formatNumber(point.x) + ' ' + formatNumber(point.y);
}

struct StepFormatter {
  std::string operator()(const todaychord::MoveTo& step) const {
    return 'M' + formatPoint(step.to);
  }
  std::string operator()(const todaychord::LineTo& step) const {
    return 'L' + formatPoint(step.to);
  }
  std::string operator()(const todaychord::CurveTo& step) const {
    return 'C' + formatPoint(step.control1) + ' ' + formatPoint(step.control2) + ' ' +
           formatPoint(step.to);
  }
  std::string operator()(const todaychord::ClosePath&) const { return "Z"; }
};

// XML 1.0 allows tab and line ends below U+0020, and neither U+FFFE nor U+FFFF. Surrogates are no
// well-formed UTF-8 in the first place.
bool isAllowed(std::string_view character) {
  if (character == "\xEF\xBF\xBE" || character == "\xEF\xBF\xBF") return false;
  if (character.size() > 1) return true;
  const auto byte = static_cast<unsigned char>(character.front());
  return byte < 0x80 && (byte >= 0x20 || byte == '\t' || byte == '\n' || byte == '\r');
}

}  // namespace

std::string formatPath(const todaychord::Path& path) {
  std::string text;
  for (const todaychord::PathStep& step : path) text += std::visit(StepFormatter(), step);
  return text;
}

std::vector<TextSpan> raiseMusicSigns(std::string_view text, double fontSize) {
  std::vector<TextSpan> spans;
  double rise = 0;
  for (const std::string_view character : tonelake::splitCharacters(text)) {
    const MusicSign setting = settingOf(character);
    if (spans.empty() || setting.rise != rise) {
      spans.push_back({"", (rise - setting.rise) * fontSize, setting.growth});
    }
    spans.back().text += character;
    rise = setting.rise;
  }
  return spans;
}

std::string cleanForXml(std::string_view text) {
  std::string clean;
  for (const std::string_view character : tonelake::splitCharacters(text)) {
    clean += isAllowed(character) ? character : tonelake::replacementCharacter;
  }
  return clean;
}

}  // namespace desktop
