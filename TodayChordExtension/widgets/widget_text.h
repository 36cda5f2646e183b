#pragma once

#include <string>
#include <string_view>

#include "TodayChordExtension/diagram/scene.h"
#include "Tonelake/platform/string_table.h"

namespace todaychord {

/// A text of the widgets, given in English, in the user's language. tools/messages.sh finds the
/// texts by this name.
std::string localized(std::string_view english);

/// Where and how a line of text stands.
struct TextStyle {
  Font font;
  Color color;
  TextAnchor anchor = TextAnchor::start;
};

/// `text` on one line that is no wider than `width` points: set down to three quarters of its size
/// where it is too long, and cut with "…" where that does not help.
TextItem fitLine(const std::string& text, const TextStyle& style, Point baseline, double width);

/// "LEARN MORE" for "Learn More", "DÍA" for "día"; letters beyond Latin-1 stay as they are.
std::string inCapitals(std::string text);

}  // namespace todaychord
